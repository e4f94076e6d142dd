// The pieces of coastline in one LOD13 cell, linked into chains.
//
// Edge points are numbered from 1; 0 stands for none.
#pragma once

#include "lwm/cell_points.h"
#include "model/table.h"

namespace tidemark {

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
inline constexpr int MaxPolyNumber = 20;  // of boundary points, each of which begins a candidate

class CellEdges {
  public:
    // Appends an edge point that comes from VTP point i. Linked, it goes on from the edge point
    // added before it; otherwise it begins a chain. One too many is not stored, and EdgePointsLost
    // tells of it.
    void Add_Edge_Point(int i, CellPoint place, EdgeType type, bool linked);

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

  private:
    Table<int, MaxEdgePointCount> link_;
    // The edge points whose link is e, from the largest number down: last_linked_(e), then
    // earlier_linked_ of that one, and so on.
    Table<int, MaxEdgePointCount> last_linked_;
    Table<int, MaxEdgePointCount> earlier_linked_;
};

}  // namespace tidemark
