// Where the project's positions lie on the canvas, and the way back from the mouse.
//
// Canvas pixel (0, 0) is the image's top-left corner, x to the right, y down. ScaleX and ScaleY are
// canvas pixels to one VTP unit; differences are formed in 16 bits (Overflow when they do not fit)
// and then multiplied in 32-bit floating point, so that every pixel position carries a fraction.
#pragma once

#include <optional>
#include <string>

#include "model/project.h"
#include "model/session.h"
#include "platform/drawing_surface.h"

namespace tidemark {

// Whether the map has a place at all: without scale no pixel means anything.
inline bool Has_scale(const Project& project) {
    return project.ScaleX > 0 && project.ScaleY > 0;
}

// The pixel of a position in VTP units.
CanvasPoint VTP_to_canvas(const Project& project, Int16 x, Int16 y);

// The pixel of a position in cell units inside the LOD13 cell `column`, `row`.
CanvasPoint Cell_to_canvas(const Project& project, Int16 column, Int16 row, Int16 x, Int16 y);

// The pixel of a point, and of a point of a polygon.
CanvasPoint VTP_point_to_canvas(const Project& project, int point);
CanvasPoint LWM_point_to_canvas(const Project& project, int polygon, int point);

// Runs what may meet a position that does not fit 16 bits. What is that far from any map is left
// out: one such entry must not keep the rest of the project from being seen and mended.
template <class Action>
void Do_what_fits(const Action& action) {
    try {
        action();
    } catch (const Overflow&) {
        // Left out.
    }
}

// What the Status panel says about the cursor.
struct CursorTexts {
    std::string VTP;   // such as " 4848, 5104"
    std::string Cell;  // such as "[ 12, 7 ]  100, 37"
};

CursorTexts Cursor_texts(const Session& session);

// Sets the session's cursor values from a canvas pixel. A map without scale and a pixel whose
// position does not fit 16 bits leave them as they are and give nothing.
std::optional<CursorTexts> Move_cursor(const Project& project, Session& session, float x, float y);

// The number of the VTP point nearest to the cursor, the lowest of equally near ones; nothing in a
// project without points.
std::optional<int> Nearest_point(const Project& project, const Session& session);

}  // namespace tidemark
