// The land as one shape, from coastlines that run from one edge of the map to another.
#pragma once

#include <QPainterPath>

#include "geography.h"

namespace tidemark {

// Where a point is on the picture, in pixels.
QPointF On_picture(GeoPoint point);

QPolygonF On_picture(const GeoLine& line);

// All land. A coastline has the land on its right: one that ends on the map's edge goes on along
// that edge, clockwise, to the start of the next. The islands are closed lines.
QPainterPath Land_shape(const std::vector<GeoLine>& coast, const std::vector<GeoLine>& islands);

}  // namespace tidemark
