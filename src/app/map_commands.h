// The Background menu, and what else concerns the picture, without their windows.
#pragma once

#include <functional>

#include "canvas/background.h"
#include "canvas/view_layout.h"
#include "georef/background_properties.h"
#include "model/document.h"
#include "platform/platform.h"

namespace tidemark {

// What the commands on the background need of the screen.
struct MapScreen {
    ShowImage Show_image;
    std::function<ViewSize()> Canvas_size;  // of the image that is shown, pixels
    AskGeoreference Ask_georeference;
};

// What is due whenever all three tables have changed.
void Refresh_lists(Project& project, Session& session);

// "Load background image": asks before unsaved changes are cleared, asks for the picture, loads it
// and asks for its place. One step, whatever came of it.
void Load_background(Document& document, Session& session, Platform& platform,
                     const MapScreen& screen);

// "Change background properties". One step.
void Change_background_properties(Document& document, Messages& messages, const MapScreen& screen);

// Loads the picture again, as every new size of a window does. No step.
void Reload_background(Document& document, Session& session, Messages& messages,
                       const ShowImage& show_image);

}  // namespace tidemark
