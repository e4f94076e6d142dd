// The canvas hears the mouse and the keys, and the cross that stands for the pointer.
#include <optional>

#include <QMouseEvent>

#include "canvas/map_canvas_window.h"
#include "canvas/qt_marks.h"
#include "platform/qt_keys.h"

namespace tidemark {

void MapCanvas::Show_cross(std::optional<CanvasPoint> place) {
    Update_around_cross();
    cross_ = place;
    Update_around_cross();
    if (cross_)
        Tell(*cross_);
    else
        Tell_pointer();
}

void MapCanvas::Press_at_cross(Qt::MouseButton button) {
    if (!cross_) return;
    Tell(*cross_);
    Q_EMIT Mouse_pressed(static_cast<int>(button));
}

void MapCanvas::Tell(CanvasPoint place) {
    Q_EMIT Mouse_moved(static_cast<float>(place.X), static_cast<float>(place.Y));
}

void MapCanvas::Tell_pointer() {
    if (pointer_) Tell(scale_.To_canvas({pointer_->x(), pointer_->y()}));
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = event->position() + pos();
    if (pan_from_) {
        const QPoint corner = (*pan_from_ - *pointer_).toPoint();
        Q_EMIT Panned(corner.x(), corner.y());
    }
    Tell_pointer();
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
    const bool pans = event->button() == Qt::MiddleButton ||
                      (is_space_held_ && event->button() == Qt::LeftButton);
    if (pans) {
        pan_from_ = event->position();
        return Show_hand();
    }
    // The cross may have been moved since the mouse was.
    if (cross_) mouseMoveEvent(event);
    Q_EMIT Mouse_pressed(static_cast<int>(event->button()));
}

void MapCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) return;
    pan_from_.reset();
    Show_hand();
}

void MapCanvas::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space) {
        is_space_held_ = true;
        return Show_hand();
    }
    const int key_code = Key_code(*event);
    // Held down, E would type into the dialog that it opens.
    if (key_code == KeyE && event->isAutoRepeat()) return;
    if (key_code)
        Q_EMIT Key_pressed(key_code);
    else
        QWidget::keyPressEvent(event);
}

void MapCanvas::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) return QWidget::keyReleaseEvent(event);
    if (event->isAutoRepeat()) return;
    is_space_held_ = false;
    Show_hand();
}

void MapCanvas::focusOutEvent(QFocusEvent* event) {
    is_space_held_ = false;
    Show_hand();
    QWidget::focusOutEvent(event);
}

void MapCanvas::leaveEvent(QEvent* event) {
    pointer_.reset();
    QWidget::leaveEvent(event);
}

void MapCanvas::Show_hand() {
    if (pan_from_)
        setCursor(Qt::ClosedHandCursor);
    else if (is_space_held_)
        setCursor(Qt::OpenHandCursor);
    else
        unsetCursor();
}

}  // namespace tidemark
