// Importing a coast file: what the dialog shows of it beforehand, and the step itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "canvas/map_marks.h"
#include "coast/import_coast.h"
#include "model/document.h"
#include "model/session.h"
#include "platform/platform.h"

namespace tidemark {

// For the status bar, when a coast has nothing that it could be laid into.
inline constexpr std::string_view NoMapAreaText =
    "Load a background image and set its place first: a coast is laid into the cells of the map.";

// Asks for a coast file to read; nothing when the user cancels. `last` is shown at first, a full
// path; empty: the folder that was current at start-up.
std::optional<std::string> Choose_coast_file(Platform& platform, const std::string& last);

// By its extension; a zipped file too, because of which the dialog says what to do.
bool Is_coast_file(std::string_view path);

// A tolerance as it was typed, in VTP units; nothing unless it is 0.1 to 1000.
std::optional<double> Take_tolerance(std::string_view text);
inline constexpr std::string_view WrongToleranceText =
    "The tolerance must be in the range 0.1-1000 units.";

// What the user wants to be imported, and how.
struct CoastImport {
    LaidCoast Coast;
    ImportOptions Options;
    std::vector<std::string> FileRemarks = {};  // on the file; one line each
};

// What an import would make of the project, which stays as it is.
struct ImportPreview {
    std::string CountText;             // one line for each sort of entries; why it is not possible
    std::vector<std::string> Remarks;  // on the file, what is left out, and what would be wrong
    MapMarks Marks;  // the lines, and the polygons along them; on a map with scale
    bool IsPossible = false;
};
ImportPreview Preview_import(const Project& project, const CoastImport& import);

// Imports as one step; no step when it is refused.
ImportResult Import_coast_file(Document& document, Session& session, const CoastImport& import);

// What came of it, or why nothing did: one line for the status bar.
std::string Imported_text(const LaidCoast& coast, const ImportResult& result);

}  // namespace tidemark
