// The layer above the drawing that helps to find one's way: cell edges with their numbers, the cell
// under the pointer, tinted polygons, and what is chosen in the lists. No part of what
// Refresh_Graphics draws.
#pragma once

#include <vector>

#include "model/project.h"
#include "model/session.h"
#include "platform/drawing_surface.h"

namespace tidemark {

// Which of the marks are shown.
struct MarkKinds {
    bool Cells = true, Pointer = true, Tint = true, Chosen = true;
    bool operator==(const MarkKinds&) const = default;
};

// Places are canvas pixels, widths those of the screen.
struct MarkLine {
    CanvasPoint From, To;
    Colour Ink;
    int Width;
    bool operator==(const MarkLine&) const = default;
};

struct MarkArea {
    std::vector<CanvasPoint> Outline;
    Colour Ink;  // faint
};

// A number along the top (of a column) or the left border (of a row) of whatever part of the map is
// seen, at the middle of its cells.
struct MarkNumber {
    bool IsColumn;
    double At;  // canvas pixels
    int Number;
};

struct MapMarks {
    std::vector<MarkArea> Areas;
    std::vector<MarkLine> Lines;  // in the order in which they are drawn
    std::vector<MarkNumber> Numbers;

    bool Is_empty() const { return Areas.empty() && Lines.empty() && Numbers.empty(); }
};

// The marks of these kinds except the frame of the pointer's cell. None on a map without scale;
// what has a position that does not fit 16 bits is left out.
MapMarks Marks_of(const Project& project, const Session& session, const MarkKinds& kinds);

// The frame of the LOD13 cell that the cursor is in; no lines when that is none of the map's.
std::vector<MarkLine> Pointer_frame(const Project& project, const Session& session);

// The frame of a cell in which the coast check has found something; no lines beside the map.
std::vector<MarkLine> Finding_frame(const Project& project, Int16 column, Int16 row);

}  // namespace tidemark
