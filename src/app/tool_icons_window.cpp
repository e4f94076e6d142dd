#include "app/tool_icons_window.h"

#include <QTransform>

namespace tidemark {

namespace {

IconShapes Mirrored(const IconShapes& shapes) {
    const QTransform mirror(-1, 0, 0, 1, DrawnIconSize, 0);
    return {mirror.map(shapes.Strokes), mirror.map(shapes.Fills)};
}

// A magnifying glass with a minus sign.
IconShapes Glass() {
    IconShapes shapes;
    shapes.Strokes.addEllipse(QPointF(10, 10), 6.5, 6.5);
    shapes.Strokes.moveTo(15, 15);
    shapes.Strokes.lineTo(20.5, 20.5);
    shapes.Strokes.moveTo(7.25, 10);
    shapes.Strokes.lineTo(12.75, 10);
    return shapes;
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

IconShapes ZoomOutIcon() {
    return Glass();
}

IconShapes ZoomInIcon() {
    IconShapes shapes = Glass();
    shapes.Strokes.moveTo(10, 7.25);
    shapes.Strokes.lineTo(10, 12.75);
    return shapes;
}

// Four corners around a map.
IconShapes ZoomWholeIcon() {
    IconShapes shapes;
    shapes.Strokes.addPolygon(QPolygonF({{3.5, 8}, {3.5, 3.5}, {8, 3.5}}));
    shapes.Strokes.addPolygon(QPolygonF({{16, 3.5}, {20.5, 3.5}, {20.5, 8}}));
    shapes.Strokes.addPolygon(QPolygonF({{20.5, 16}, {20.5, 20.5}, {16, 20.5}}));
    shapes.Strokes.addPolygon(QPolygonF({{8, 20.5}, {3.5, 20.5}, {3.5, 16}}));
    shapes.Strokes.addRect(8, 8.5, 8, 7);
    return shapes;
}

}  // namespace tidemark
