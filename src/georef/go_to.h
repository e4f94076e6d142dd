// The place that the user wants to be shown, entered in one of three ways.
#pragma once

#include <optional>
#include <string>

#include "georef/geo_position.h"

namespace tidemark {

// One place as LOD13 column and row, as VTP units and as latitude and longitude.
struct GoToTexts {
    std::string Column, Row;
    std::string VTPX, VTPY;
    std::string Latitude, Longitude;
};

enum class GoToWay { Cell, VTP, Degrees };

// What all fields read for a place.
GoToTexts Texts_of_place(const Project& project, VTPPlace place);

// The place that the two fields of one way tell: the middle of the cell; the unit; the nearest
// unit. Nothing when they hold no such thing.
std::optional<VTPPlace> Place_told(const Project& project, const GoToTexts& texts, GoToWay way);

// Why the map cannot show a place, in words; empty when it can.
std::string Not_on_map(const Project& project, const std::optional<VTPPlace>& place);

}  // namespace tidemark
