#include "app/tool_icons_window.h"

#include <QTransform>

namespace tidemark {

namespace {

IconShapes Mirrored(const IconShapes& shapes) {
    const QTransform mirror(-1, 0, 0, 1, DrawnIconSize, 0);
    return {mirror.map(shapes.Strokes), mirror.map(shapes.Fills)};
}

}  // namespace

// An arrow that turns back to the left.
IconShapes UndoIcon() {
    IconShapes shapes;
    shapes.Strokes.moveTo(7, 9);
    shapes.Strokes.lineTo(14.5, 9);
    shapes.Strokes.arcTo(QRectF(9.5, 9, 10, 10), 90, -180);
    shapes.Strokes.lineTo(9, 19);
    shapes.Fills.addPolygon(QPolygonF({{9, 3.5}, {3, 9}, {9, 14.5}, {9, 3.5}}));
    return shapes;
}

IconShapes RedoIcon() {
    return Mirrored(UndoIcon());
}

}  // namespace tidemark
