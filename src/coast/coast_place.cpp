#include "coast/coast_place.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "coast/geo_box.h"

namespace tidemark {

std::string CoastPlace::Text() const {
    if (Number == 0) return {};
    return Unit + (" " + std::to_string(Number)) +
           (Feature == 0 ? "" : ", feature " + std::to_string(Feature));
}

bool Is_in_degrees(double longitude, double latitude) {
    return std::fabs(longitude) <= 180 + RoundingDegrees &&
           std::fabs(latitude) <= 90 + RoundingDegrees;
}

std::string Beyond_degrees_text(double longitude, double latitude) {
    std::array<char, 80> position{};
    std::snprintf(position.data(), position.size(), "%.10g, %.10g", longitude, latitude);
    return std::string(position.data()) +
           " is no longitude and latitude in degrees; projected coordinates cannot be read";
}

}  // namespace tidemark
