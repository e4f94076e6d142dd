// The view of the map: the background image, scrollable, in the main window's client area.
#pragma once

#include <string>

#include <QDateTime>
#include <QLabel>
#include <QScrollBar>
#include <QWidget>

#include "canvas/map_canvas_window.h"
#include "canvas/view_layout.h"
#include "model/project.h"
#include "platform/messages.h"

class QFileInfo;

namespace tidemark {

// Until an image is loaded it is empty but for a line that says how to begin.
class MapView : public QWidget {
    Q_OBJECT

  public:
    MapView(Project& project, Messages& messages, QWidget* parent = nullptr);

    // Shows BackgroundFile from its top-left corner; a file that is shown already is decoded again
    // only when it has changed. A failure is told, and the view stays as it is. The caller has the
    // graphics drawn afterwards.
    void Load_Background();

    // Where a BackgroundFile that is no full path may lie: the folder of the opened project, with
    // its last separator.
    void Set_project_folder(std::string folder) { project_folder_ = std::move(folder); }

    // The image's size in pixels; 0 x 0 before the first one.
    QSize Canvas_size() const { return Picture2_->size(); }

    DrawingSurface& Surface() { return Picture2_->Surface(); }

  Q_SIGNALS:
    void Background_shown();   // an image was loaded: its properties can be changed
    void Graphics_outdated();  // the view has got a new size and the map has to be drawn again
    void Picture2_MouseMove(float x, float y);  // canvas pixels
    void Picture2_MouseDown(int button);        // 1 left, 2 right, 4 middle
    void Picture2_KeyDown(int key_code);        // as in qt_keys.h

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

    bool Show_image(const std::string& path);
    bool Decode(const QString& path);
    std::optional<ViewLayout> Layout_for(QSize image) const;
    void Lay_out(const ViewLayout& layout);
    void Form_Resize();
    void HScroll1_Change(int value);
    void VScroll1_Change(int value);

    Project& project_;
    Messages& messages_;
    QLabel* BeginLabel_;
    QWidget* Picture1_;    // the viewport
    MapCanvas* Picture2_;  // the canvas
    QScrollBar *HScroll1_, *VScroll1_;
    FileState shown_file_;
    std::string project_folder_;
};

}  // namespace tidemark
