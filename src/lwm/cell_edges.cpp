#include "lwm/cell_edges.h"

namespace tidemark {

void CellEdges::Add_Edge_Point(int i, CellPoint place, EdgeType type, bool linked) {
    if (EdgePointCount == MaxEdgePointCount) {
        EdgePointsLost = true;
        return;
    }
    ++EdgePointCount;
    EdgePoint(EdgePointCount) = place;
    EdgePointType(EdgePointCount) = type;
    EdgePointOrigin(EdgePointCount) = i;
    Set_link(EdgePointCount, linked ? EdgePointCount - 1 : 0);
}

void CellEdges::Set_link(int e, int before) {
    if (link_(e) != 0) {
        int* place = &last_linked_(link_(e));
        while (*place != e) place = &earlier_linked_(*place);
        *place = earlier_linked_(e);
    }
    link_(e) = before;
    if (before == 0) return;
    int* place = &last_linked_(before);
    while (*place > e) place = &earlier_linked_(*place);
    earlier_linked_(e) = *place;
    *place = e;
}

}  // namespace tidemark
