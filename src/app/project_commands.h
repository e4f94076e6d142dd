// File > Open, Save and Save As, without their window.
#pragma once

#include <optional>
#include <string>

#include "canvas/background.h"
#include "model/document.h"
#include "platform/platform.h"

namespace tidemark {

// Asks for a file to save to, which becomes ProjectFile and the title. False when the user cancels
// or the chosen path cannot stand in a project file (Warn); all is then as it was. Choosing a name
// is no step that could be undone.
bool Choose_project_to_save(Document& document, Session& session, Platform& platform);

// Where Save writes: ProjectFile, which is meant from the opened project's folder when it is no
// full path. Empty as long as the project has no name.
std::string Save_path(const Project& project, const Session& session);

// What the user should know of a project that was just opened, for the status bar: where Save
// writes when that is another file than the opened one, and which compiler saving will start. Empty
// when there is nothing to say.
std::string Opening_remark(const Project& project, const Session& session, Platform& platform);

// Writes the project to Save_path, asking for a name when it has none and before an existing file
// is replaced (and first of all when a stored name does not end in ".TDM", since a project may come
// from anyone), and says so when it is done. True when it was written; DataChanged is then cleared.
// A failure is reported with Warn, naming the file and the reason; the old file is then as it was.
bool Save_project(Document& document, Session& session, Platform& platform);

// Asks for a file to open; nothing when the user cancels.
std::optional<std::string> Choose_project_to_open(Platform& platform);

// Within a step, what follows from another project in place of the one before: its picture, its
// tables put right, what can be saved, and the title from the path it is opened under.
void Take_over(const std::string& path, Project& project, Session& session, Messages& messages,
               const ShowImage& show_image);

// Replaces the project by that of a file, with its picture and title, as one step. A missing file
// is reported with Warn, and ProjectFile keeps its path. A file that is no project is refused as a
// whole: everything stays as it was. Returns a line for the status bar, which then names the file,
// the line and what is wrong; empty when there is nothing to say.
std::string Open_project(const std::string& path, Document& document, Session& session,
                         Platform& platform, const ShowImage& show_image);

// Whether the program may end: asks while there are unsaved changes.
bool May_exit(const Session& session, Messages& messages);

}  // namespace tidemark
