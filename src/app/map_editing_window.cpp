#include "app/map_editing_window.h"

#include "canvas/click.h"
#include "canvas/map_frame.h"
#include "coast/finding_choice.h"
#include "platform/qt_keys.h"
#include "platform/qt_text.h"
#include "vtp_edit/vtp_commands.h"

namespace tidemark {

MapEditing::MapEditing(Document& document, Session& session, Messages& messages, MapCanvas& canvas,
                       Status& panel, CoastWatch& coast_watch, QWidget& owner)
    : document_(document),
      session_(session),
      messages_(messages),
      panel_(panel),
      coast_watch_(coast_watch),
      owner_(owner) {
    connect(&canvas, &MapCanvas::Mouse_moved, this, &MapEditing::Picture2_MouseMove);
    connect(&canvas, &MapCanvas::Mouse_pressed, this, &MapEditing::Picture2_MouseDown);
    connect(&canvas, &MapCanvas::Key_pressed, this, &MapEditing::Picture2_KeyDown);
}

void MapEditing::Picture2_MouseMove(float x, float y) {
    if (const auto texts = Move_cursor(document_.Now(), session_, x, y))
        panel_.Show_cursor(To_qt(texts->VTP), To_qt(texts->Cell));
    Q_EMIT Pointer_moved();
}

void MapEditing::Picture2_MouseDown(int button) {
    constexpr int left = 1, right = 2;
    if (button == left) Left_click();
    if (button == right) Select_point();
}

void MapEditing::Picture2_KeyDown(int key_code) {
    if (key_code == KeyDelete) Delete_selected_point(document_, session_);
    if (key_code == KeyE) Edit_selected_point();
}

void MapEditing::Left_click() {
    const auto adds =
        Take_left_click(document_.Now(), session_, panel_.Drawing_mode().Item(), messages_);
    if (!adds) return;
    switch (*adds) {
        case Adds::Point:
            panel_.VTP().Add_VTP_Point();
            break;
        case Adds::Polygon:
            Add_polygon();
            break;
        case Adds::ClearedCell:
            panel_.Kill().Add_Kill_Cell();
            break;
    }
}

// The remark names the finding that explains a polygon that was refused, or built beside the click.
void MapEditing::Add_polygon() {
    const Findings findings = coast_watch_.Current();
    const Position click{session_.CursorVTPX, session_.CursorVTPY};
    const LWMPolyResult result = panel_.LWM().Add_LWM_Poly();
    std::string remark = result.StatusLine;
    const bool is_to_be_explained = result.IsRefusedByCoast || !remark.empty();
    const Finding* const finding =
        is_to_be_explained ? Explaining_finding(findings, click) : nullptr;
    if (finding) remark += (remark.empty() ? "" : " ") + Finding_line(*finding);
    Q_EMIT Remarked(To_qt(remark));
}

void MapEditing::Select_point() {
    const auto nearest = Nearest_point(document_.Now(), session_);
    if (!nearest) return;
    session_.Panel.SelectedPoint = *nearest - 1;
    session_.LastChosen = ListKind::Points;
    panel_.VTP().Refresh();
    Q_EMIT Point_selected();
}

void MapEditing::Edit_selected_point() {
    const int selected = session_.Panel.SelectedPoint;
    if (selected < 0) return;
    if (!edit_point_) edit_point_ = new EditPoint(document_, session_, messages_, &owner_);
    edit_point_->Edit(selected + 1);
}

}  // namespace tidemark
