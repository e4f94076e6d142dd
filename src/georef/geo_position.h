// Latitude and longitude of places on the map, and the way between two of them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/project.h"

namespace tidemark {

// Degrees, north and east positive.
struct GeoPosition {
    double Latitude, Longitude;
};

// A place in VTP units of the project's LOD8 cell; it need not lie in it.
struct VTPPlace {
    Int16 X, Y;
    bool operator==(const VTPPlace&) const = default;
};

GeoPosition Position_of(const Project& project, VTPPlace place);

// The nearest VTP unit, or the nearest to it that fits 16 bits.
VTPPlace Place_at(const Project& project, GeoPosition position);

// Degrees and minutes: "37° 49.17' N  122° 28.70' W".
std::string Position_text(GeoPosition position);

// Degrees, minutes and seconds with the hemisphere's letter behind, as Degrees_from reads them:
// "37:49:10.2 N".
std::string Latitude_text(double degrees);
std::string Longitude_text(double degrees);

// The value of "degrees:minutes:seconds", as the cell calculator reads it, with one of the two
// letters before or behind it; without a letter it is positive. `letters` are that of positive and
// that of negative values. Nothing when the text has another form or is beyond `most` degrees.
std::optional<double> Degrees_from(std::string_view text, std::string_view letters, double most);

// From one position to another along the shortest way on a sphere of the Earth's mean radius
// (6371.0088 km).
struct Leg {
    double Metres;
    double Bearing;  // degrees at the start, clockwise from north, 0 to below 360
};

Leg Leg_between(GeoPosition from, GeoPosition to);

// "850 m  045°" or "12.3 km  270°"
std::string Leg_text(const Leg& leg);

}  // namespace tidemark
