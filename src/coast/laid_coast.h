// What lines of a coast file come to in the map.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "coast/position.h"

namespace tidemark {

class CoastDraft;
struct MapUnits;

struct LaidLine {
    std::vector<Position> Points;    // VTP units; a closed line's last point is its first
    std::optional<bool> LandOnLeft;  // as the lines now run
    std::string Origin;              // in the file; of the first of the pieces that were joined
};

struct LaidCoast {
    std::vector<LaidLine> Lines;
    int Points = 0;
    // The tolerance that was taken: raised as little as needed to have at most MostPoints.
    double Tolerance = 0;
    double Deviation = 0;    // VTP units, from the lines in the file, at the worst place
    bool Cancelled = false;  // then there is nothing else
    bool Fits = true;  // false: even the coarsest lines have more points than there is room for
    std::vector<std::string> Dropped;  // what could not be kept, and why; one line each
};

// The lines of a draft, cut at the cell edges.
LaidCoast Laid(const CoastDraft& draft, const MapUnits& map);

// "4 lines, 375 points of 437 free, off by at most 3 units = 15 m".
std::string Laid_text(const LaidCoast& coast, int free);

}  // namespace tidemark
