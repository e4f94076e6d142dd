// The tool bar under the menu bar. What the menus do not hold is here.
#pragma once

#include <array>

#include <QToolBar>

#include "canvas/map_marks.h"
#include "canvas/map_view_window.h"
#include "coast/finding.h"
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

    QAction& Marks() { return *Marks_; }
    QAction& GoTo() { return *GoTo_; }
    QAction& ShowChosen() { return *ShowChosen_; }
    QAction& DrawByKeys() { return *DrawByKeys_; }
    QAction& FillCoast() { return *FillCoast_; }
    QAction& ClearCoast() { return *ClearCoast_; }
    QAction& CoastCheck() { return *CoastCheck_; }
    // How many findings there are stands beside the icon.
    void Show_findings(const Findings& findings);
    QAction& ImportCoast() { return *ImportCoast_; }
    // Which marks are wanted; all off while the marks are.
    MarkKinds Wanted_marks() const;

  Q_SIGNALS:
    void Marks_changed();

  private:
    void Add_marks();
    void Add_coast_commands();
    void Show_zoom(const MapView& map);

    QAction* EditUndo_;
    QAction* EditRedo_;
    QAction *Marks_ = nullptr, *GoTo_ = nullptr, *ShowChosen_ = nullptr, *DrawByKeys_ = nullptr;
    QAction *CoastCheck_ = nullptr, *FillCoast_ = nullptr, *ClearCoast_ = nullptr;
    QAction* ImportCoast_ = nullptr;
    std::array<QAction*, 4> mark_kinds_{};  // in the order of MarkKinds
    QAction* ZoomOut_;
    QAction* ZoomReset_;
    QAction* ZoomIn_;
    QAction* ZoomWhole_;
};

}  // namespace tidemark
