// The project file: the whole project as text, one value a line in a fixed order, no keys.
//
// Every line ends with CR LF. Number lines hold blank-prefixed text, flag lines " True" or
// " False", text lines the text as it is. In order:
//
//   1       where and when it was saved (not read back)
//   2..5    AreaLeftVTP, AreaTopVTP, AreaRightVTP, AreaBottomVTP
//   6..11   BGLOD8X, BGLOD8Y, BGLOD13tlX, BGLOD13tlY, BGLOD13brX, BGLOD13brY
//   12..15  AreaWidth, AreaHeight, ScaleX, ScaleY
//   16..18  VTPCount, LWMCount, KillCount
//   6 lines a VTP point       X, Y, start flag, end flag, mode, width
//   3 lines a cleared cell    column, row, clear code
//   5 lines a polygon         number of points, type, height, column, row; then X, Y of each point
//   17 lines                  CellLatitude, CellLongitude, LWMFileName, VTPFileName, OutputRoot,
//                             FSFolder, ProjectFile, BackgroundFile, PointInCellX, PointInCellY,
//                             CopyToFS, LWMNotepad, LWMCompile, VTPNotepad, VTPCompile, PrefsSet,
//                             BackgroundLoaded
//   last    "END OF FILE" (not read back)
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/project.h"

namespace tidemark {

// No project reaches this size in bytes: the tables fill half a megabyte at most.
inline constexpr std::uintmax_t MaxProjectFileSize = 16 << 20;

// Bytes, the most that one text of a project may have.
inline constexpr std::size_t MaxTextLength = 32767;

// Why a file is no project: the line (from 1) and what is wrong there.
struct ProjectFileError {
    int Line;
    std::string What;
};

struct ProjectFileReading {
    std::optional<ProjectFileError> Error;
    // The line at which the file ended early, 0 when it was all there. The values that were missing
    // are 0, off and empty.
    int EndedAtLine = 0;
};

// Whether bytes can be those of a project file, however odd or short: the first line says " saved
// on ", or most of what stands on lines 2 to 18 begins as a number, and there is no NUL on them. No
// bytes at all can be, too. Read_project takes any bytes; this tells what is plainly something
// else.
bool Reads_as_project(std::string_view bytes);

// What is said, after its name and a colon, of a file that does not.
inline constexpr std::string_view NoProjectText = "this is no Tidemark project";

// Reads a project file's bytes into the project: everything that the file keeps is replaced, the
// rest (editing state, cursor) stays. Any bytes at all are taken. On an error the project is as it
// was: a number outside 16 bits, a scale that is no 32-bit number, a count that does not fit its
// table, a text with a NUL or of more than MaxTextLength bytes.
ProjectFileReading Read_project(std::string_view bytes, Project& project);

// The project file's bytes. `saved_on` is the date and time of its first line.
std::string Project_bytes(const Project& project, std::string_view saved_on);

// Whether a text can stand on a line of its own: it holds no line end and no NUL, which would shift
// every line after it, and MaxTextLength bytes at most.
bool Is_savable(std::string_view text);

// What the warning about a chosen name says that cannot.
inline constexpr std::string_view UnsavableNameText =
    "This name cannot be used: it holds a line end or a NUL, or it is too long.";

// The name of the first text that cannot be saved; nothing when all can.
std::optional<std::string> Unsavable_text(const Project& project);

}  // namespace tidemark
