// What the well-known text of a coordinate system, which lies beside a shapefile as .prj, says of
// its coordinates.
#pragma once

#include <string>
#include <string_view>

namespace tidemark {

// Names are as the text has them, with their quotation marks; empty where there is nothing to say.
struct CoordinateSystem {
    bool IsProjected = false;   // its coordinates are no degrees
    std::string Projection;     // the name of it
    std::string PrimeMeridian;  // from which longitudes count, when that is not Greenwich
    std::string OtherDatum;     // one that does not agree with WGS 84 within some metres
};

// Of a text that is no well-known text nothing is said.
CoordinateSystem Coordinate_system(std::string_view text);

}  // namespace tidemark
