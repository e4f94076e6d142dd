#include "app/tool_bar_window.h"

#include <utility>

#include <QMenu>
#include <QToolButton>

#include "app/tool_icons_window.h"
#include "coast/finding_choice.h"
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

QAction* Add_command(QToolBar& bar, const char* name, const QString& text, const QIcon& icon,
                     const QList<QKeySequence>& keys) {
    QAction* const action = bar.addAction(icon, text);
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
      EditUndo_(
          Add_command(*this, "EditUndo", "Undo", Drawn_icon(UndoIcon()), {Qt::CTRL | Qt::Key_Z})),
      EditRedo_(Add_command(*this, "EditRedo", "Redo", Drawn_icon(RedoIcon()),
                            {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y})),
      ZoomOut_((addSeparator()->setObjectName("sep6"),
                Add_command(*this, "ZoomOut", "Zoom out", Drawn_icon(ZoomOutIcon()),
                            {Qt::CTRL | Qt::Key_Minus}))),
      ZoomReset_(Add_command(*this, "ZoomReset", "Zoom to 100 %", {}, {Qt::CTRL | Qt::Key_0})),
      ZoomIn_(Add_command(*this, "ZoomIn", "Zoom in", Drawn_icon(ZoomInIcon()),
                          {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal})),
      ZoomWhole_(Add_command(*this, "ZoomWhole", "Whole map", Drawn_icon(ZoomWholeIcon()), {})) {
    setObjectName("ToolBar");
    setMovable(false);
    setIconSize({20, 20});
    for (QAction* const action : {EditUndo_, EditRedo_, ZoomOut_, ZoomReset_, ZoomIn_, ZoomWhole_})
        action->setEnabled(false);
    Add_marks();
    GoTo_ = Add_command(*this, "GoTo", "Go to", Drawn_icon(GoToIcon()), {Qt::CTRL | Qt::Key_G});
    ShowChosen_ = Add_command(*this, "ShowChosen", "Show chosen", Drawn_icon(ShowChosenIcon()),
                              {Qt::CTRL | Qt::Key_J});
    DrawByKeys_ = Add_command(*this, "DrawByKeys", "Draw by keys", Drawn_icon(DrawByKeysIcon()),
                              {Qt::Key_F7});
    DrawByKeys_->setCheckable(true);
    for (QAction* const action : {Marks_, GoTo_, ShowChosen_, DrawByKeys_})
        action->setEnabled(false);
    Add_coast_commands();
    // What stands to the right of the level keeps its place.
    QWidget& level = *widgetForAction(ZoomReset_);
    ZoomReset_->setIconText("1600 %");
    level.setMinimumWidth(level.sizeHint().width());
    ZoomReset_->setIconText("100 %");
}

// The button switches all of them; its menu says which of them these are.
void ToolBar::Add_marks() {
    addSeparator()->setObjectName("sep7");
    Marks_ = Add_command(*this, "Marks", "Marks", Drawn_icon(MarksIcon()), {Qt::Key_F9});
    Marks_->setCheckable(true);
    auto* const kinds = new QMenu(this);
    kinds->setObjectName("MarksMenu");
    constexpr std::array<std::pair<const char*, const char*>, 4> entries{
        {{"MarkCells", "Cell edges and numbers"},
         {"MarkPointer", "Cell under the pointer"},
         {"MarkTint", "Tinted polygons"},
         {"MarkChosen", "What is chosen in the lists"}}};
    for (std::size_t i = 0; i < entries.size(); ++i) {
        mark_kinds_[i] = kinds->addAction(entries[i].second);
        mark_kinds_[i]->setObjectName(entries[i].first);
        mark_kinds_[i]->setCheckable(true);
        mark_kinds_[i]->setChecked(true);
        connect(mark_kinds_[i], &QAction::toggled, this, &ToolBar::Marks_changed);
    }
    auto* const button = qobject_cast<QToolButton*>(widgetForAction(Marks_));
    button->setMenu(kinds);
    button->setPopupMode(QToolButton::MenuButtonPopup);
    connect(Marks_, &QAction::toggled, this, &ToolBar::Marks_changed);
}

void ToolBar::Add_coast_commands() {
    addSeparator()->setObjectName("sep8");
    CoastCheck_ =
        Add_command(*this, "CoastCheck", "Coast check", Drawn_icon(CoastCheckIcon()), {Qt::Key_F8});
    Show_findings({});
    FillCoast_ = Add_command(*this, "FillCoast", "Fill along the coast",
                             Drawn_icon(FillCoastIcon()), {Qt::CTRL | Qt::Key_F});
    ClearCoast_ = Add_command(*this, "ClearCoast", "Clear along the coast",
                              Drawn_icon(ClearCoastIcon()), {Qt::CTRL | Qt::Key_K});
    ImportCoast_ = Add_command(*this, "ImportCoast", "Import coast", Drawn_icon(ImportCoastIcon()),
                               {Qt::CTRL | Qt::Key_I});
}

MarkKinds ToolBar::Wanted_marks() const {
    const auto is_wanted = [this](std::size_t kind) {
        return Marks_->isChecked() && mark_kinds_[kind]->isChecked();
    };
    return {is_wanted(0), is_wanted(1), is_wanted(2), is_wanted(3)};
}

void ToolBar::Show_history(const Document& document) {
    Show_step(*EditUndo_, document.Can_undo(), document.What_undo());
    Show_step(*EditRedo_, document.Can_redo(), document.What_redo());
}

void ToolBar::Show_findings(const Findings& findings) {
    const QString summary = To_qt(Findings_summary(findings));
    auto& button = *qobject_cast<QToolButton*>(widgetForAction(CoastCheck_));
    CoastCheck_->setIconText(QString::number(findings.size()));
    CoastCheck_->setToolTip(Tip(*CoastCheck_, summary));
    button.setAccessibleName(CoastCheck_->text() + ": " + summary);
    button.setToolButtonStyle(findings.empty() ? Qt::ToolButtonIconOnly
                                               : Qt::ToolButtonTextBesideIcon);
}

void ToolBar::Zoom(MapView& map) {
    connect(ZoomOut_, &QAction::triggered, &map, &MapView::Zoom_out);
    connect(ZoomReset_, &QAction::triggered, &map, &MapView::Zoom_reset);
    connect(ZoomIn_, &QAction::triggered, &map, &MapView::Zoom_in);
    connect(ZoomWhole_, &QAction::triggered, &map, &MapView::Zoom_whole);
    connect(&map, &MapView::Zoom_changed, this, [this, &map] { Show_zoom(map); });
}

void ToolBar::Show_zoom(const MapView& map) {
    const double zoom = map.Scale().Zoom();
    ZoomReset_->setIconText(QString::fromStdString(map.Scale().Percent()));
    ZoomOut_->setEnabled(map.Has_map() && Previous_level(zoom) != zoom);
    ZoomIn_->setEnabled(map.Has_map() && Next_level(zoom) != zoom);
    for (QAction* const action : {ZoomReset_, ZoomWhole_, Marks_, GoTo_, ShowChosen_, DrawByKeys_})
        action->setEnabled(map.Has_map());
}

}  // namespace tidemark
