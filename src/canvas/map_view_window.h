// The view of the map: the background image, scrollable, in the main window's client area.
#pragma once

#include <string>

#include <QDateTime>
#include <QLabel>
#include <QScrollBar>
#include <QWidget>

#include "canvas/map_canvas_window.h"
#include "canvas/view_layout.h"

namespace tidemark {

// Until an image is loaded it is empty but for a line that says how to begin.
class MapView : public QWidget {
    Q_OBJECT

  public:
    explicit MapView(QWidget* parent = nullptr);

    // Shows the image of a file from its top-left corner; a file that is shown already is decoded
    // again only when it has changed. False when it cannot be shown; the view then stays as it is.
    bool Show_image(const std::string& path);
    // Back to the empty view.
    void Show_nothing();
    // Of the image that is shown; empty when there is none.
    const std::string& Shown_file() const { return shown_path_; }

    // The image's size in pixels; 0 x 0 before the first one.
    QSize Canvas_size() const { return Picture2_->size(); }

    // Where the mouse and the keys arrive, and what is drawn on.
    MapCanvas& Canvas() { return *Picture2_; }

  Q_SIGNALS:
    void Resized();  // the view has got a new size

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    // By what a file is known to be the one that is shown.
    struct FileState {
        QString Path;
        qint64 Size = -1;
        QDateTime Modified;
        bool operator==(const FileState&) const = default;
    };

    bool Decode(const QString& path);
    std::optional<ViewLayout> Layout_for(QSize image) const;
    void Lay_out(const ViewLayout& layout);
    void HScroll1_Change(int value);
    void VScroll1_Change(int value);

    QLabel* BeginLabel_;
    QWidget* Picture1_;    // the viewport
    MapCanvas* Picture2_;  // the canvas
    QScrollBar *HScroll1_, *VScroll1_;
    std::string shown_path_;
    FileState shown_file_;
};

}  // namespace tidemark
