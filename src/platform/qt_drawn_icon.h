// Icons that are drawn, not stored: sharp at every size, in the text colour of the palette in use.
#pragma once

#include <QIcon>
#include <QPainterPath>

namespace tidemark {

// The edge of the square that icons are designed in, the top-left corner at 0, 0.
inline constexpr int DrawnIconSize = 24;

// What an icon is made of: lines, and areas that are filled.
struct IconShapes {
    QPainterPath Strokes;
    QPainterPath Fills;
};

QIcon Drawn_icon(const IconShapes& shapes);

}  // namespace tidemark
