// The pieces into which the coastlines cut one LOD13 cell.
#pragma once

#include <vector>

#include "lwm/cell_edges.h"
#include "model/project.h"
#include "model/session.h"
#include "platform/messages.h"

namespace tidemark {

// The outlines, in cell units, that a polygon of the session's cursor cell can have: one for every
// point at which a coastline crosses the boundary, in the order of the coastlines, each closed
// clockwise along the boundary. Both sides of a coastline are there, and a piece is there once for
// every boundary point on it. A cell without crossings has one candidate: the outline of the first
// coastline that lies wholly inside it, or the whole cell.
//
// Speaks through the messages; when the cell is refused there are no candidates. A candidate whose
// walk would never come back to its start is dropped: it stays in its place without vertices.
// Of the project only PointInCellX and PointInCellY change. Throws Overflow as CellPoints does.
std::vector<Outline> Candidate_polygons(Project& project, const Session& session,
                                        Messages& messages);

// The same from the edge points that Edge_points_of has found, which it takes apart.
std::vector<Outline> Candidates_from(CellEdges& edges, Messages& messages);

}  // namespace tidemark
