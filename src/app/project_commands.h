// File > Open, Save and Save As, without their window.
#pragma once

#include <optional>
#include <string>

#include "model/project.h"
#include "platform/platform.h"

namespace tidemark {

// Asks for a file to save to. False when the user cancels or the chosen path cannot stand in a
// project file (Warn); ProjectFile is then as it was.
bool Choose_project_to_save(Project& project, Platform& platform);

// Writes the project to ProjectFile, asking for a name when it has none and before an existing file
// is replaced, and says so when it is done. True when it was written; DataChanged is then cleared.
// A failure is told with Warn, naming the file and the reason; the old file is then as it was.
bool Save_project(Project& project, Platform& platform);

// Asks for a file to open; nothing when the user cancels.
std::optional<std::string> Choose_project_to_open(Platform& platform);

struct OpenResult {
    bool Opened = false;
    std::string Status;  // a line for the status bar, empty when there is nothing to say
};

// Replaces the project by that of a file. A missing file is told with Warn, and ProjectFile keeps
// its path. A file that is no project is refused as a whole: the project stays as it was, and
// Status names the file, the line and what is wrong, or says that it is none. DataChanged stays for
// the caller to clear, who has the background to load first.
OpenResult Open_project(const std::string& path, Project& project, Platform& platform);

// Whether the program may end: asks while there are unsaved changes.
bool May_exit(const Project& project, Messages& messages);

}  // namespace tidemark
