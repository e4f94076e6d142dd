#include "georef/background_properties_window.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/text_forms.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

// By their places in GeoreferenceFields.
enum Field { LOD8X, LOD8Y, LOD13tlX, LOD13tlY, LOD13brX, LOD13brY };

struct FieldLabel {
    const char* Text;
    const char* Spoken;
};

constexpr std::array<FieldLabel, GeoreferenceFields.size()> FieldLabels{{
    {"X = ", "LOD 8 column"},
    {"Y=", "LOD 8 row"},
    {"Top-left X =", "Top-left LOD 13 column"},
    {"Top-left Y =", "Top-left LOD 13 row"},
    {"Bottom-right X =", "Bottom-right LOD 13 column"},
    {"Bottom-right Y = ", "Bottom-right LOD 13 row"},
}};

// A label as wide as its longest ordinary text, whatever it holds, so that the dialog does not
// change its size while the user types.
QLabel* Place_label(const char* name) {
    auto* const label = Named<QLabel>(name);
    const CellPlace longest = Place_of_cell("0", "0");
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance(To_qt(longest.LonLabel)));
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return label;
}

}  // namespace

BGproperties::BGproperties(Session& session, CellCalculator& calculator, QWidget* owner)
    : QDialog(owner),
      session_(session),
      calculator_(calculator),
      LatLabel_(Place_label("LatLabel")),
      LonLabel_(Place_label("LonLabel")),
      HiddenLat_(Named<QLabel>("HiddenLat")),
      HiddenLon_(Named<QLabel>("HiddenLon")) {
    setObjectName("BGproperties");
    setWindowTitle("Tidemark - Background Properties");
    for (std::size_t i = 0; i < fields_.size(); ++i)
        fields_[i] = Named_field(GeoreferenceFields[i].Name, FieldLabels[i].Spoken);
    Lay_out();
    connect(fields_[LOD8X], &QLineEdit::textChanged, this, &BGproperties::LOD8X_Change);
    connect(fields_[LOD8Y], &QLineEdit::textChanged, this, &BGproperties::LOD8X_Change);
    connect(&calculator, &CellCalculator::Copy_wanted, this, &BGproperties::Copy_cell);
    LOD8X_Change();
}

void BGproperties::Lay_out() {
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("OKButton");
    connect(buttons, &QDialogButtonBox::accepted, this, &BGproperties::OKButton_Click);

    auto* const column = new QVBoxLayout(this);
    for (QWidget* const part : {LOD8_frame(), LOD13_frame(), static_cast<QWidget*>(buttons)})
        column->addWidget(part);
    for (QLabel* const hidden : {HiddenLat_, HiddenLon_}) {
        hidden->setParent(this);
        hidden->hide();
    }
    column->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget* BGproperties::LOD8_frame() {
    auto* const frame = new QGroupBox("LOD 8 Cell Co-ordinates");
    auto* const calculator = Named<QPushButton>("ShowCalc", "Cell Calculator");
    calculator->setAutoDefault(false);
    connect(calculator, &QPushButton::clicked, this, &BGproperties::ShowCalc_Click);

    auto* const grid = new QGridLayout(frame);
    grid->addWidget(new QLabel("LOD 8 is the position of this cell in the world"), 0, 0, 1, 5);
    for (const Field field : {LOD8X, LOD8Y}) {
        grid->addWidget(new QLabel(FieldLabels[field].Text), 1, 2 * field);
        grid->addWidget(fields_[field], 1, 2 * field + 1);
    }
    grid->addWidget(calculator, 1, 4);
    grid->addWidget(LatLabel_, 2, 0, 1, 5);
    grid->addWidget(LonLabel_, 3, 0, 1, 5);
    return frame;
}

QWidget* BGproperties::LOD13_frame() {
    auto* const frame = new QGroupBox("LOD 13 Cell Co-ordinates");
    auto* const grid = new QGridLayout(frame);
    grid->addWidget(new QLabel("LOD 13 is the position within the 32 x 32 cell"), 0, 0, 1, 4);
    for (const Field field : {LOD13tlX, LOD13tlY, LOD13brX, LOD13brY}) {
        const int row = 1 + (field - LOD13tlX) / 2;
        const int left = (field - LOD13tlX) % 2 * 2;
        grid->addWidget(new QLabel(FieldLabels[field].Text), row, left);
        grid->addWidget(fields_[field], row, left + 1);
    }
    return frame;
}

GeoreferenceTexts BGproperties::Ask(const GeoreferenceTexts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) fields_[i]->setText(To_qt(texts[i]));
    fields_[LOD8X]->setFocus();
    fields_[LOD8X]->selectAll();
    exec();
    GeoreferenceTexts entered;
    for (std::size_t i = 0; i < entered.size(); ++i) entered[i] = From_qt(fields_[i]->text());
    return entered;
}

void BGproperties::LOD8X_Change() {
    const CellPlace place =
        Place_of_cell(From_qt(fields_[LOD8X]->text()), From_qt(fields_[LOD8Y]->text()));
    LatLabel_->setText(To_qt(place.LatLabel));
    LonLabel_->setText(To_qt(place.LonLabel));
    HiddenLat_->setText(To_qt(place.HiddenLat));
    HiddenLon_->setText(To_qt(place.HiddenLon));
}

void BGproperties::OKButton_Click() {
    for (QLineEdit* const field : fields_)
        field->setText(To_qt(Normalised_field(From_qt(field->text()))));
    accept();
}

void BGproperties::reject() {
    OKButton_Click();
}

void BGproperties::ShowCalc_Click() {
    session_.CalcFromBGproperties = true;
    calculator_.exec();
}

void BGproperties::Copy_cell(const LOD8Cell& cell) {
    fields_[LOD8X]->setText(To_qt(Int_text(cell.X)));
    fields_[LOD8Y]->setText(To_qt(Int_text(cell.Y)));
}

}  // namespace tidemark
