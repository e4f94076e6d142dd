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

  Q_SIGNALS:
    void Graphics_outdated();              // the map has to be drawn again
    void SaveEntry_changed(bool enabled);  // of the menu entry VTPsave

  private:
    Project& project_;
    Messages& messages_;
    ListBox* KillListBox_;
};

}  // namespace tidemark
