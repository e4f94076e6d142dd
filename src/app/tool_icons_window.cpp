#include "app/tool_icons_window.h"

#include <utility>

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

// A grid with one cell filled.
IconShapes MarksIcon() {
    IconShapes shapes;
    for (const double at : {4.0, 12.0, 20.0}) {
        shapes.Strokes.moveTo(at, 4);
        shapes.Strokes.lineTo(at, 20);
        shapes.Strokes.moveTo(4, at);
        shapes.Strokes.lineTo(20, at);
    }
    shapes.Fills.addRect(12, 4, 8, 8);
    return shapes;
}

// A pin that stands on a place.
IconShapes GoToIcon() {
    IconShapes shapes;
    shapes.Strokes.addEllipse(QPointF(12, 9), 5, 5);
    shapes.Strokes.moveTo(8, 12.5);
    shapes.Strokes.lineTo(12, 21);
    shapes.Strokes.lineTo(16, 12.5);
    shapes.Fills.addEllipse(QPointF(12, 9), 1.5, 1.5);
    return shapes;
}

// A coast with what lies below it filled.
IconShapes FillCoastIcon() {
    IconShapes shapes;
    shapes.Strokes.addRect(3.5, 3.5, 17, 17);
    shapes.Fills.moveTo(3.5, 15);
    shapes.Fills.cubicTo(9, 6, 14, 18, 20.5, 9);
    shapes.Fills.lineTo(20.5, 20.5);
    shapes.Fills.lineTo(3.5, 20.5);
    shapes.Fills.closeSubpath();
    return shapes;
}

// A coast that is struck out.
IconShapes ClearCoastIcon() {
    IconShapes shapes;
    shapes.Strokes.addRect(3.5, 3.5, 17, 17);
    shapes.Strokes.moveTo(3.5, 15);
    shapes.Strokes.cubicTo(9, 6, 14, 18, 20.5, 9);
    shapes.Strokes.moveTo(8, 7);
    shapes.Strokes.lineTo(16, 17);
    shapes.Strokes.moveTo(16, 7);
    shapes.Strokes.lineTo(8, 17);
    return shapes;
}

// An arrow that brings a coast down into a tray.
IconShapes ImportCoastIcon() {
    IconShapes shapes;
    shapes.Strokes.addPolygon(QPolygonF({{3.5, 14}, {3.5, 20.5}, {20.5, 20.5}, {20.5, 14}}));
    shapes.Strokes.moveTo(12, 10);
    shapes.Strokes.cubicTo(15, 8, 9, 5, 12, 2.5);
    shapes.Fills.addPolygon(QPolygonF({{7, 10}, {17, 10}, {12, 16.5}, {7, 10}}));
    return shapes;
}

// A place in the middle of a frame.
IconShapes ShowChosenIcon() {
    IconShapes shapes;
    shapes.Strokes.addEllipse(QPointF(12, 12), 6, 6);
    for (const auto& [from, to] : {std::pair{QPointF(12, 2), QPointF(12, 7)},
                                   {QPointF(12, 17), QPointF(12, 22)},
                                   {QPointF(2, 12), QPointF(7, 12)},
                                   {QPointF(17, 12), QPointF(22, 12)}}) {
        shapes.Strokes.moveTo(from);
        shapes.Strokes.lineTo(to);
    }
    shapes.Fills.addEllipse(QPointF(12, 12), 2, 2);
    return shapes;
}

// A cross with the heads of four arrows.
IconShapes DrawByKeysIcon() {
    IconShapes shapes;
    for (int quarter = 0; quarter < 4; ++quarter) {
        QTransform turn;
        turn.translate(DrawnIconSize / 2.0, DrawnIconSize / 2.0);
        turn.rotate(90 * quarter);
        shapes.Strokes.moveTo(turn.map(QPointF(0, -2.5)));
        shapes.Strokes.lineTo(turn.map(QPointF(0, -6)));
        shapes.Fills.addPolygon(turn.map(QPolygonF({{0, -11}, {-4, -6}, {4, -6}, {0, -11}})));
    }
    return shapes;
}

// A tick over the waves of a coast.
IconShapes CoastCheckIcon() {
    IconShapes shapes;
    shapes.Strokes.addPolygon(QPolygonF({{6.5, 8}, {10.5, 12}, {18.5, 3}}));
    shapes.Strokes.moveTo(2.5, 18.5);
    for (const double x : {2.5, 12.0})
        shapes.Strokes.cubicTo(x + 3, 13.5, x + 6, 23, x + 9.5, 18.5);
    return shapes;
}

}  // namespace tidemark
