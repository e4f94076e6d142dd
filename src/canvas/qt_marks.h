// The marks on the screen, painted over the image and the drawings.
#pragma once

#include <QPainter>

#include "canvas/map_marks.h"

namespace tidemark {

// Paints in the units of the zoomed map: a canvas pixel is `zoom` of the painter's. The numbers of
// columns and rows stand along the top and the left border of `visible`.
void Paint_marks(QPainter& painter, const MapMarks& marks, const QRect& visible, double zoom);

}  // namespace tidemark
