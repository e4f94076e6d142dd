// Lays lines of a coast file into the map: clipped to its cells, joined, simplified, and cut so
// that every cell that they cross can be built.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "coast/coast_line.h"
#include "coast/position.h"
#include "model/project.h"

namespace tidemark {

// VTP units; a laid line keeps that near to the file's, except where cell edges ask for more.
inline constexpr double DefaultTolerance = 4;

struct LayOptions {
    double Tolerance = DefaultTolerance;  // VTP units, above 0
    bool Reverse = false;                 // turn the lines round
    int MostPoints = MaxVTPCount;         // what the project has room for
};

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
    double Deviation = 0;  // VTP units, from the lines in the file, at the worst place
    bool Fits = true;      // false: even the coarsest lines have more points than there is room for
    std::vector<std::string> Dropped;  // what could not be kept, and why; one line each
};

// Whether the project says where in the world its map lies, and how large the map is.
bool Has_map_area(const Project& project);

// What of the world its map shows. The project has a map area.
GeoBox Map_box(const Project& project);

// The project gives the place of the map; its points do not count. Every cell on every passage gets
// a point, no step skips a cell, no end lies inside the map, and neighbours meet. Islands within
// one cell stay rings of their own, the largest in each cell; needles and islands of less than a
// unit are left out.
LaidCoast Lay_coast(const Project& project, std::span<const CoastLine> lines,
                    const LayOptions& options);

// "4 lines, 375 points of 437 free, off by at most 3 units = 15 m".
std::string Laid_text(const LaidCoast& coast, int free);

}  // namespace tidemark
