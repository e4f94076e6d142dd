// The Status panel's frame "VTP Cleared cells".
#pragma once

#include <QGroupBox>

#include "model/project.h"
#include "platform/messages.h"
#include "platform/qt_list_box.h"

namespace tidemark {

class KillFrame : public QGroupBox {
    Q_OBJECT

  public:
    KillFrame(Project& project, Messages& messages, QWidget* parent = nullptr);

    // The selected entry's list position (entry - 1); -1 for none.
    int Selected() const;

    // Adds an entry for the cursor's cell, of the clear code of the last click.
    void Add_Kill_Cell();
    // Shows the project's cleared cells as they are now; the selection stays as far as it can.
    void Refresh_Kill_List();

  Q_SIGNALS:
    void Graphics_outdated();              // the map has to be drawn again
    void SaveEntry_changed(bool enabled);  // of the menu entry VTPsave

  private:
    void KillListBox_KeyDown(int key_code);
    void Show_cells(int selected);

    Project& project_;
    Messages& messages_;
    ListBox* KillListBox_;
};

}  // namespace tidemark
