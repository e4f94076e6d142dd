#include "lwm/kill_frame_window.h"

#include <QVBoxLayout>

#include "lwm/kill_list.h"
#include "lwm/lwm_commands.h"

namespace tidemark {

KillFrame::KillFrame(Document& document, Session& session, Messages& messages, QWidget* parent)
    : QGroupBox("VTP Cleared cells", parent),
      document_(document),
      session_(session),
      messages_(messages),
      KillListBox_(new ListBox(
          "KillListBox", "VTP cleared cells",
          {[&document] { return Kill_list_lines(document.Now()); }, session.Panel.SelectedCell,
           [&document, &session] { Delete_selected_cleared_cell(document, session); }})) {
    (new QVBoxLayout(this))->addWidget(KillListBox_);
}

void KillFrame::Add_Kill_Cell() {
    Click_cleared_cell(document_, session_, messages_);
}

void KillFrame::Refresh() {
    KillListBox_->Refresh();
}

}  // namespace tidemark
