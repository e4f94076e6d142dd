// The names on the sample's map.
#pragma once

#include <span>
#include <string_view>

#include "geography.h"

namespace tidemark {

enum class PlaceKind { City, Town, Region, Park, Landmark, Peak, Ocean, Bay, Strait, Cove, Beyond };

// Where a name stands, seen from its place.
enum class Side { Centre, Left, Right, Above, Below };

struct PlaceName {
    PlaceKind Kind;
    std::string_view Name;  // UTF-8; a line feed divides lines
    GeoPoint Where;
    Side Stands;
};

std::span<const PlaceName> PlaceNames();

// A road's number in its shield.
struct RoadNumber {
    std::string_view Number;
    GeoPoint Where;
};

std::span<const RoadNumber> RoadNumbers();

}  // namespace tidemark
