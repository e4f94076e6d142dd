// Lines that reach the edge of the map.
#pragma once

#include <string>
#include <vector>

#include "coast/coast_draft.h"
#include "coast/map_line.h"

namespace tidemark {

// Whether the line, no ring, begins and ends on the same side of the map.
bool Comes_back_to_side(const MapLine& line, const MapUnits& map);

// The polygon builder takes MaxPolyNumber crossings of a cell's edges. Where more ends of lines lie
// on the map's edge than leave room for the others, the narrowest places between two of them are
// closed: a line that leaves the map there goes on with one that enters it. Each place is told of
// in a line.
//
// Of a cell at the map's edge, only the ends there count. So it comes out in the same way in the
// map on the other side of the edge, and the two still meet; but for cells at the map's corners.
std::vector<std::string> Close_crowded_ends(std::vector<MapLine>& lines, const MapUnits& map);

}  // namespace tidemark
