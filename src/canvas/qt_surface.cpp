#include "canvas/qt_surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace tidemark {

namespace {

// Few enough that a batch lies together on the map, many enough that it is quick to paint.
constexpr int MostLinesInABatch = 64;

QColor Qt_colour(Colour colour) {
    return QColor(colour.Red, colour.Green, colour.Blue);
}

// Unlike intersects(), with a border in common, too.
bool Touch(const QRectF& a, const QRectF& b) {
    return a.right() >= b.left() && a.left() <= b.right() && a.bottom() >= b.top() &&
           a.top() <= b.bottom();
}

// Shrunk, to a 64th of a pixel: then no last bit of a product decides which pixels a line covers,
// and they are the same wherever it lies in a picture.
QPointF Zoomed(QPointF point, double zoom) {
    constexpr double parts = 64;
    if (zoom >= 1) return point * zoom;
    return {std::round(point.x() * zoom * parts) / parts,
            std::round(point.y() * zoom * parts) / parts};
}

QRectF Reached(const QLineF& line, double zoom, double reach) {
    return QRectF(line.p1() * zoom, line.p2() * zoom)
        .normalized()
        .adjusted(-reach, -reach, reach, reach);
}

// Makes the border of `area` on a side where `place` leads out of it so wide that it holds all of
// the place that is inside; of two sides, the one where that takes less.
void Keep_out(const QRectF& place, const QRectF& area, QMarginsF& borders) {
    const double enough = area.width() + area.height();
    const double left = place.left() < area.left() ? place.right() - area.left() : enough;
    const double top = place.top() < area.top() ? place.bottom() - area.top() : enough;
    const double right = place.right() > area.right() ? area.right() - place.left() : enough;
    const double bottom = place.bottom() > area.bottom() ? area.bottom() - place.top() : enough;
    const double least = std::min({left, top, right, bottom});
    if (least == enough) return;
    if (least == left)
        borders.setLeft(std::max(borders.left(), left));
    else if (least == top)
        borders.setTop(std::max(borders.top(), top));
    else if (least == right)
        borders.setRight(std::max(borders.right(), right));
    else
        borders.setBottom(std::max(borders.bottom(), bottom));
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

QRectF QtSurface::Place_of(const Batch& batch, double zoom) {
    return QRectF(QPointF(batch.Left, batch.Top) * zoom, QPointF(batch.Right, batch.Bottom) * zoom)
        .adjusted(-batch.Reach, -batch.Reach, batch.Reach, batch.Reach);
}

void QtSurface::Paint(QPainter& painter, const QRect& exposed, double zoom, const QRectF& spared) {
    announced_ = false;
    for (const Batch& batch : batches_) {
        const QRectF place = Place_of(batch, zoom);
        if (Touch(place, exposed) && !spared.contains(place)) Paint(painter, batch, zoom, spared);
    }
}

QRectF QtSurface::Without_borders(const QRectF& area, double zoom) const {
    QMarginsF borders;
    for (const Batch& batch : batches_) {
        const QRectF place = Place_of(batch, zoom);
        if (!Touch(place, area) || area.contains(place)) continue;
        for (int i = batch.First; i < batch.First + batch.Count; ++i) {
            const QLineF& line = lines_[static_cast<std::size_t>(i)];
            const QRectF reached = batch.IsCircle ? place : Reached(line, zoom, batch.Reach);
            if (Touch(reached, area)) Keep_out(reached, area, borders);
        }
    }
    return area.marginsRemoved(borders);
}

void QtSurface::Paint(QPainter& painter, const Batch& batch, double zoom,
                      const QRectF& spared) const {
    painter.setPen(batch.Pen);
    const QLineF* const first = &lines_[static_cast<std::size_t>(batch.First)];
    if (batch.IsCircle)
        return painter.drawEllipse(Zoomed(first->p1(), zoom), first->dx(), first->dx());
    std::array<QLineF, MostLinesInABatch> zoomed;
    int count = 0;
    for (const QLineF* line = first; line < first + batch.Count; ++line)
        if (!spared.contains(Reached(*line, zoom, batch.Reach)))
            zoomed[static_cast<std::size_t>(count++)] = {Zoomed(line->p1(), zoom),
                                                         Zoomed(line->p2(), zoom)};
    painter.drawLines(zoomed.data(), count);
}

}  // namespace tidemark
