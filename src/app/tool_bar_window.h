// The tool bar under the menu bar. What the menus do not hold is here.
#pragma once

#include <QToolBar>

#include "canvas/map_view_window.h"
#include "model/document.h"

namespace tidemark {

class ToolBar : public QToolBar {
    Q_OBJECT

  public:
    explicit ToolBar(QWidget* parent = nullptr);

    QAction& EditUndo() { return *EditUndo_; }
    QAction& EditRedo() { return *EditRedo_; }

    // Enables Undo and Redo, and lets their tooltips name what they would undo and redo.
    void Show_history(const Document& document);
    // Lets the zoom commands work on a map, which lives as long as the tool bar.
    void Zoom(MapView& map);

  private:
    void Show_zoom(const MapView& map);

    QAction* EditUndo_;
    QAction* EditRedo_;
    QAction* ZoomOut_;
    QAction* ZoomReset_;
    QAction* ZoomIn_;
    QAction* ZoomWhole_;
};

}  // namespace tidemark
