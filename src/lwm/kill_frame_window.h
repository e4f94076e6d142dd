// The Status panel's frame "VTP Cleared cells".
#pragma once

#include <QGroupBox>

#include "model/document.h"
#include "platform/messages.h"
#include "platform/qt_list_box.h"

namespace tidemark {

class KillFrame : public QGroupBox {
    Q_OBJECT

  public:
    KillFrame(Document& document, Session& session, Messages& messages, QWidget* parent = nullptr);

    // Adds an entry for the cursor's cell, of the clear code of the last click.
    void Add_Kill_Cell();
    // Shows the project's cleared cells and the selection as they are now.
    void Refresh();

  private:
    Document& document_;
    Session& session_;
    Messages& messages_;
    ListBox* KillListBox_;
};

}  // namespace tidemark
