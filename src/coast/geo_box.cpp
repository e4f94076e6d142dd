#include "coast/geo_box.h"

#include <array>
#include <cmath>

namespace tidemark {

namespace {

bool Is_on_date_line(const CoastPosition& position) {
    return std::fabs(std::remainder(position.Longitude, TurnDegrees)) >=
           TurnDegrees / 2 - RoundingDegrees;
}

bool Are_at_one_pole(const CoastPosition& from, const CoastPosition& to) {
    return std::fabs(from.Latitude + to.Latitude) >= 180 - 2 * RoundingDegrees;
}

}  // namespace

// A segment whose own bounds touch the box misses it when all corners are on one side of it.
bool Touches(const CoastPosition& from, const CoastPosition& to, const GeoBox& box) {
    if (std::max(from.Longitude, to.Longitude) < box.West ||
        std::min(from.Longitude, to.Longitude) > box.East ||
        std::max(from.Latitude, to.Latitude) < box.South ||
        std::min(from.Latitude, to.Latitude) > box.North)
        return false;
    if (Is_in(from, box) || Is_in(to, box)) return true;
    const double east = to.Longitude - from.Longitude, north = to.Latitude - from.Latitude;
    const auto side = [&](double longitude, double latitude) {
        return east * (latitude - from.Latitude) - north * (longitude - from.Longitude);
    };
    const std::array sides{side(box.West, box.South), side(box.East, box.South),
                           side(box.West, box.North), side(box.East, box.North)};
    const auto [least, most] = std::minmax_element(sides.begin(), sides.end());
    return *least <= 0 && *most >= 0;
}

bool Closes_polygon_only(const CoastPosition& from, const CoastPosition& to) {
    return (Is_on_date_line(from) && Is_on_date_line(to)) || Are_at_one_pole(from, to);
}

}  // namespace tidemark
