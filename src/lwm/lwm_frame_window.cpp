#include "lwm/lwm_frame_window.h"

#include <QGridLayout>

namespace tidemark {

LWMFrame::LWMFrame(Project& project, Messages& messages, QWidget* parent)
    : QGroupBox("LWM Polygons", parent),
      project_(project),
      messages_(messages),
      LWMlistBox_(new ListBox("LWMlistBox", "LWM polygons")),
      HeightOption_(new QRadioButton("Set to height (m):")),
      PolyHeightText_(new QLineEdit("0")),
      ConformOption_(new QRadioButton("Conform to existing terrain")) {
    Lay_out();
    connect(LWMlistBox_, &ListBox::Clicked, this, &LWMFrame::Graphics_outdated);
    connect(ConformOption_, &QRadioButton::toggled, PolyHeightText_, &QLineEdit::setDisabled);
    ConformOption_->setChecked(true);
}

void LWMFrame::Lay_out() {
    HeightOption_->setObjectName("HeightOption");
    ConformOption_->setObjectName("ConformOption");
    PolyHeightText_->setObjectName("PolyHeightText");
    PolyHeightText_->setAccessibleName("Height in metres");

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

}  // namespace tidemark
