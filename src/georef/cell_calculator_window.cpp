#include "georef/cell_calculator_window.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

QComboBox* Hemispheres(const char* name, const char* spoken, const QStringList& items) {
    auto* const combo = Captionless<QComboBox>(name, spoken);
    combo->addItems(items);
    return combo;
}

}  // namespace

CellCalculator::CellCalculator(const Session& session, Messages& messages, QWidget* owner)
    : QDialog(owner),
      session_(session),
      messages_(messages),
      CalcLatText_(Named_field("CalcLatText", "Latitude", To_qt(LatitudeTemplate))),
      NScombo_(Hemispheres("NScombo", "North or south", {"N", "S"})),
      CalcLonText_(Named_field("CalcLonText", "Longitude", To_qt(LongitudeTemplate))),
      EWcombo_(Hemispheres("EWcombo", "East or west", {"E", "W"})) {
    setObjectName("CellCalculator");
    setWindowTitle("Tidemark - Cell Calculator");
    Lay_out();
}

void CellCalculator::Lay_out() {
    auto* const buttons = new QDialogButtonBox;
    QPushButton* const calculate =
        buttons->addButton("Calculate LOD8 cell", QDialogButtonBox::AcceptRole);
    calculate->setObjectName("CalcButton");
    calculate->setDefault(true);
    buttons->addButton("Cancel", QDialogButtonBox::RejectRole)->setObjectName("CancelButton");
    connect(buttons, &QDialogButtonBox::accepted, this, &CellCalculator::CalcButton_Click);
    connect(buttons, &QDialogButtonBox::rejected, this, &CellCalculator::reject);

    auto* const grid = new QGridLayout(this);
    grid->addWidget(new QLabel("Enter the co-ordinates of your target area (deg:min:sec):"), 0, 0,
                    1, 3);
    grid->addWidget(new QLabel("Latitude:"), 1, 0);
    grid->addWidget(CalcLatText_, 1, 1);
    grid->addWidget(NScombo_, 1, 2);
    grid->addWidget(new QLabel("Longitude:"), 2, 0);
    grid->addWidget(CalcLonText_, 2, 1);
    grid->addWidget(EWcombo_, 2, 2);
    grid->addWidget(buttons, 3, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

void CellCalculator::CalcButton_Click() {
    const auto [texts, cell] =
        Calculate_cell({From_qt(CalcLatText_->text()), From_qt(NScombo_->currentText()),
                        From_qt(CalcLonText_->text()), From_qt(EWcombo_->currentText())},
                       messages_);
    CalcLatText_->setText(To_qt(texts.Latitude));
    CalcLonText_->setText(To_qt(texts.Longitude));
    if (!cell) return;
    if (Report_cell(*cell, session_.CalcFromBGproperties, messages_)) Q_EMIT Copy_wanted(*cell);
    accept();
}

}  // namespace tidemark
