// The tool bar under the menu bar. What the menus do not hold is here.
#pragma once

#include <QToolBar>

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

  private:
    QAction* EditUndo_;
    QAction* EditRedo_;
};

}  // namespace tidemark
