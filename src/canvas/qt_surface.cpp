#include "canvas/qt_surface.h"

#include <algorithm>
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
    if (pen_is_new_ || batches_.back().Count == MostLinesInABatch) Start_batch(pen_, false);
    pen_is_new_ = false;
    Add({from.X, from.Y, to.X, to.Y}, pen_.widthF(), batches_.back());
}

void QtSurface::Circle(CanvasPoint centre, double radius, Colour colour) {
    if (!Is_finite(centre)) return;
    QPen pen = pen_;
    pen.setColor(Qt_colour(colour));
    Start_batch(pen, true);
    pen_is_new_ = true;
    Add({centre.X, centre.Y, centre.X + radius, centre.Y}, radius + pen.widthF(), batches_.back());
}

void QtSurface::Start_batch(const QPen& pen, bool is_circle) {
    constexpr double none = std::numeric_limits<double>::max();
    batches_.push_back(
        {pen, is_circle, static_cast<int>(lines_.size()), 0, none, none, -none, -none});
}

// `reach` is how far the pen's strokes come from the line's ends, at most.
void QtSurface::Add(const QLineF& line, double reach, Batch& batch) {
    lines_.push_back(line);
    ++batch.Count;
    batch.Left = std::min({batch.Left, line.x1() - reach, line.x2() - reach});
    batch.Top = std::min({batch.Top, line.y1() - reach, line.y2() - reach});
    batch.Right = std::max({batch.Right, line.x1() + reach, line.x2() + reach});
    batch.Bottom = std::max({batch.Bottom, line.y1() + reach, line.y2() + reach});
    Announce_change();
}

void QtSurface::Announce_change() {
    if (announced_) return;
    announced_ = true;
    changed_();
}

void QtSurface::Paint(QPainter& painter, const QRect& exposed) {
    announced_ = false;
    const QRectF area(exposed);
    for (const Batch& batch : batches_) {
        if (batch.Right < area.left() || batch.Left > area.right() || batch.Bottom < area.top() ||
            batch.Top > area.bottom())
            continue;
        painter.setPen(batch.Pen);
        const QLineF* const lines = &lines_[static_cast<std::size_t>(batch.First)];
        if (batch.IsCircle)
            painter.drawEllipse(lines->p1(), lines->dx(), lines->dx());
        else
            painter.drawLines(lines, batch.Count);
    }
}

}  // namespace tidemark
