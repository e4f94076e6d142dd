// What the sample shows besides the coast of the mainland: islands, roads, streams, and what kind
// of coast is where. Drawn by hand, good to a few hundred metres.
#pragma once

#include <span>

#include "geography.h"
#include "model/drawing_modes.h"

namespace tidemark {

// The drawing mode of the coast at a point.
int Coast_mode(GeoPoint point);

// VTP units, of every coastline.
inline constexpr int CoastWidth = 40;

// Closed lines, the first point repeated at the end; the land is on the right, as it is on the
// right of the mainland's coastlines.
const std::vector<GeoLine>& Islands();

// A road, a river or a stream.
struct DrawnLine {
    int Mode;
    int Width;  // VTP units, about 5 metres each
    GeoLine Line;
};

const std::vector<DrawnLine>& Roads_and_streams();

// A click that builds a polygon.
struct PolygonClick {
    int Type;  // WaterPolygon or LandPolygon
    GeoPoint Where;
};

// Around the Golden Gate; each is surrounded by the polygon that it builds.
std::span<const PolygonClick> Polygon_clicks();

}  // namespace tidemark
