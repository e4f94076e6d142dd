// How the view is zoomed and panned.
#include <utility>

#include <QCoreApplication>
#include <QNativeGestureEvent>
#include <QWheelEvent>

#include "canvas/map_view_window.h"

namespace tidemark {

ViewSize MapView::Viewport_size() const {
    return {qMax(width() - Bar_thickness(), 0), qMax(height() - Bar_thickness(), 0)};
}

ScreenPoint MapView::Middle() const {
    const ViewSize viewport = Viewport_size();
    return {viewport.Width / 2.0, viewport.Height / 2.0};
}

void MapView::Zoom_in() {
    Zoom_to(Next_level(scale_.Zoom()), Middle());
}

void MapView::Zoom_out() {
    Zoom_to(Previous_level(scale_.Zoom()), Middle());
}

void MapView::Zoom_reset() {
    Zoom_to(1, Middle());
}

void MapView::Zoom_whole() {
    const ViewSize viewport = Viewport_size();
    if (!Has_map() || viewport.Width < 1 || viewport.Height < 1) return;
    Zoom_to(Zoom_of_whole({Canvas_size().width(), Canvas_size().height()}, viewport), Middle());
}

void MapView::Zoom_to(double zoom, ScreenPoint fixed) {
    if (!Has_map() || zoom == scale_.Zoom()) return;
    MapScale scale = scale_;
    scale.Zoom_to(zoom, fixed);
    Lay_out(scale);
    Turn_bars();
    middle_ = scale_.To_canvas(Middle());
    Q_EMIT Zoom_changed();
}

std::pair<CanvasPoint, CanvasPoint> MapView::Canvas_in_view() const {
    const auto [width, height] = Viewport_size();
    return {scale_.To_canvas({0, 0}), scale_.To_canvas({double(width), double(height)})};
}

void MapView::Center_on(CanvasPoint pixel) {
    MapScale scale = scale_;
    scale.Put(pixel, Middle());
    Pan_to(scale.Left(), scale.Top());
}

void MapView::Reveal(CanvasPoint pixel) {
    constexpr int around = 24;  // pixels
    MapScale scale = scale_;
    scale.Reveal(pixel, Viewport_size(), around);
    if (scale != scale_) Pan_to(scale.Left(), scale.Top());
}

ShownMap MapView::Shown() const {
    return {scale_,
            {Canvas_size().width(), Canvas_size().height()},
            Viewport_size(),
            devicePixelRatioF()};
}

bool MapView::Is_in_view(CanvasPoint top_left, CanvasPoint bottom_right) const {
    const auto [from, to] = Canvas_in_view();
    return from.X <= top_left.X && from.Y <= top_left.Y && bottom_right.X <= to.X &&
           bottom_right.Y <= to.Y;
}

void MapView::Pan_to(int left, int top) {
    Move_to(qBound(0, left, HScroll1_->maximum()), qBound(0, top, VScroll1_->maximum()));
    Turn_bars();
}

// The wheel turned over the map turns the bar of its direction; with Shift, the other one.
void MapView::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() & Qt::ControlModifier) return Zoom_by_wheel(*event);
    const QPoint turned = event->angleDelta();
    const bool across = qAbs(turned.x()) > qAbs(turned.y());
    if (across || !(event->modifiers() & Qt::ShiftModifier)) {
        QCoreApplication::sendEvent(across ? HScroll1_ : VScroll1_, event);
        return;
    }
    QWheelEvent sideways(event->position(), event->globalPosition(),
                         event->pixelDelta().transposed(), turned.transposed(), event->buttons(),
                         {}, event->phase(), event->inverted());
    QCoreApplication::sendEvent(HScroll1_, &sideways);
}

void MapView::Zoom_by_wheel(const QWheelEvent& event) {
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    const ScreenPoint fixed{event.position().x(), event.position().y()};
    for (wheel_turned_ += event.angleDelta().y(); wheel_turned_ >= notch; wheel_turned_ -= notch)
        Zoom_to(Next_level(scale_.Zoom()), fixed);
    for (; wheel_turned_ <= -notch; wheel_turned_ += notch)
        Zoom_to(Previous_level(scale_.Zoom()), fixed);
}

bool MapView::event(QEvent* event) {
    if (event->type() != QEvent::NativeGesture) return QWidget::event(event);
    Zoom_by_fingers(*static_cast<QNativeGestureEvent*>(event));
    return true;
}

void MapView::Zoom_by_fingers(const QNativeGestureEvent& event) {
    if (event.gestureType() == Qt::BeginNativeGesture) pinched_to_ = scale_.Zoom();
    if (event.gestureType() != Qt::ZoomNativeGesture) return;
    pinched_to_ = qBound(SmallestLevel, pinched_to_ * (1 + event.value()), LargestLevel);
    Zoom_to(Nearest_level(pinched_to_), {event.position().x(), event.position().y()});
}

}  // namespace tidemark
