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
// picture. So of what is scrolled only the image is moved; the drawings are painted anew over it,
// and always look as they would after a redraw.
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
    void Bring_image_up_to_date(const QRect& visible);
    void Bring_up_to_date(const QRect& visible);
    void Tell_pointer();
    void Show_hand();
    void Show_frame(MapMarks& shown, std::vector<MarkLine> frame);

    MapScale scale_;
    MapPicture picture_;
    QtSurface surface_;
    MapMarks marks_;
    MapMarks pointer_frame_, finding_frame_;

    // What the viewport shows, as the screen's own pixels: the image alone, so that scrolling
    // computes only what comes into view, and with the drawings, so that uncovering paints no line
    // again.
    QPixmap backdrop_;
    std::optional<PixelGrid> backdrop_grid_;  // none when it is out of date
    QPixmap shown_;
    bool is_shown_outdated_ = true;

    std::optional<QPointF> pointer_;   // where it was last seen in the viewport
    std::optional<QPointF> pan_from_;  // the place on the zoomed map that a pan holds
    bool is_space_held_ = false;
};

}  // namespace tidemark
