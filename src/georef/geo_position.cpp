#include "georef/geo_position.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "georef/cell_calculator.h"

namespace tidemark {

namespace {

constexpr double CellsAcross = 32;
constexpr double LOD8SizeVTP = CellsAcross * CellSizeVTP;
constexpr double EarthRadius = 6371008.8;  // metres, the mean of the ellipsoid's three axes
constexpr double RadiansToADegree = std::numbers::pi / 180;

template <class... Value>
std::string Formatted(const char* form, Value... value) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), form, value...);
    return text.data();
}

// Rounded before it is cut into parts, so that no part reads 60.
std::string Minutes_text(double degrees, char positive, char negative) {
    const double hundredths = std::round(std::fabs(degrees) * 6000);
    const double whole = std::floor(hundredths / 6000);
    return Formatted("%.0f\u00B0 %05.2f' %c", whole, (hundredths - whole * 6000) / 100,
                     degrees < 0 ? negative : positive);
}

std::string Seconds_text(double degrees, char positive, char negative) {
    const double tenths = std::round(std::fabs(degrees) * 36000);
    const double whole = std::floor(tenths / 36000);
    const double minutes = std::floor((tenths - whole * 36000) / 600);
    return Formatted("%.0f:%02.0f:%04.1f %c", whole, minutes,
                     (tenths - whole * 36000 - minutes * 600) / 10,
                     degrees < 0 ? negative : positive);
}

Int16 Unit_at(double unit) {
    return static_cast<int>(
        std::round(std::clamp(unit, double{Int16::Lowest}, double{Int16::Highest})));
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

GeoPosition Position_of(const Project& project, VTPPlace place) {
    return {90 - (project.BGLOD8Y + (place.Y - FirstVTP) / LOD8SizeVTP) * LOD8DegreesSouth,
            (project.BGLOD8X + (place.X - FirstVTP) / LOD8SizeVTP) * LOD8DegreesEast - 180};
}

VTPPlace Place_at(const Project& project, GeoPosition position) {
    const double column = (position.Longitude + 180) / LOD8DegreesEast - project.BGLOD8X;
    const double row = (90 - position.Latitude) / LOD8DegreesSouth - project.BGLOD8Y;
    return {Unit_at(FirstVTP + column * LOD8SizeVTP), Unit_at(FirstVTP + row * LOD8SizeVTP)};
}

std::string Position_text(GeoPosition position) {
    return Minutes_text(position.Latitude, 'N', 'S') + "  " +
           Minutes_text(position.Longitude, 'E', 'W');
}

std::string Latitude_text(double degrees) {
    return Seconds_text(degrees, 'N', 'S');
}

std::string Longitude_text(double degrees) {
    return Seconds_text(degrees, 'E', 'W');
}

std::optional<double> Degrees_from(std::string_view text, std::string_view letters, double most) {
    text = Trimmed(text);
    double sign = 1;
    const auto letter_at = text.find_first_of(letters);
    if (letter_at != text.npos) {
        if (letter_at != 0 && letter_at + 1 != text.size()) return std::nullopt;
        sign = text[letter_at] == letters[1] ? -1 : 1;
        text = Trimmed(letter_at == 0 ? text.substr(1) : text.substr(0, letter_at));
    }
    const auto degrees = Angle_degrees(text, most);
    return degrees ? std::optional(sign * *degrees) : std::nullopt;
}

Leg Leg_between(GeoPosition from, GeoPosition to) {
    const double north = from.Latitude * RadiansToADegree;
    const double to_north = to.Latitude * RadiansToADegree;
    const double east = (to.Longitude - from.Longitude) * RadiansToADegree;
    const double half_chord =
        std::pow(std::sin((to_north - north) / 2), 2) +
        std::cos(north) * std::cos(to_north) * std::pow(std::sin(east / 2), 2);
    const double bearing = std::atan2(std::sin(east) * std::cos(to_north),
                                      std::cos(north) * std::sin(to_north) -
                                          std::sin(north) * std::cos(to_north) * std::cos(east)) /
                           RadiansToADegree;
    return {2 * EarthRadius * std::asin(std::sqrt(half_chord)), std::fmod(bearing + 360, 360)};
}

std::string Leg_text(const Leg& leg) {
    const int bearing = static_cast<int>(std::round(leg.Bearing)) % 360;
    const bool is_near = std::round(leg.Metres) < 1000;
    return (is_near ? Formatted("%.0f m", leg.Metres) : Formatted("%.2f km", leg.Metres / 1000)) +
           Formatted("  %03d\u00B0", bearing);
}

}  // namespace tidemark
