#include "lwm/lwm_frame_window.h"

#include <QGridLayout>

#include "lwm/lwm_list.h"
#include "lwm/polygon_builder.h"
#include "model/list_selection.h"
#include "platform/qt_controls.h"
#include "platform/qt_keys.h"
#include "platform/qt_text.h"

namespace tidemark {

LWMFrame::LWMFrame(Project& project, Messages& messages, QWidget* parent)
    : QGroupBox("LWM Polygons", parent),
      project_(project),
      messages_(messages),
      LWMlistBox_(new ListBox("LWMlistBox", "LWM polygons")),
      HeightOption_(Named<QRadioButton>("HeightOption", "Set to height (m):")),
      PolyHeightText_(Named_field("PolyHeightText", "Height in metres", "0")),
      ConformOption_(Named<QRadioButton>("ConformOption", "Conform to existing terrain")) {
    Lay_out();
    connect(LWMlistBox_, &ListBox::Clicked, this, &LWMFrame::Graphics_outdated);
    connect(LWMlistBox_, &ListBox::Key_pressed, this, &LWMFrame::LWMlistBox_KeyDown);
    connect(ConformOption_, &QRadioButton::toggled, PolyHeightText_, &QLineEdit::setDisabled);
    ConformOption_->setChecked(true);
}

void LWMFrame::Lay_out() {
    auto* const grid = new QGridLayout(this);
    grid->addWidget(LWMlistBox_, 0, 0, 1, 2);
    grid->addWidget(HeightOption_, 1, 0);
    grid->addWidget(PolyHeightText_, 1, 1);
    grid->addWidget(ConformOption_, 2, 0, 1, 2);
    grid->setRowStretch(0, 1);
}

int LWMFrame::Selected() const {
    return LWMlistBox_->Selected();
}

void LWMFrame::Mode_chosen(const DrawingMode& mode) {
    if (mode.Code == WaterPolygon) HeightOption_->setChecked(true);
    if (mode.Code == LandPolygon) ConformOption_->setChecked(true);
}

void LWMFrame::Add_LWM_Poly() {
    const HeightChoice choice =
        ConformOption_->isChecked() ? HeightChoice::Conform : HeightChoice::Explicit;
    const LWMPolyResult result =
        tidemark::Add_LWM_Poly(project_, messages_, choice, From_qt(PolyHeightText_->text()));
    PolyHeightText_->setText(To_qt(result.HeightText));
    Refresh_LWM_List();
    Q_EMIT Remarked(To_qt(result.StatusLine));
}

void LWMFrame::Refresh_LWM_List() {
    Show_polygons(Selected());
}

void LWMFrame::Show_polygons(int selected) {
    Drop_closing_points(project_);
    LWMlistBox_->Show_lines(LWM_list_lines(project_),
                            Selected_after_refresh(selected, project_.LWMCount));
    if (project_.PrefsSet) Q_EMIT SaveEntry_changed(project_.LWMCount > 0);
    Q_EMIT Graphics_outdated();
}

void LWMFrame::LWMlistBox_KeyDown(int key_code) {
    const int selected = Selected();
    if (key_code != KeyDelete || selected < 0) return;
    Delete_LWM_Poly(project_, selected + 1);
    Show_polygons(Selected_after_delete(selected, project_.LWMCount));
}

}  // namespace tidemark
