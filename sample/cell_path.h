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

#include "geography.h"

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

// The line in VTP units, its points clear of the cell edges but not cut.
std::vector<Position> Placed(const GeoLine& line);

// The line in VTP units, cut as above.
CellPath Cut_at_cell_edges(const GeoLine& line);

// A closed line, whose last point is its first one: cut, and turned so that it starts and ends on
// the first cell edge that it crosses. Throws std::runtime_error for a ring inside one cell, which
// the builder could only take for a polygon of its own.
std::vector<Position> Cut_ring(const GeoLine& ring);

// The LOD13 column and row of a position.
Position Cell_of(Position position);

}  // namespace tidemark
