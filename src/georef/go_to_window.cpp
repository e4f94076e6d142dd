#include "georef/go_to_window.h"

#include <QGridLayout>

#include "platform/qt_active_window.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

struct Field {
    const char* Name;
    const char* Spoken;
};

constexpr std::array<Field, 6> Fields{{
    {"GoToColumn", "LOD13 column"},
    {"GoToRow", "LOD13 row"},
    {"GoToVTPX", "X in VTP units"},
    {"GoToVTPY", "Y in VTP units"},
    {"GoToLatitude", "Latitude"},
    {"GoToLongitude", "Longitude"},
}};

constexpr std::array<const char*, 3> RowCaptions{
    "LOD13 column and row:", "VTP X and Y:", "Latitude and longitude:"};

}  // namespace

GoTo::GoTo(QWidget* owner) : QDialog(owner), RemarkLabel_(Named<QLabel>("RemarkLabel")) {
    setObjectName("GoTo");
    setWindowTitle("Tidemark - Go To");
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        fields_[i] = Named_field(Fields[i].Name, Fields[i].Spoken);
        connect(fields_[i], &QLineEdit::textEdited, this,
                [this, way = static_cast<GoToWay>(i / 2)] { Field_edited(way); });
    }
    Lay_out();
}

void GoTo::Lay_out() {
    auto* const grid = new QGridLayout(this);
    for (std::size_t row = 0; row < RowCaptions.size(); ++row) {
        const int line = static_cast<int>(row);
        grid->addWidget(new QLabel(RowCaptions[row]), line, 0);
        grid->addWidget(fields_[2 * row], line, 1);
        grid->addWidget(fields_[2 * row + 1], line, 2);
    }
    QDialogButtonBox* const buttons = Ok_and_cancel(*this);
    OkButton_ = buttons->button(QDialogButtonBox::Ok);
    grid->addWidget(RemarkLabel_, 3, 0, 1, 3);
    grid->addWidget(buttons, 4, 0, 1, 3);
    grid->setSizeConstraint(QLayout::SetFixedSize);
}

std::optional<VTPPlace> GoTo::Ask(const Project& project, VTPPlace place) {
    project_ = &project;
    place_ = place;
    Show_place(Texts_of_place(project, place), std::nullopt);
    fields_[0]->setFocus();
    fields_[0]->selectAll();
    const ActiveWindow active_window;
    return exec() == QDialog::Accepted ? place_ : std::nullopt;
}

GoToTexts GoTo::Texts() const {
    return {From_qt(fields_[0]->text()), From_qt(fields_[1]->text()), From_qt(fields_[2]->text()),
            From_qt(fields_[3]->text()), From_qt(fields_[4]->text()), From_qt(fields_[5]->text())};
}

void GoTo::Field_edited(GoToWay way) {
    place_ = Place_told(*project_, Texts(), way);
    Show_place(place_ ? Texts_of_place(*project_, *place_) : Texts(), way);
}

// Fills the fields of all ways but the one that is typed in.
void GoTo::Show_place(const GoToTexts& texts, std::optional<GoToWay> but) {
    const std::array all{texts.Column, texts.Row,      texts.VTPX,
                         texts.VTPY,   texts.Latitude, texts.Longitude};
    for (std::size_t i = 0; i < fields_.size(); ++i)
        if (!but || static_cast<GoToWay>(i / 2) != *but) fields_[i]->setText(To_qt(all[i]));
    const QString remark = To_qt(Not_on_map(*project_, place_));
    RemarkLabel_->setText(remark);
    OkButton_->setEnabled(remark.isEmpty());
}

}  // namespace tidemark
