// Where the sample lies in the world, and how longitude and latitude become the map's units.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "coast/position.h"

namespace tidemark {

// Degrees, east and north positive.
struct GeoPoint {
    double Longitude, Latitude;
};

using GeoLine = std::vector<GeoPoint>;

inline constexpr int SampleLOD8X = 122;
inline constexpr int SampleLOD8Y = 148;
inline constexpr double WestLongitude = SampleLOD8X * LOD8DegreesEast - 180;
inline constexpr double NorthLatitude = 90 - SampleLOD8Y * LOD8DegreesSouth;

// The whole LOD8 cell, in VTP units.
inline constexpr int AreaSize = (LastLOD13 + 1) * CellSizeVTP;

// Width and height of the background picture, which shows the whole cell.
inline constexpr int PictureSize = 2048;

// Parts of the cell, 0..1 from its west and from its north edge.
inline std::array<double, 2> Part_of_cell(GeoPoint point) {
    return {(point.Longitude - WestLongitude) / LOD8DegreesEast,
            (NorthLatitude - point.Latitude) / LOD8DegreesSouth};
}

// The nearest VTP unit, on the cell's outermost units for what lies beyond them.
inline Position VTP_position(GeoPoint point) {
    Position position;
    for (std::size_t axis : {0U, 1U}) {
        const double value = FirstVTP + Part_of_cell(point)[axis] * AreaSize;
        position[axis] = std::clamp(static_cast<int>(std::lround(value)), FirstVTP, LastVTP);
    }
    return position;
}

inline std::vector<Position> VTP_positions(const GeoLine& line) {
    std::vector<Position> positions;
    for (const GeoPoint& point : line) positions.push_back(VTP_position(point));
    return positions;
}

inline GeoPoint Geo_point(Position position) {
    return {WestLongitude + (position[0] - FirstVTP) * LOD8DegreesEast / AreaSize,
            NorthLatitude - (position[1] - FirstVTP) * LOD8DegreesSouth / AreaSize};
}

}  // namespace tidemark
