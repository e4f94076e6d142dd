#include "canvas/qt_marks.h"

#include <utility>

#include <QPainterPath>

namespace tidemark {

namespace {

constexpr int TintOpacity = 56;             // of 255
constexpr int CrossGap = 5, CrossArm = 20;  // pixels from its middle

QColor Qt_colour(Colour colour, int opacity = 255) {
    return QColor(colour.Red, colour.Green, colour.Blue, opacity);
}

QPointF Zoomed(CanvasPoint point, double zoom) {
    return QPointF(point.X, point.Y) * zoom;
}

// Dark on a light patch, which can be read on any map.
void Paint_number(QPainter& painter, const MarkNumber& number, const QRect& visible, double zoom) {
    const QString text = QString::number(number.Number);
    QRectF patch = painter.fontMetrics().boundingRect(text).adjusted(-3, -1, 3, 1);
    const double at = number.At * zoom;
    if (number.IsColumn)
        patch.moveTo(at - patch.width() / 2, visible.top());
    else
        patch.moveTo(visible.left(), at - patch.height() / 2);
    if (!QRectF(visible).contains(patch)) return;
    painter.fillRect(patch, QColor(255, 255, 255, 200));
    painter.setPen(Qt::black);
    painter.drawText(patch, Qt::AlignCenter, text);
}

}  // namespace

void Paint_marks(QPainter& painter, const MapMarks& marks, const QRect& visible, double zoom) {
    painter.setPen(Qt::NoPen);
    for (const MarkArea& area : marks.Areas) {
        QPolygonF outline;
        for (const CanvasPoint& point : area.Outline) outline << Zoomed(point, zoom);
        if (!outline.boundingRect().intersects(visible)) continue;
        painter.setBrush(Qt_colour(area.Ink, TintOpacity));
        painter.drawPolygon(outline);
    }
    Paint_lines(painter, marks.Lines, zoom);
    for (const MarkNumber& number : marks.Numbers) Paint_number(painter, number, visible, zoom);
}

void Paint_lines(QPainter& painter, const std::vector<MarkLine>& lines, double zoom) {
    for (const MarkLine& line : lines) {
        painter.setPen(QPen(Qt_colour(line.Ink), line.Width));
        painter.drawLine(Zoomed(line.From, zoom), Zoomed(line.To, zoom));
    }
}

void Paint_cross(QPainter& painter, CanvasPoint place, double zoom) {
    const QPointF middle = Zoomed(place, zoom);
    for (const auto& [ink, width] : {std::pair{Qt::black, 6}, {Qt::white, 3}}) {
        painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::FlatCap));
        const double longer = width > 3 ? 1.5 : 0;  // dark at the ends, too
        for (const QPointF way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
            painter.drawLine(middle + way * (CrossGap - longer),
                             middle + way * (CrossArm + longer));
    }
}

QRect Reach_of(const MarkLine& line, double zoom) {
    const double reach = line.Width + 1;
    return QRectF(Zoomed(line.From, zoom), Zoomed(line.To, zoom))
        .normalized()
        .adjusted(-reach, -reach, reach, reach)
        .toAlignedRect();
}

QRect Reach_of_cross(CanvasPoint place, double zoom) {
    constexpr int reach = CrossArm + 4;
    return QRectF(Zoomed(place, zoom), QSizeF())
        .adjusted(-reach, -reach, reach, reach)
        .toAlignedRect();
}

}  // namespace tidemark
