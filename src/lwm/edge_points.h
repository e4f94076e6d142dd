// From the VTP points to the chains of edge points in one cell.
#pragma once

#include "lwm/cell_edges.h"
#include "model/project.h"
#include "platform/messages.h"

namespace tidemark {

// Walks all coastlines of the project and takes the stretches of them that lie in the cell: every
// point in it, and the crossing wherever a step leaves or enters. A stretch without a point in the
// cell leaves no trace. Throws Overflow as CellPoints does.
CellEdges Edge_points_of(const Project& project, CellPoints& points);

// Says of every boundary point on which edge it lies; a corner belongs to the top or bottom one.
void Assign_edges(CellEdges& edges);

int Count_edge_points(const CellEdges& edges, EdgeType type);
int Count_boundary_points(const CellEdges& edges);  // those assigned to an edge

// Of a cell in which `terminals` coastlines end while others cross it: two such ends are joined, so
// that their chains become one; any other number is refused. Both are said in a message. False when
// refused.
bool Join_terminal_points(CellEdges& edges, int terminals, Messages& messages);

}  // namespace tidemark
