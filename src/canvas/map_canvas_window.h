// The canvas: the image at its own size with the drawings over it, where mouse and keys arrive.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include "canvas/qt_surface.h"

namespace tidemark {

// As large as its image; one pixel of the image is one unit of the widget. It lies inside a smaller
// parent, the viewport, which shows a part of it.
class MapCanvas : public QWidget {
    Q_OBJECT

  public:
    explicit MapCanvas(QWidget* viewport);

    // Takes the image's size; the drawings stay.
    void Show_image(QImage image);

    DrawingSurface& Surface() { return surface_; }

  Q_SIGNALS:
    void Mouse_moved(float x, float y);  // canvas pixels
    void Mouse_pressed(int button);      // 1 left, 2 right, 4 middle
    void Key_pressed(int key_code);      // as in qt_keys.h

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QRect Visible_part() const;
    void Bring_up_to_date(const QRect& visible, int ratio);
    void Paint_content(QPainter& painter, const QRect& part);

    QImage image_;
    QtSurface surface_;

    // What the viewport shows, as pixels, so that uncovering it paints no line again and scrolling
    // only those that come into view.
    QPixmap shown_;
    QRect shown_part_;  // the part of the canvas that shown_ holds; empty when it is out of date
};

}  // namespace tidemark
