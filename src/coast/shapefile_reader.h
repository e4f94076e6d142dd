// The lines and polygons of ESRI shapefiles: x.shp with its index x.shx, and the coordinate system
// in x.prj if that is there.
#pragma once

#include <filesystem>

#include "coast/coast_input.h"
#include "coast/coast_runs.h"

namespace tidemark {

// Adds every line and polygon to `runs` whose bounds, as its record states them, touch a wanted
// box; the others are not looked into. Throws CoastRefusal and CoastCancelled.
void Read_shapefile(const std::filesystem::path& path, CoastRuns& runs,
                    const CoastProgress& progress = {});

}  // namespace tidemark
