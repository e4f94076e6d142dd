#include "vtp_edit/vtp_frame_window.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "model/list_selection.h"
#include "model/segments.h"
#include "platform/qt_controls.h"
#include "platform/qt_keys.h"
#include "platform/qt_text.h"
#include "vtp_edit/vtp_list.h"
#include "vtp_edit/vtp_points.h"

namespace tidemark {

VTPFrame::VTPFrame(Project& project, Messages& messages, QWidget* parent)
    : QGroupBox("VTP points / segments", parent),
      project_(project),
      messages_(messages),
      VTPlistbox_(new ListBox("VTPlistbox", "VTP points and segments")),
      NewSegment_(Named<QCheckBox>("NewSegment", "Start new segment")),
      VTPwidthText_(
          Named_field("VTPwidthText", "Current segment width", To_qt(DefaultVTPWidthText))) {
    Lay_out();
    connect(VTPlistbox_, &ListBox::Clicked, this, &VTPFrame::Graphics_outdated);
    connect(VTPlistbox_, &ListBox::Key_pressed, this, &VTPFrame::VTPlistbox_KeyDown);
}

void VTPFrame::Lay_out() {
    NewSegment_->setChecked(true);
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

int VTPFrame::Selected() const {
    return VTPlistbox_->Selected();
}

void VTPFrame::Select(int position) {
    VTPlistbox_->Select(position);
}

void VTPFrame::Start_new_segment() {
    NewSegment_->setChecked(true);
}

std::optional<Int16> VTPFrame::Typed_width() {
    std::string text = From_qt(VTPwidthText_->text());
    const std::optional<Int16> width = Take_width(text, messages_);
    VTPwidthText_->setText(To_qt(text));
    return width;
}

void VTPFrame::Add_VTP_Point() {
    const std::optional<Int16> width = Typed_width();
    if (!width) return;
    const NextPoint next{Selected(), NewSegment_->isChecked(), *width};
    const std::optional<int> added = tidemark::Add_VTP_Point(project_, next, messages_);
    if (!added) return;
    NewSegment_->setChecked(false);
    Show_points(*added);
}

void VTPFrame::Refresh_VTP_List() {
    Show_points(Selected());
}

void VTPFrame::Show_points(int selected) {
    Repair_segments(project_);
    VTPlistbox_->Show_lines(VTP_list_lines(project_),
                            Selected_after_refresh(selected, project_.VTPCount));
    if (project_.PrefsSet) Q_EMIT SaveEntry_changed(Has_VTP_data(project_));
    Q_EMIT Graphics_outdated();
}

void VTPFrame::VTPlistbox_KeyDown(int key_code) {
    const int selected = Selected();
    if (key_code != KeyDelete || selected < 0) return;
    Delete_VTP_Point(project_, selected + 1);
    Show_points(Selected_after_delete(selected, project_.VTPCount));
}

void VTPFrame::ChangeButton_Click() {
    const std::optional<Int16> width = Typed_width();
    if (!width || Selected() < 0) return;
    Change_segment_width(project_, Selected() + 1, *width);
    Refresh_VTP_List();
}

void VTPFrame::ReverseButton_Click() {
    if (Selected() < 0) return;
    Reverse_segment(project_, Selected() + 1);
    Refresh_VTP_List();
}

}  // namespace tidemark
