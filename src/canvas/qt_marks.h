// The marks on the screen, painted over the image and the drawings.
#pragma once

#include <QPainter>

#include "canvas/map_marks.h"

namespace tidemark {

// Paints in the units of the zoomed map: a canvas pixel is `zoom` of the painter's. The numbers of
// columns and rows stand along the top and the left border of `visible`.
void Paint_marks(QPainter& painter, const MapMarks& marks, const QRect& visible, double zoom);
void Paint_lines(QPainter& painter, const std::vector<MarkLine>& lines, double zoom);

// The cross of the keys: light within dark, of the same size at every zoom, open in the middle.
void Paint_cross(QPainter& painter, CanvasPoint place, double zoom);

// Where they paint, in the painter's units.
QRect Reach_of(const MarkLine& line, double zoom);
QRect Reach_of_cross(CanvasPoint place, double zoom);

}  // namespace tidemark
