// Simplifying lines by the algorithm of Douglas and Peucker, for any tolerance at once.
#pragma once

#include <span>
#include <vector>

#include "coast/map_line.h"

namespace tidemark {

// The significance of every point of a line: with a tolerance, those that have more than it are
// kept, and no other point is farther from what is left than the tolerance. The ends' is infinite.
// Of a ring the first point and the one farthest from it count as ends.
std::vector<double> Significances(std::span<const MapPoint> points, bool is_ring);

}  // namespace tidemark
