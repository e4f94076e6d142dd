#include "vtp_edit/edit_point_window.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "platform/qt_active_window.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"
#include "vtp_edit/vtp_commands.h"

namespace tidemark {

namespace {

// The fields of one option, under it and as far in as its caption.
QFormLayout* Indented_form(QWidget* fields) {
    auto* const form = new QFormLayout(fields);
    const int indent = fields->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth) +
                       fields->style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing);
    form->setContentsMargins(indent, 0, 0, 0);
    return form;
}

}  // namespace

EditPoint::EditPoint(Document& document, Session& session, Messages& messages, QWidget* owner)
    : QDialog(owner),
      document_(document),
      session_(session),
      messages_(messages),
      Option1_(Named<QRadioButton>("Option1", "Edit VTP co-ordinates:")),
      Option2_(Named<QRadioButton>("Option2", "Edit LOD13 cell co-ordinates:")),
      VTP_fields_(new QWidget),
      cell_fields_(new QWidget),
      VTPX_(Named_field("VTPX", "X in VTP units")),
      VTPY_(Named_field("VTPY", "Y in VTP units")),
      LOD13X_(Named_field("LOD13X", "X in the LOD13 cell")),
      LOD13Y_(Named_field("LOD13Y", "Y in the LOD13 cell")),
      CellLabel_(Named<QLabel>("CellLabel")) {
    setObjectName("EditPoint");
    setWindowTitle("Tidemark - Edit Point");
    Lay_out();
    connect(Option2_, &QRadioButton::toggled, this, &EditPoint::Option_Click);
    Option1_->setChecked(true);
    Option_Click();
}

void EditPoint::Lay_out() {
    QFormLayout* const VTP_form = Indented_form(VTP_fields_);
    VTP_form->addRow("X", VTPX_);
    VTP_form->addRow("Y", VTPY_);
    QFormLayout* const cell_form = Indented_form(cell_fields_);
    cell_form->addRow(CellLabel_);
    cell_form->addRow("X", LOD13X_);
    cell_form->addRow("Y", LOD13Y_);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("OKButton");
    connect(buttons, &QDialogButtonBox::accepted, this, &EditPoint::OKButton_Click);

    auto* const column = new QVBoxLayout(this);
    for (QWidget* const part :
         std::initializer_list<QWidget*>{Option1_, VTP_fields_, Option2_, cell_fields_, buttons})
        column->addWidget(part);
    column->addStrut(2 * fontMetrics().horizontalAdvance(windowTitle()));  // the title fits above
    column->setSizeConstraint(QLayout::SetFixedSize);
}

void EditPoint::Edit(int point) {
    Show_texts(Edit_point_texts(document_.Now(), session_, point));
    CellLabel_->setText(To_qt(Edit_point_cell_text(document_.Now(), point)));
    QLineEdit* const first = Option1_->isChecked() ? VTPX_ : LOD13X_;
    first->setFocus();
    first->selectAll();
    const ActiveWindow active_window;
    if (exec() == QDialog::Accepted) Move_point(document_, session_, point, Texts());
}

void EditPoint::Option_Click() {
    cell_fields_->setEnabled(Option2_->isChecked());
    VTP_fields_->setEnabled(!Option2_->isChecked());
}

// Enter is OK, with Shift and Ctrl as well.
void EditPoint::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return OKButton_Click();
    QDialog::keyPressEvent(event);
}

void EditPoint::OKButton_Click() {
    if (Check_edit_point(document_.Now(), Texts(), messages_)) accept();
}

void EditPoint::Show_texts(const EditPointTexts& texts) {
    VTPX_->setText(To_qt(texts.VTPX));
    VTPY_->setText(To_qt(texts.VTPY));
    LOD13X_->setText(To_qt(texts.LOD13X));
    LOD13Y_->setText(To_qt(texts.LOD13Y));
}

EditPointTexts EditPoint::Texts() const {
    return {From_qt(VTPX_->text()), From_qt(VTPY_->text()), From_qt(LOD13X_->text()),
            From_qt(LOD13Y_->text()), Option2_->isChecked()};
}

}  // namespace tidemark
