#include "lwm/kill_frame_window.h"

#include <QVBoxLayout>

#include "lwm/kill_list.h"
#include "model/list_selection.h"
#include "platform/qt_keys.h"

namespace tidemark {

KillFrame::KillFrame(Project& project, Messages& messages, QWidget* parent)
    : QGroupBox("VTP Cleared cells", parent),
      project_(project),
      messages_(messages),
      KillListBox_(new ListBox("KillListBox", "VTP cleared cells")) {
    (new QVBoxLayout(this))->addWidget(KillListBox_);
    connect(KillListBox_, &ListBox::Clicked, this, &KillFrame::Graphics_outdated);
    connect(KillListBox_, &ListBox::Key_pressed, this, &KillFrame::KillListBox_KeyDown);
}

int KillFrame::Selected() const {
    return KillListBox_->Selected();
}

void KillFrame::Add_Kill_Cell() {
    if (tidemark::Add_Kill_Cell(project_, messages_)) Refresh_Kill_List();
}

void KillFrame::Refresh_Kill_List() {
    Show_cells(Selected());
}

void KillFrame::Show_cells(int selected) {
    KillListBox_->Show_lines(Kill_list_lines(project_),
                             Selected_after_refresh(selected, project_.KillCount));
    if (project_.PrefsSet) Q_EMIT SaveEntry_changed(Has_VTP_data(project_));
    Q_EMIT Graphics_outdated();
}

void KillFrame::KillListBox_KeyDown(int key_code) {
    const int selected = Selected();
    if (key_code != KeyDelete || selected < 0) return;
    Delete_Kill_Cell(project_, selected + 1);
    Show_cells(Selected_after_delete(selected, project_.KillCount));
}

}  // namespace tidemark
