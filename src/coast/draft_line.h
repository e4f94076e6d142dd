// A line on its way into the map, and how its points go over to other lines where two coasts are
// so near to each other that they become one. What lies on either side of a line stays on its
// side: each line is walked up to such a place, and from there on the other one.
#pragma once

#include <cstddef>
#include <limits>
#include <vector>

#include "coast/map_line.h"

namespace tidemark {

// Of a point that is kept whatever the tolerance.
inline constexpr double EndlessSignificance = std::numeric_limits<double>::infinity();

// A line with the significance of each of its points (simplify.h).
struct DraftLine {
    MapLine Line;
    std::vector<double> Significances;
    bool LeftOut = false;  // points of less significance than LeastGain are no more there
};

// Twice the area that the points go round, positive when clockwise on the map.
double Twice_area(const std::vector<MapPoint>& points);

// The points first..last leave the line and come back as a ring of their own.
DraftLine Cut_loop(DraftLine& line, std::size_t first, std::size_t last);

// Two open lines: after its point `at` each goes on with what came after the other one's.
void Exchange_tails(DraftLine& one, std::size_t at, DraftLine& other, std::size_t other_at);

// The ring, walked once round from after its point `ring_at`, comes after the line's point `at`;
// nothing is left of it.
void Splice(DraftLine& line, std::size_t at, DraftLine& ring, std::size_t ring_at);

// Puts two points that are kept in place of all between `first` and `last`, which may be the number
// of points of a ring. Returns the number of the first of the two.
std::size_t Put_between(DraftLine& line, std::size_t first, std::size_t last, MapPoint one,
                        MapPoint two);

}  // namespace tidemark
