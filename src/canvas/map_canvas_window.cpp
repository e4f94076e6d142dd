#include "canvas/map_canvas_window.h"

#include <QMouseEvent>
#include <QPaintEvent>

#include "platform/qt_keys.h"

namespace tidemark {

MapCanvas::MapCanvas(QWidget* viewport)
    : QWidget(viewport), surface_([this] {
          shown_part_ = {};
          update();
      }) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    resize(0, 0);
}

void MapCanvas::Show_image(QImage image) {
    image_ = std::move(image);
    shown_part_ = {};
    resize(image_.size());
    update();
}

QRect MapCanvas::Visible_part() const {
    return rect() & QRect(-pos(), parentWidget()->size());
}

void MapCanvas::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect exposed = event->rect();
    const QRect visible = Visible_part();
    const int ratio = qRound(devicePixelRatioF());
    // A picture may be taken of more than the viewport shows, and where units are not whole pixels
    // nothing can be moved without blurring it.
    if (!visible.contains(exposed) || devicePixelRatioF() != ratio) {
        Paint_content(painter, exposed);
        return;
    }
    Bring_up_to_date(visible, ratio);
    const QRect within = exposed.translated(-visible.topLeft());
    painter.drawPixmap(exposed, shown_, QRect(within.topLeft() * ratio, within.size() * ratio));
}

// Makes shown_ hold the visible part, painting only what it does not hold yet.
void MapCanvas::Bring_up_to_date(const QRect& visible, int ratio) {
    if (shown_.size() == visible.size() * ratio) {
        const QPoint way = (shown_part_.topLeft() - visible.topLeft()) * ratio;
        if (!shown_part_.isEmpty()) shown_.scroll(way.x(), way.y(), shown_.rect());
    } else {
        shown_ = QPixmap(visible.size() * ratio);
        shown_part_ = {};
    }
    shown_.setDevicePixelRatio(ratio);
    const QRegion missing = QRegion(visible) - shown_part_;
    shown_part_ = visible;
    if (missing.isEmpty()) return;

    QPainter painter(&shown_);
    painter.translate(-visible.topLeft());
    for (const QRect& part : missing) Paint_content(painter, part);
}

void MapCanvas::Paint_content(QPainter& painter, const QRect& part) {
    painter.setClipRect(part);
    if (image_.hasAlphaChannel()) painter.fillRect(part, Qt::white);
    painter.drawImage(part.topLeft(), image_, part);
    surface_.Paint(painter, part);
}

void MapCanvas::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    Q_EMIT Mouse_moved(static_cast<float>(at.x()), static_cast<float>(at.y()));
}

void MapCanvas::mousePressEvent(QMouseEvent* event) {
    Q_EMIT Mouse_pressed(static_cast<int>(event->button()));
}

void MapCanvas::keyPressEvent(QKeyEvent* event) {
    const int key_code = Key_code(*event);
    // Held down, E would type into the dialog that it opens.
    if (key_code == KeyE && event->isAutoRepeat()) return;
    if (key_code)
        Q_EMIT Key_pressed(key_code);
    else
        QWidget::keyPressEvent(event);
}

}  // namespace tidemark
