// Which VTP points lie in one LOD13 cell, and where.
//
// Positions are in cell units: x from 0 (west edge) to 255 (east edge), y from 0 (north edge) to
// 255 (south edge). A position with a coordinate of 0 or 255 is on the cell's boundary.
#pragma once

#include <vector>

#include "model/int16.h"
#include "model/limits.h"
#include "model/project.h"
#include "model/session.h"

namespace tidemark {

// A position in cell units. A crossing near a corner may lie outside 0..255.
struct CellPoint {
    Int16 X, Y;
    bool operator==(const CellPoint&) const = default;
};

// The vertices in order; the first is not repeated at the end.
using Outline = std::vector<CellPoint>;

constexpr bool Is_on_boundary(CellPoint p) {
    return p.X == 0 || p.X == LastCellUnit || p.Y == 0 || p.Y == LastCellUnit;
}

class CellPoints {
  public:
    // Of the session's cursor cell. The project keeps PointInCellX and PointInCellY.
    CellPoints(Project& project, const Session& session);

    // True when VTP point i exists and lies in the cell; PointInCellX and PointInCellY then hold
    // its position there. Otherwise nothing changes. Throws Overflow for a point too far from the
    // area.
    bool Point_in_cell(int i);
    // The position of the last point that was found in the cell.
    CellPoint PointInCell() const { return {project_.PointInCellX, project_.PointInCellY}; }

    // The place where the step from VTP point i - 1 to point i crosses the boundary. One of the two
    // is inside the cell; where that is i - 1, it was the last point found there. Throws Overflow
    // for a step too long for 16 bits.
    CellPoint Crossing(int i);

  private:
    Project& project_;
    const Int16 column_, row_;  // of the cell, from the area's north-west corner
};

}  // namespace tidemark
