// Choosing and loading the background image, without its window.
#pragma once

#include <functional>
#include <string>

#include "model/project.h"
#include "model/session.h"
#include "platform/platform.h"

namespace tidemark {

// Whether what the project holds may go: asks while there are unsaved changes.
bool May_clear_project(const Session& session, Messages& messages);

// Asks for a background image; its path becomes BackgroundFile. Unsaved changes are cleared first
// when the user agrees: the georeference and all points, polygons and cleared cells. False when the
// user answers No or cancels, or when the path cannot stand in a project file (Warn); what was
// cleared stays cleared.
bool Choose_background(Project& project, Session& session, Platform& platform);

// Shows the image of a file on the canvas. False when the file cannot be shown; what was shown
// before then stays.
using ShowImage = std::function<bool(const std::string& path)>;

// Loads BackgroundFile; one that is no full path is looked for in the folder of the opened project
// when it cannot be shown as it stands. BackgroundFile stays as it is. BackgroundLoaded tells
// whether that worked; a failure is reported with Warn, success sets DataChanged.
void Load_background_file(Project& project, Session& session, Messages& messages,
                          const ShowImage& show_image);

}  // namespace tidemark
