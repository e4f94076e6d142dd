#include "canvas/qt_surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tidemark {

namespace {

// Few enough that a batch lies together on the map, many enough that it is quick to paint.
constexpr int MostLinesInABatch = 64;

QColor Qt_colour(Colour colour) {
    return QColor(colour.Red, colour.Green, colour.Blue);
}

bool Is_finite(CanvasPoint point) {
    return std::isfinite(point.X) && std::isfinite(point.Y);
}

}  // namespace

QtSurface::QtSurface(std::function<void()> changed) : changed_(std::move(changed)) {}

void QtSurface::Erase() {
    lines_.clear();
    batches_.clear();
    pen_is_new_ = true;
    Announce_change();
}

void QtSurface::Pen_width(int pixels) {
    pen_.setWidth(pixels);
    pen_is_new_ = true;
}

void QtSurface::Pen_colour(Colour colour) {
    pen_.setColor(Qt_colour(colour));
    pen_is_new_ = true;
}

void QtSurface::Line(CanvasPoint from, CanvasPoint to) {
    if (!Is_finite(from) || !Is_finite(to)) return;
    if (pen_is_new_ || batches_.back().Count == MostLinesInABatch)
        Start_batch(pen_, false, pen_.widthF());
    pen_is_new_ = false;
    Add({from.X, from.Y, to.X, to.Y}, batches_.back());
}

void QtSurface::Circle(CanvasPoint centre, double radius, Colour colour) {
    if (!Is_finite(centre)) return;
    QPen pen = pen_;
    pen.setColor(Qt_colour(colour));
    Start_batch(pen, true, 2 * radius + pen.widthF());
    pen_is_new_ = true;
    Add({centre.X, centre.Y, centre.X + radius, centre.Y}, batches_.back());
}

void QtSurface::Start_batch(const QPen& pen, bool is_circle, double reach) {
    constexpr double none = std::numeric_limits<double>::max();
    batches_.push_back(
        {pen, is_circle, static_cast<int>(lines_.size()), 0, none, none, -none, -none, reach});
}

void QtSurface::Add(const QLineF& line, Batch& batch) {
    lines_.push_back(line);
    ++batch.Count;
    batch.Left = std::min({batch.Left, line.x1(), line.x2()});
    batch.Top = std::min({batch.Top, line.y1(), line.y2()});
    batch.Right = std::max({batch.Right, line.x1(), line.x2()});
    batch.Bottom = std::max({batch.Bottom, line.y1(), line.y2()});
    Announce_change();
}

void QtSurface::Announce_change() {
    if (announced_) return;
    announced_ = true;
    changed_();
}

void QtSurface::Paint(QPainter& painter, const QRect& exposed, double zoom) {
    announced_ = false;
    for (const Batch& batch : batches_) {
        const QRectF area =
            QRectF(exposed).adjusted(-batch.Reach, -batch.Reach, batch.Reach, batch.Reach);
        const bool may_touch =
            batch.Right * zoom >= area.left() && batch.Left * zoom <= area.right() &&
            batch.Bottom * zoom >= area.top() && batch.Top * zoom <= area.bottom();
        if (may_touch) Paint(painter, batch, zoom);
    }
}

void QtSurface::Paint(QPainter& painter, const Batch& batch, double zoom) const {
    painter.setPen(batch.Pen);
    const QLineF* const first = &lines_[static_cast<std::size_t>(batch.First)];
    if (batch.IsCircle) return painter.drawEllipse(first->p1() * zoom, first->dx(), first->dx());
    std::array<QLineF, MostLinesInABatch> zoomed;
    std::transform(first, first + batch.Count, zoomed.begin(), [zoom](const QLineF& line) {
        return QLineF(line.p1() * zoom, line.p2() * zoom);
    });
    painter.drawLines(zoomed.data(), batch.Count);
}

}  // namespace tidemark
