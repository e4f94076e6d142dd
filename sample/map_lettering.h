// The names and road numbers on the sample's map.
#pragma once

#include <QPainter>

namespace tidemark {

// A line of text with a light edge that sets it off from what is behind it, its first letter's
// baseline at `start`.
void Paint_text(QPainter& painter, QPointF start, const QFont& font, const QString& text,
                const QColor& colour, const QColor& halo);

void Paint_place_names(QPainter& painter);
void Paint_road_numbers(QPainter& painter);

}  // namespace tidemark
