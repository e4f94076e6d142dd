// Lines cut so that every LOD13 cell that they cross can be built.
//
// The polygon builder sees a coastline in a cell only through the points that lie in it, and works
// out where the steps into and out of the cell cross its edges. A cut line therefore
//   - has a point in every cell that it crosses, and each step that leaves a cell ends in the next
//     cell east, south, west or north: none jumps a cell or goes through a corner;
//   - crosses each cell edge at a right angle, in a step from the last unit but one of one cell
//     (254 or 1) to the second unit of the next (1 or 254). Unit 255 of a cell and unit 0 of the
//     next are neighbours, not the same place, so a slanting step would cross them at two heights;
//     a straight one crosses both at the same height, and the polygons of the two cells meet
//     without a gap;
//   - has no other point on the outermost two units of a cell, so that a point is never on a
//     cell's boundary, and never a corner, by accident. Only the two ends of a line that runs off
//     the map are on the boundary, on the outermost unit of the map.
#pragma once

#include <cstddef>
#include <vector>

#include "coast/position.h"

namespace tidemark {

// A step from one cell into the next: from points[Before] to points[Before + 1].
struct CellCrossing {
    std::size_t Before;
    // Between the two, the first unit of the cell that is entered. A segment that starts or ends
    // here leaves no terminal point in either cell: a start is an entry on the boundary of its
    // cell; an end is outside the cell left, and in the cell entered it counts for nothing. A
    // segment that goes on from here in the same direction joins it.
    Position Edge;
};

struct CellPath {
    std::vector<Position> Points;
    std::vector<CellCrossing> Crossings;
};

// The line (VTP units) with its points clear of the cell edges, but not cut.
std::vector<Position> Placed(const std::vector<Position>& line);

// A place moved off the cell edges by as much as a point keeps clear of them, in its own cell.
Position Off_cell_edges(Position place);

// A placed line, cut as above.
CellPath Cut_at_cell_edges(const std::vector<Position>& placed);

// The points of such a line from one placed point to the next, without the first of the two.
void Append_cut(std::vector<Position>& points, Position from, Position to);

// A closed line that is placed, whose last point is its first one: cut, and turned so that it
// starts and ends on the first cell edge that it crosses. Throws std::runtime_error for a ring
// inside one cell, which the builder could only take for a polygon of its own.
std::vector<Position> Cut_ring(const std::vector<Position>& placed);

// The points that a straight step between two points wants between them, so that each cell edge is
// crossed as above. A step that crosses no edge wants none. An end that lies on the very edge that
// is crossed next to it stays the last (first) point there. `aside` moves the crossings along their
// edges by so many units.
std::vector<Position> Cut_of_step(Position from, Position to, int aside = 0);

// Where the step crosses the first cell edge on its way: the coordinate along that edge.
double First_crossing(Position from, Position to);

// The cells that a straight step passes between the cells of its two ends, in their order.
std::vector<LOD13Cell> Cells_between(Position from, Position to);

}  // namespace tidemark
