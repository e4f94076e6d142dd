#include "canvas/qt_marks.h"

#include <QPainterPath>

namespace tidemark {

namespace {

constexpr int TintOpacity = 56;  // of 255

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
    for (const MarkLine& line : marks.Lines) {
        painter.setPen(QPen(Qt_colour(line.Ink), line.Width));
        painter.drawLine(Zoomed(line.From, zoom), Zoomed(line.To, zoom));
    }
    for (const MarkNumber& number : marks.Numbers) Paint_number(painter, number, visible, zoom);
}

}  // namespace tidemark
