#include "vtp_edit/vtp_frame_window.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "model/text_forms.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"
#include "vtp_edit/vtp_commands.h"
#include "vtp_edit/vtp_list.h"
#include "vtp_edit/vtp_points.h"

namespace tidemark {

VTPFrame::VTPFrame(Document& document, Session& session, Messages& messages, QWidget* parent)
    : QGroupBox("VTP points / segments", parent),
      document_(document),
      session_(session),
      messages_(messages),
      VTPlistbox_(new ListBox(
          "VTPlistbox", "VTP points and segments",
          {[&document] { return VTP_list_lines(document.Now()); }, session.Panel.SelectedPoint,
           [&document, &session] { Delete_selected_point(document, session); }})),
      NewSegment_(Named<QCheckBox>("NewSegment", "Start new segment")),
      VTPwidthText_(
          Named_field("VTPwidthText", "Current segment width", To_qt(DefaultVTPWidthText))) {
    Lay_out();
    connect(NewSegment_, &QCheckBox::toggled, this,
            [this](bool checked) { session_.Panel.NewSegment = checked; });
}

void VTPFrame::Lay_out() {
    NewSegment_->setChecked(session_.Panel.NewSegment);
    auto* const label = new QLabel("Current segment width:");
    label->setBuddy(VTPwidthText_);
    auto* const change = Named<QPushButton>("ChangeButton", "Change segment width");
    auto* const reverse = Named<QPushButton>("ReverseButton", "Reverse segment");
    auto* const edit = Named<QPushButton>("EditButton", "Edit point");

    auto* const grid = new QGridLayout(this);
    grid->addWidget(VTPlistbox_, 0, 0, 1, 2);
    grid->addWidget(NewSegment_, 1, 0, 1, 2);
    grid->addWidget(label, 2, 0);
    grid->addWidget(VTPwidthText_, 2, 1);
    grid->addWidget(change, 3, 0, 1, 2);
    grid->addWidget(reverse, 4, 0);
    grid->addWidget(edit, 4, 1);
    grid->setRowStretch(0, 1);
    connect(change, &QPushButton::clicked, this, &VTPFrame::ChangeButton_Click);
    connect(reverse, &QPushButton::clicked, this, &VTPFrame::ReverseButton_Click);
    connect(edit, &QPushButton::clicked, this, &VTPFrame::EditButton_clicked);
}

void VTPFrame::Save_height() {
    auto& grid = static_cast<QGridLayout&>(*layout());
    const auto put = [&](const char* name, int row, int column, int columns) {
        grid.addWidget(findChild<QWidget*>(name), row, column, 1, columns);
    };
    put("VTPlistbox", 0, 0, 3);
    put("ChangeButton", 2, 2, 1);
    put("ReverseButton", 4, 0, 2);
    put("EditButton", 4, 2, 1);
}

void VTPFrame::Start_new_segment() {
    NewSegment_->setChecked(true);
}

std::optional<Int16> VTPFrame::Typed_width() {
    // Before a warning stands over it.
    const std::string text = Whole_number_text(From_qt(VTPwidthText_->text()));
    VTPwidthText_->setText(To_qt(text));
    const WidthResult result = Take_width(text, messages_);
    VTPwidthText_->setText(To_qt(result.Text));
    return result.Width;
}

void VTPFrame::Add_VTP_Point() {
    if (const auto width = Typed_width()) Click_point(document_, session_, *width, messages_);
}

void VTPFrame::Refresh() {
    VTPlistbox_->Refresh();
    NewSegment_->setChecked(session_.Panel.NewSegment);
}

void VTPFrame::ChangeButton_Click() {
    if (const auto width = Typed_width()) Change_selected_width(document_, session_, *width);
}

void VTPFrame::ReverseButton_Click() {
    Reverse_selected_segment(document_, session_);
}

}  // namespace tidemark
