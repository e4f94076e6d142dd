// Draws the whole project over the background image.
#pragma once

#include "model/project.h"
#include "platform/drawing_surface.h"
#include "platform/messages.h"

namespace tidemark {

// Erases all drawings and draws the LWM polygons, the VTP segments, the cleared cells and a ring
// around the selected VTP point, each over the one before. `selected` is the position in the VTP
// list, counted from 0; outside the list nothing is marked.
//
// A segment whose mode has no pen keeps the pen before it and is reported, once a redraw, in the
// plain box. What has a position that does not fit 16 bits is left out.
void Refresh_Graphics(const Project& project, int selected, DrawingSurface& surface,
                      Messages& messages);

}  // namespace tidemark
