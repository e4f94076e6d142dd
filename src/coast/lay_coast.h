// Lays lines of a coast file into the map: clipped to its cells, joined, simplified, and cut so
// that every cell that they cross can be built.
#pragma once

#include <span>

#include "coast/coast_line.h"
#include "coast/laid_coast.h"
#include "coast/part_lines.h"
#include "model/project.h"

namespace tidemark {

// VTP units; a laid line keeps that near to the file's, except where cell edges ask for more.
inline constexpr double DefaultTolerance = 4;

struct LayOptions {
    double Tolerance = DefaultTolerance;  // VTP units, above 0
    bool Reverse = false;                 // turn the lines round
    int MostPoints = MaxVTPCount;         // what the project has room for
};

// Whether the project says where in the world its map lies, and how large the map is.
bool Has_map_area(const Project& project);

// What of the world its map shows. The project has a map area.
GeoBox Map_box(const Project& project);

// The project gives the place of the map; its points do not count. Every cell on every passage gets
// a point, no step skips a cell, no end lies inside the map, and neighbours meet. Islands within
// one cell stay rings of their own, the largest in each cell; needles and islands of less than a
// unit are left out. `go_on` is asked now and then on this thread.
LaidCoast Lay_coast(const Project& project, std::span<const CoastLine> lines,
                    const LayOptions& options, const GoOn& go_on = {});

}  // namespace tidemark
