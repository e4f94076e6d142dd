#include "app/tool_bar_window.h"

#include "app/tool_icons_window.h"
#include "platform/qt_drawn_icon.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

// "Undo: delete point 57 (Ctrl+Z)"
QString Tip(const QAction& action, const QString& step = {}) {
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    const QString keys = key.isEmpty() ? QString() : " (" + key + ")";
    return action.text() + (step.isEmpty() ? "" : ": " + step) + keys;
}

void Show_step(QAction& action, bool is_possible, const std::string& step) {
    action.setEnabled(is_possible);
    action.setToolTip(Tip(action, To_qt(step)));
}

QAction* Add_command(QToolBar& bar, const char* name, const QString& text, const IconShapes& icon,
                     const QList<QKeySequence>& keys) {
    QAction* const action = bar.addAction(Drawn_icon(icon), text);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setToolTip(Tip(*action));
    bar.widgetForAction(action)->setObjectName(QString(name) + "Button");
    bar.widgetForAction(action)->setAccessibleName(text);
    return action;
}

}  // namespace

ToolBar::ToolBar(QWidget* parent)
    : QToolBar("Tools", parent),
      EditUndo_(Add_command(*this, "EditUndo", "Undo", UndoIcon(), {Qt::CTRL | Qt::Key_Z})),
      EditRedo_(Add_command(*this, "EditRedo", "Redo", RedoIcon(),
                            {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y})) {
    setObjectName("ToolBar");
    setMovable(false);
    setIconSize({20, 20});
    for (QAction* const action : {EditUndo_, EditRedo_}) action->setEnabled(false);
}

void ToolBar::Show_history(const Document& document) {
    Show_step(*EditUndo_, document.Can_undo(), document.What_undo());
    Show_step(*EditRedo_, document.Can_redo(), document.What_redo());
}

}  // namespace tidemark
