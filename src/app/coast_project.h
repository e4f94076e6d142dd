// The projects that are made of the coast in one LOD8 cell.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "coast/coast_cells.h"
#include "coast/import_coast.h"

namespace tidemark {

struct CoastProjectOptions {
    LayOptions Laying;
    ImportOptions Importing;
};

// "coast-122-148"; with -b, -c and so on behind it for the projects of the same cell that take the
// polygons which the first one has no room for. `number` counts from 0 to 25.
std::string Coast_project_name(WorldCell cell, int number);

// What of the world the project of a cell shows.
GeoBox Box_of(WorldCell cell);

struct CoastProjectText {
    std::string Name;     // of the project's file
    std::string Bytes;    // of the project's file
    std::string Summary;  // "375 points, 148 polygons, 87 cleared cells, no errors"
    Findings Errors;      // of the coast check
};

struct CoastProjects {
    std::string Refusal;                 // why there are none; empty: there are
    std::vector<CoastProjectText> Each;  // none, too, when there is nothing of the coast to be laid
    std::vector<std::string> Remarks;    // what was left out, and where filling stopped
};

// The projects have the whole cell as their map, no picture, and names for all their files in the
// folder, a full path that ends with a separator or is empty. All but the first have polygons only.
// `saved_on` is the date of their first line.
CoastProjects Coast_projects(WorldCell cell, const std::string& folder,
                             std::span<const CoastLine> lines, const CoastProjectOptions& options,
                             const std::string& saved_on);

}  // namespace tidemark
