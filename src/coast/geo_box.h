// Boxes in degrees of longitude and latitude, and what touches them.
#pragma once

#include <algorithm>

#include "coast/coast_line.h"

namespace tidemark {

inline constexpr double TurnDegrees = 360;
inline constexpr double RoundingDegrees = 1e-6;  // a tenth of a metre

inline GeoBox Moved_east(const GeoBox& box, int turns) {
    return {box.West + turns * TurnDegrees, box.South, box.East + turns * TurnDegrees, box.North};
}

inline bool Touch(const GeoBox& one, const GeoBox& other) {
    return one.West <= other.East && one.East >= other.West && one.South <= other.North &&
           one.North >= other.South;
}

inline bool Is_in(const CoastPosition& position, const GeoBox& box) {
    return position.Longitude >= box.West && position.Longitude <= box.East &&
           position.Latitude >= box.South && position.Latitude <= box.North;
}

inline void Widen(GeoBox& box, const CoastPosition& position) {
    box.West = std::min(box.West, position.Longitude);
    box.South = std::min(box.South, position.Latitude);
    box.East = std::max(box.East, position.Longitude);
    box.North = std::max(box.North, position.Latitude);
}

// Whether any part of the segment is in the box.
bool Touches(const CoastPosition& from, const CoastPosition& to, const GeoBox& box);

// Along the date line or along a pole, where data closes its polygons.
bool Closes_polygon_only(const CoastPosition& from, const CoastPosition& to);

}  // namespace tidemark
