#include "app/key_drawing_window.h"

#include <optional>

#include "canvas/map_frame.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

// None when the keys are not for the cross.
std::optional<CrossMove> Move_of(int key, Qt::KeyboardModifiers held) {
    CrossMove move{0, 0, CrossStep::Pixel};
    if (held == Qt::ShiftModifier)
        move.Step = CrossStep::Unit;
    else if (held == Qt::ControlModifier)
        move.Step = CrossStep::Cell;
    else if (held != Qt::NoModifier)
        return std::nullopt;
    if (key == Qt::Key_Left || key == Qt::Key_Right)
        move.Across = key == Qt::Key_Left ? -1 : 1;
    else if (key == Qt::Key_Up || key == Qt::Key_Down)
        move.Down = key == Qt::Key_Up ? -1 : 1;
    else
        return std::nullopt;
    return move;
}

// The mouse button that Enter stands for.
Qt::MouseButton Button_of(int key, Qt::KeyboardModifiers held) {
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return Qt::NoButton;
    if (held == Qt::NoModifier) return Qt::LeftButton;
    return held == Qt::ShiftModifier ? Qt::RightButton : Qt::NoButton;
}

}  // namespace

KeyDrawing::KeyDrawing(MapView& map, QAction& command, const Document& document,
                       const Session& session)
    : map_(map), command_(command), document_(document), session_(session) {
    map.Canvas().installEventFilter(this);
    connect(&command, &QAction::toggled, this, &KeyDrawing::Switch);
    connect(&map, &MapView::Zoom_changed, this, &KeyDrawing::Adapt_to_map);
}

void KeyDrawing::Switch(bool is_on) {
    MapCanvas& canvas = map_.Canvas();
    if (!is_on) {
        canvas.Show_cross(std::nullopt);
        return canvas.setAccessibleDescription({});
    }
    map_.window()->activateWindow();  // the panel has the key, too
    canvas.setFocus(Qt::ShortcutFocusReason);
    Put(Start_of_cross(document_.Now(), session_.Panel.SelectedPoint, map_.Shown()));
}

// There is another zoom, another map or none.
void KeyDrawing::Adapt_to_map() {
    const auto cross = map_.Canvas().Cross();
    if (!cross) return;
    if (!map_.Has_map()) return command_.setChecked(false);
    Put(Kept_on_map(*cross, map_.Shown()));
}

void KeyDrawing::Go_to(VTPPlace place) {
    if (!map_.Canvas().Cross()) return;
    if (const auto at = Cross_at(document_.Now(), place.X, place.Y, map_.Shown().Image)) Put(*at);
}

bool KeyDrawing::eventFilter(QObject*, QEvent* event) {
    return event->type() == QEvent::KeyPress && map_.Canvas().Cross() &&
           Take(static_cast<const QKeyEvent&>(*event));
}

bool KeyDrawing::Take(const QKeyEvent& key) {
    const Qt::KeyboardModifiers held = key.modifiers() & ~Qt::KeypadModifier;
    const auto button = Button_of(key.key(), held);
    const auto move = Move_of(key.key(), held);
    if (key.key() == Qt::Key_Escape)
        command_.setChecked(false);
    else if (button != Qt::NoButton && !key.isAutoRepeat())
        Press(button);
    else if (move)
        Put(Moved_cross(*map_.Canvas().Cross(), *move, document_.Now(), map_.Shown()));
    return key.key() == Qt::Key_Escape || button != Qt::NoButton || move;
}

void KeyDrawing::Put(CanvasPoint place) {
    map_.Reveal(place);
    map_.Canvas().Show_cross(place);
    Tell_place();
}

void KeyDrawing::Press(Qt::MouseButton button) {
    map_.Reveal(*map_.Canvas().Cross());
    map_.Canvas().Press_at_cross(button);
    Tell_place();
}

// Who does not see the cross hears of it: the description of what has the keyboard changes.
void KeyDrawing::Tell_place() {
    const CursorTexts texts = Cursor_texts(session_);
    const bool has_place = Has_scale(document_.Now());
    map_.Canvas().setAccessibleDescription(
        has_place ? To_qt("Cross at " + texts.VTP + ", cell " + texts.Cell) : "Cross");
}

}  // namespace tidemark
