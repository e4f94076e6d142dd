#include "canvas/map_canvas_window.h"

#include <cmath>

#include <QMouseEvent>
#include <QPaintEvent>

#include "canvas/qt_marks.h"
#include "platform/qt_keys.h"

namespace tidemark {

namespace {

QSize Screen_pixels(QSize size, double ratio) {
    return {static_cast<int>(std::ceil(size.width() * ratio)),
            static_cast<int>(std::ceil(size.height() * ratio))};
}

PixelGrid Grid_of(QPoint corner, double zoom, double ratio) {
    return {zoom * ratio, corner.x() * ratio, corner.y() * ratio};
}

// How far what was painted on one grid has to be moved to lie on the other; none when it cannot.
std::optional<QPoint> Way_between(const std::optional<PixelGrid>& from, const PixelGrid& to) {
    if (!from || from->Factor != to.Factor) return std::nullopt;
    const QPointF way(from->Left - to.Left, from->Top - to.Top);
    return way == way.toPoint() ? std::optional(way.toPoint()) : std::nullopt;
}

}  // namespace

MapCanvas::MapCanvas(QWidget* viewport)
    : QWidget(viewport), surface_([this] {
          is_shown_outdated_ = true;
          update();
      }) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    resize(0, 0);
}

void MapCanvas::Take_image(QImage image) {
    picture_.Take(std::move(image));
    backdrop_grid_.reset();
    Show_at(scale_);
}

void MapCanvas::Show_at(const MapScale& scale) {
    const bool is_zoomed = scale.Zoom() != scale_.Zoom();
    scale_ = scale;
    is_shown_outdated_ = true;
    const ViewSize size = scale.Shown_size({Image_size().width(), Image_size().height()});
    // All of it is painted anew. Of an opaque widget Qt would first move what is on the screen.
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setGeometry(-scale.Left(), -scale.Top(), size.Width, size.Height);
    setAttribute(Qt::WA_OpaquePaintEvent);
    update();
    // The pointer is now over another place, without having moved.
    if (is_zoomed) Tell_pointer();
}

QRect MapCanvas::Visible_part() const {
    return rect() & QRect(-pos(), parentWidget()->size());
}

void MapCanvas::paintEvent(QPaintEvent* event) {
    const QRect visible = Visible_part();
    if (visible.contains(event->rect())) {
        Bring_up_to_date(visible);
        QPainter painter(this);
        painter.drawPixmap(visible.topLeft(), shown_);
        Paint_marks(painter, marks_, visible, scale_.Zoom());
        for (const MapMarks* const frame : {&finding_frame_, &pointer_frame_})
            Paint_marks(painter, *frame, visible, scale_.Zoom());
        return;
    }
    // A picture may be taken of more than the viewport shows.
    const QRect part = event->rect();
    const double ratio = devicePixelRatioF();
    QImage image = picture_.Pixels(QRect({0, 0}, Screen_pixels(part.size(), ratio)),
                                   Grid_of(part.topLeft(), scale_.Zoom(), ratio));
    image.setDevicePixelRatio(ratio);
    QPainter painter(this);
    painter.drawImage(part.topLeft(), image);
    painter.setClipRect(part);
    surface_.Paint(painter, part, scale_.Zoom());
}

// Makes backdrop_ hold the visible part of the image, computing only what it does not hold yet.
void MapCanvas::Bring_image_up_to_date(const QRect& visible) {
    const QSize size = Screen_pixels(visible.size(), devicePixelRatioF());
    const PixelGrid grid = Grid_of(visible.topLeft(), scale_.Zoom(), devicePixelRatioF());
    QRegion missing(QRect({0, 0}, size));
    if (backdrop_.size() != size) {
        backdrop_ = QPixmap(size);
    } else if (const auto way = Way_between(backdrop_grid_, grid)) {
        backdrop_.scroll(way->x(), way->y(), backdrop_.rect());
        missing -= backdrop_.rect().translated(*way);
    }
    backdrop_grid_ = grid;
    if (missing.isEmpty()) return;
    QPainter painter(&backdrop_);
    for (const QRect& part : missing)
        painter.drawImage(part.topLeft(), picture_.Pixels(part, grid));
}

void MapCanvas::Bring_up_to_date(const QRect& visible) {
    const double ratio = devicePixelRatioF();
    if (!is_shown_outdated_ && shown_.size() == Screen_pixels(visible.size(), ratio)) return;
    is_shown_outdated_ = false;
    Bring_image_up_to_date(visible);
    if (shown_.size() != backdrop_.size()) shown_ = QPixmap(backdrop_.size());
    shown_.setDevicePixelRatio(1);
    QPainter(&shown_).drawPixmap(0, 0, backdrop_);
    shown_.setDevicePixelRatio(ratio);
    QPainter painter(&shown_);
    painter.translate(-visible.topLeft());
    surface_.Paint(painter, visible, scale_.Zoom());
}

void MapCanvas::Show_marks(MapMarks marks) {
    marks_ = std::move(marks);
    update();
}

void MapCanvas::Show_pointer_frame(std::vector<MarkLine> frame) {
    Show_frame(pointer_frame_, std::move(frame));
}

void MapCanvas::Show_finding_frame(std::vector<MarkLine> frame) {
    Show_frame(finding_frame_, std::move(frame));
}

void MapCanvas::Show_frame(MapMarks& shown, std::vector<MarkLine> frame) {
    if (frame == shown.Lines) return;
    shown.Lines = std::move(frame);
    update();
}

void MapCanvas::Tell_pointer() {
    if (!pointer_) return;
    const CanvasPoint at = scale_.To_canvas({pointer_->x(), pointer_->y()});
    Q_EMIT Mouse_moved(static_cast<float>(at.X), static_cast<float>(at.Y));
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
