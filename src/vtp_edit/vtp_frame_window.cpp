#include "vtp_edit/vtp_frame_window.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace tidemark {

namespace {

QPushButton* Button(const char* name, const char* caption) {
    auto* const button = new QPushButton(caption);
    button->setObjectName(name);
    return button;
}

}  // namespace

VTPFrame::VTPFrame(Project& project, Messages& messages, QWidget* parent)
    : QGroupBox("VTP points / segments", parent),
      project_(project),
      messages_(messages),
      VTPlistbox_(new ListBox("VTPlistbox", "VTP points and segments")),
      NewSegment_(new QCheckBox("Start new segment")),
      VTPwidthText_(new QLineEdit("80")) {
    Lay_out();
    connect(VTPlistbox_, &ListBox::Clicked, this, &VTPFrame::Graphics_outdated);
}

void VTPFrame::Lay_out() {
    NewSegment_->setObjectName("NewSegment");
    NewSegment_->setChecked(true);
    VTPwidthText_->setObjectName("VTPwidthText");
    VTPwidthText_->setAccessibleName("Current segment width");
    auto* const label = new QLabel("Current segment width:");
    label->setBuddy(VTPwidthText_);
    QPushButton* const change = Button("ChangeButton", "Change segment width");
    QPushButton* const reverse = Button("ReverseButton", "Reverse segment");
    QPushButton* const edit = Button("EditButton", "Edit point");

    auto* const grid = new QGridLayout(this);
    grid->addWidget(VTPlistbox_, 0, 0, 1, 2);
    grid->addWidget(NewSegment_, 1, 0, 1, 2);
    grid->addWidget(label, 2, 0);
    grid->addWidget(VTPwidthText_, 2, 1);
    grid->addWidget(change, 3, 0, 1, 2);
    grid->addWidget(reverse, 4, 0);
    grid->addWidget(edit, 4, 1);
    grid->setRowStretch(0, 1);
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

}  // namespace tidemark
