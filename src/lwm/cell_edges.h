// The work of one polygon build: the pieces of coastline in one LOD13 cell, linked into chains, and
// the outlines that are made of them.
//
// Positions are in cell units: x from 0 (west edge) to 255 (east edge), y from 0 (north edge) to
// 255 (south edge). A position with a coordinate of 0 or 255 is on the cell's boundary. Edge points
// and candidates are numbered from 1; an edge point 0 stands for none.
#pragma once

#include <array>
#include <vector>

#include "model/int16.h"
#include "model/limits.h"
#include "model/project.h"
#include "model/session.h"
#include "model/table.h"
#include "platform/messages.h"

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

enum class EdgeType {
    None = 0,
    Interior = 2,  // a middle point of a coastline, strictly inside the cell
    Terminal = 3,  // the first or the last point of a coastline, strictly inside the cell
    Boundary = 4,  // on the boundary, not yet assigned to an edge
    Top = 5,
    Right = 6,
    Bottom = 7,
    Left = 8,
};

constexpr bool Is_edge(EdgeType type) {
    return type > EdgeType::Boundary;
}

inline constexpr int MaxEdgePointCount = 200;
inline constexpr int MaxPolyNumber = 20;

class CellEdges {
  public:
    // Empty lists for the session's cursor cell. The project keeps PointInCellX and PointInCellY.
    CellEdges(Project& project, const Session& session, Messages& messages);

    // True when VTP point i exists and lies in the cell; PointInCellX and PointInCellY then hold
    // its position there. Otherwise nothing changes. Throws Overflow for a point too far from the
    // area.
    bool Point_in_cell(int i);
    // The position of the last point that was found in the cell.
    CellPoint PointInCell() const { return {project_.PointInCellX, project_.PointInCellY}; }

    // Appends an edge point that comes from VTP point i. Linked, it goes on from the edge point
    // added before it; otherwise it begins a chain. One too many is not stored, and EdgePointsLost
    // tells of it.
    void Add_Edge_Point(int i, CellPoint place, EdgeType type, bool linked);

    // Appends the place where the step from VTP point i - 1 to point i crosses the boundary. One of
    // the two is inside the cell; where that is i - 1, it was the last point found there. Throws
    // Overflow for a step too long for 16 bits.
    void Add_Edge_Crossing(int i, bool linked);

    int EdgePointCount = 0;
    bool EdgePointsLost = false;
    Table<CellPoint, MaxEdgePointCount> EdgePoint;
    Table<EdgeType, MaxEdgePointCount> EdgePointType;
    // The VTP point that an edge point is, or at which the step ends that crosses the boundary
    // here.
    Table<int, MaxEdgePointCount> EdgePointOrigin;

    // The edge point before e in its chain; 0 when e begins it.
    int EdgePointLink(int e) const { return link_(e); }
    void Set_link(int e, int before);
    // The edge point after e: the one with the largest number of those whose link is e; 0 when
    // there is none. A chain can be reversed link by link while this is asked: a reversed
    // predecessor of e, whose link is also e, has a smaller number than the successor.
    int Next_edge_point(int e) const { return last_linked_(e); }

    // Append a vertex to candidate PolyNumber. A vertex beyond the 200th is dropped with a warning.
    void Add_Poly_Edge_Point(int e) { Add_Poly_Point(EdgePoint(e)); }
    void Add_Poly_Point(CellPoint vertex);

    int PolyNumber = 0;
    std::array<Outline, MaxPolyNumber + 1> PolyPoint;

  private:
    Project& project_;
    Messages& messages_;
    const Int16 column_, row_;  // of the cell, from the area's north-west corner
    Table<int, MaxEdgePointCount> link_;
    // The edge points whose link is e, from the largest number down: last_linked_(e), then
    // earlier_linked_ of that one, and so on.
    Table<int, MaxEdgePointCount> last_linked_;
    Table<int, MaxEdgePointCount> earlier_linked_;
};

}  // namespace tidemark
