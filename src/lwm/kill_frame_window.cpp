#include "lwm/kill_frame_window.h"

#include <QVBoxLayout>

namespace tidemark {

KillFrame::KillFrame(Project& project, Messages& messages, QWidget* parent)
    : QGroupBox("VTP Cleared cells", parent),
      project_(project),
      messages_(messages),
      KillListBox_(new ListBox("KillListBox", "VTP cleared cells")) {
    (new QVBoxLayout(this))->addWidget(KillListBox_);
    connect(KillListBox_, &ListBox::Clicked, this, &KillFrame::Graphics_outdated);
}

int KillFrame::Selected() const {
    return KillListBox_->Selected();
}

}  // namespace tidemark
