// The main window's handlers for the map and what is done on it.
#include <QScopeGuard>

#include "app/tidemark_main_window.h"
#include "canvas/background.h"
#include "canvas/click.h"
#include "canvas/map_frame.h"
#include "canvas/refresh_graphics.h"
#include "georef/background_properties_window.h"
#include "platform/qt_keys.h"
#include "platform/qt_text.h"

namespace tidemark {

void TidemarkMain::BackgroundLoad_Click() {
    if (Choose_background(*project_, messages_, choosers_, platform_.StartFolder)) {
        map_->Load_Background();
        BackgroundProperties_Click();
    }
    Refresh_lists();
}

void TidemarkMain::BackgroundProperties_Click() {
    Show_background_properties(*project_, messages_, Calculator(), map_->Canvas_size(), this);
    Refresh_Graphics();
}

void TidemarkMain::CellCalc_Click() {
    project_->CalcFromBGproperties = false;
    Calculator().exec();
    Refresh_Graphics();
}

void TidemarkMain::Status_Resize() {
    if (!project_->BackgroundLoaded) return;
    map_->Load_Background();
    Refresh_Graphics();
}

void TidemarkMain::Picture2_MouseMove(float x, float y) {
    if (const auto texts = Move_cursor(*project_, x, y))
        status_->Show_cursor(To_qt(texts->VTP), To_qt(texts->Cell));
}

void TidemarkMain::Picture2_MouseDown(int button) {
    constexpr int left = 1, right = 2;
    if (button == left) Left_click();
    if (button == right) Select_point();
}

void TidemarkMain::Left_click() {
    const auto adds = Take_left_click(*project_, status_->Drawing_mode().Item(), messages_);
    if (!adds) return;
    switch (*adds) {
        case Adds::Point:
            status_->VTP().Add_VTP_Point();
            break;
        case Adds::Polygon:
            status_->LWM().Add_LWM_Poly();
            break;
        case Adds::ClearedCell:
            status_->Kill().Add_Kill_Cell();
            break;
    }
}

void TidemarkMain::Select_point() {
    const auto nearest = Nearest_point(*project_);
    if (!nearest) return;
    status_->VTP().Select(*nearest - 1);
    Refresh_Graphics();
}

void TidemarkMain::Picture2_KeyDown(int key_code) {
    if (key_code == KeyDelete) status_->VTP().VTPlistbox_KeyDown(key_code);
    if (key_code == KeyE) EditButton_Click();
}

void TidemarkMain::EditButton_Click() {
    const int selected = status_->VTP().Selected();
    if (selected < 0 || !Edit_point_dialog().Edit(selected + 1)) return;
    status_->VTP().Refresh_VTP_List();
}

EditPoint& TidemarkMain::Edit_point_dialog() {
    if (!edit_point_) edit_point_ = new EditPoint(*project_, messages_, this);
    return *edit_point_;
}

CellCalculator& TidemarkMain::Calculator() {
    if (!calculator_) calculator_ = new CellCalculator(*project_, messages_, this);
    return *calculator_;
}

void TidemarkMain::Refresh_lists() {
    status_->VTP().Refresh_VTP_List();
    status_->LWM().Refresh_LWM_List();
    status_->Kill().Refresh_Kill_List();
}

// A box that comes up in the middle of a redraw lets other events through, which may ask for
// another one; the redraw that waits for the box shows all there is then.
void TidemarkMain::Refresh_Graphics() {
    if (redrawing_) return;
    redrawing_ = true;
    const auto done = qScopeGuard([this] { redrawing_ = false; });
    tidemark::Refresh_Graphics(*project_, status_->VTP().Selected(), map_->Surface(), messages_);
}

}  // namespace tidemark
