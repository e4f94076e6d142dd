// The lines of longitude and latitude on the sample's map, its frame and its title.
#pragma once

#include <QPainter>

namespace tidemark {

// Lines every five minutes.
void Paint_graticule(QPainter& painter);

// The frame along the picture's edge, divided in minutes, with the degrees of the lines.
void Paint_frame(QPainter& painter);

// Title, scale bar and source, in the ocean.
void Paint_title(QPainter& painter);

}  // namespace tidemark
