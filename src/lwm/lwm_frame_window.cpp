#include "lwm/lwm_frame_window.h"

#include <QGridLayout>

#include "lwm/lwm_commands.h"
#include "lwm/lwm_list.h"
#include "model/text_forms.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

LWMFrame::LWMFrame(Document& document, Session& session, Messages& messages, QWidget* parent)
    : QGroupBox("LWM Polygons", parent),
      document_(document),
      session_(session),
      messages_(messages),
      LWMlistBox_(new ListBox(
          "LWMlistBox", "LWM polygons",
          {[&document] { return LWM_list_lines(document.Now()); }, session.Panel.SelectedPolygon,
           [&document, &session] { Delete_selected_polygon(document, session); }})),
      HeightOption_(Named<QRadioButton>("HeightOption", "Set to height (m):")),
      PolyHeightText_(Named_field("PolyHeightText", "Height in metres", "0")),
      ConformOption_(Named<QRadioButton>("ConformOption", "Conform to existing terrain")) {
    Lay_out();
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

void LWMFrame::Mode_chosen(const DrawingMode& mode) {
    if (mode.Code == WaterPolygon) HeightOption_->setChecked(true);
    if (mode.Code == LandPolygon) ConformOption_->setChecked(true);
}

LWMPolyResult LWMFrame::Add_LWM_Poly() {
    const HeightChoice choice =
        ConformOption_->isChecked() ? HeightChoice::Conform : HeightChoice::Explicit;
    std::string height = From_qt(PolyHeightText_->text());
    if (choice == HeightChoice::Explicit) {
        height = Whole_number_text(height);
        PolyHeightText_->setText(To_qt(height));  // before a warning stands over it
    }
    return Click_polygon(document_, session_, choice, height, messages_);
}

void LWMFrame::Refresh() {
    LWMlistBox_->Refresh();
}

}  // namespace tidemark
