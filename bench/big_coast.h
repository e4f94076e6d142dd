// A coast of three million positions all over the world, the same one every time, as files.
#pragma once

#include <string>

#include "coast/coast_line.h"

namespace tidemark {

// One cell of the simulator's grid that the continent's coast runs through.
inline constexpr GeoBox BigCoastCell{-120, 37.6171875, -119.53125, 37.96875};

// 76 MB of GeoJSON: a Feature with a Polygon on each line. One continent has a million positions,
// each of 2000 islands a thousand.
void Write_big_geojson(const std::string& path);

// The same as a shapefile, `path` with its .shx beside it.
void Write_big_shapefile(const std::string& path);

}  // namespace tidemark
