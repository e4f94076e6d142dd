// The view of the map: the background image, scrollable, in the main window's client area.
#pragma once

#include <string>
#include <utility>

#include <QDateTime>
#include <QLabel>
#include <QNativeGestureEvent>
#include <QScrollBar>
#include <QWidget>

#include "canvas/key_cross.h"
#include "canvas/map_canvas_window.h"
#include "canvas/map_scale.h"
#include "canvas/view_layout.h"

namespace tidemark {

// Until an image is loaded it is empty except for a line that says how to begin.
class MapView : public QWidget {
    Q_OBJECT

  public:
    explicit MapView(QWidget* parent = nullptr);

    // Shows the image of a file from its top-left corner; a file that is shown already is decoded
    // again only when it has changed, and when it is zoomed the middle of the view stays where it
    // is. False when the file cannot be shown; the view then stays as it is.
    bool Show_image(const std::string& path);
    // Back to the empty view.
    void Show_nothing();
    // Of the image that is shown; empty when there is none.
    const std::string& Shown_file() const { return shown_path_; }

    // The image's size in pixels, however large it is shown; 0 x 0 before the first one.
    QSize Canvas_size() const { return Picture2_->Image_size(); }

    // Zoom and scroll position. An image comes up at 100 %; nothing can be zoomed without one.
    const MapScale& Scale() const { return scale_; }
    bool Has_map() const { return !Canvas_size().isEmpty(); }
    // The middle of the view stays where it is.
    void Zoom_in();
    void Zoom_out();
    void Zoom_reset();
    void Zoom_whole();
    // The corners of what is in view: the north-west and the south-east one.
    std::pair<CanvasPoint, CanvasPoint> Canvas_in_view() const;
    // Scrolls so that a canvas pixel lies in the middle, as far as the map goes.
    void Center_on(CanvasPoint pixel);
    // Scrolls no further than it takes for a canvas pixel to be seen with what is around it.
    void Reveal(CanvasPoint pixel);

    ShownMap Shown() const;
    // Whether all between two corners, canvas pixels, can be seen.
    bool Is_in_view(CanvasPoint top_left, CanvasPoint bottom_right) const;

    // Where the mouse and the keys arrive, and what is drawn on.
    MapCanvas& Canvas() { return *Picture2_; }

  Q_SIGNALS:
    void Resized();       // the view has got a new size
    void Zoom_changed();  // or there is a map now, or no more

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

  private:
    // By what a file is known to be the one that is shown.
    struct FileState {
        QString Path;
        qint64 Size = -1;
        QDateTime Modified;
        bool operator==(const FileState&) const = default;
    };

    bool Decode(const QString& path);
    int Bar_thickness() const;
    bool Fits(QSize image) const;
    void Lay_out(const MapScale& scale);
    void Keep_middle();
    void Turn_bars();
    void Move_to(int left, int top);
    void HScroll1_Change(int value);
    void VScroll1_Change(int value);

    // In map_view_zoom_window.cpp.
    ViewSize Viewport_size() const;
    ScreenPoint Middle() const;
    void Zoom_to(double zoom, ScreenPoint fixed);
    void Zoom_by_wheel(const QWheelEvent& event);
    void Zoom_by_fingers(const QNativeGestureEvent& event);
    void Pan_to(int left, int top);

    QLabel* BeginLabel_;
    QWidget* Picture1_;    // the viewport
    MapCanvas* Picture2_;  // the canvas
    QScrollBar *HScroll1_, *VScroll1_;
    MapScale scale_;
    CanvasPoint middle_{};   // what was last scrolled or zoomed to the middle of the viewport
    int wheel_turned_ = 0;   // towards the next level, in eighths of a degree
    double pinched_to_ = 1;  // the zoom that the fingers have come to
    std::string shown_path_;
    FileState shown_file_;
};

}  // namespace tidemark
