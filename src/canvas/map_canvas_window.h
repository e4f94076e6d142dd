// The canvas: the image with the drawings over it, where mouse and keys arrive.
#pragma once

#include <optional>

#include <QPixmap>
#include <QWidget>

#include "canvas/map_marks.h"
#include "canvas/map_scale.h"
#include "canvas/qt_map_picture.h"
#include "canvas/qt_surface.h"

namespace tidemark {

// As large as its image is shown. It lies inside a smaller parent, the viewport, which shows a part
// of it.
//
// Lines that lead out of a picture are not cut off at the same fraction of a pixel in every
// picture. So of what is scrolled only that is moved which no such line touches; the rest is
// painted again, and all of it always looks as it would after a redraw.
class MapCanvas : public QWidget {
    Q_OBJECT

  public:
    explicit MapCanvas(QWidget* viewport);

    // Takes the image; the drawings stay.
    void Take_image(QImage image);
    QSize Image_size() const { return picture_.Size(); }
    // Shows the image and the drawings at this zoom and scroll position.
    void Show_at(const MapScale& scale);

    DrawingSurface& Surface() { return surface_; }

    // The layer above image and drawings; it does not touch what they look like.
    void Show_marks(MapMarks marks);
    void Show_pointer_frame(std::vector<MarkLine> frame);
    void Show_finding_frame(std::vector<MarkLine> frame);

    // The cross that stands for the pointer while the keys draw, at a canvas pixel. Showing it
    // emits Mouse_moved as if the mouse were there, and Press_at_cross presses it. Without it the
    // pointer counts again.
    void Show_cross(std::optional<CanvasPoint> place);
    std::optional<CanvasPoint> Cross() const { return cross_; }
    void Press_at_cross(Qt::MouseButton button);

  Q_SIGNALS:
    void Mouse_moved(float x, float y);  // canvas pixels
    void Mouse_pressed(int button);      // 1 left, 2 right
    void Key_pressed(int key_code);      // as in qt_keys.h
    void Panned(int left, int top);      // the scroll position that the mouse asks for

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    QRect Visible_part() const;
    void Bring_image_up_to_date(const PixelGrid& grid, QSize size);
    QRect Move_shown(const PixelGrid& grid, QSize size);
    void Bring_up_to_date(const QRect& visible);
    const QPixmap& Marked(const QRect& visible);
    void Update_around(const std::vector<MarkLine>& lines);
    void Show_frame(std::vector<MarkLine>& shown, std::vector<MarkLine> frame);

    // In map_canvas_input_window.cpp, with the handlers of the mouse and the keys.
    void Update_around_cross();
    void Tell(CanvasPoint place);
    void Tell_pointer();
    void Show_hand();

    MapScale scale_;
    MapPicture picture_;
    QtSurface surface_;
    MapMarks marks_;
    std::vector<MarkLine> pointer_frame_, finding_frame_;
    std::optional<CanvasPoint> cross_;

    // What the viewport shows, as the screen's own pixels: the image alone, so that scrolling
    // computes only what comes into view, with the drawings, so that uncovering paints no line
    // again, and with the marks, so that the pointer moves over them without painting them. The
    // grids are none when a picture is out of date.
    QPixmap backdrop_, shown_, marked_;
    std::optional<PixelGrid> backdrop_grid_, shown_grid_, marked_grid_;

    std::optional<QPointF> pointer_;   // where it was last seen in the viewport
    std::optional<QPointF> pan_from_;  // the place on the zoomed map that a pan holds
    bool is_space_held_ = false;
};

}  // namespace tidemark
