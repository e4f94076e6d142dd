// The Status panel: the tool window beside the map.
#pragma once

#include <QBoxLayout>
#include <QLabel>
#include <QWidget>

#include "lwm/kill_frame_window.h"
#include "lwm/lwm_frame_window.h"
#include "vtp_edit/drawing_mode_frame_window.h"
#include "vtp_edit/vtp_frame_window.h"

namespace tidemark {

// One column of frames: the drawing mode, the three lists, the two cursor positions and two
// buttons. On a low screen some of them share a row. Closing it by its frame hides it.
class Status : public QWidget {
    Q_OBJECT

  public:
    Status(Document& document, Session& session, Messages& messages, QWidget* owner);

    DrawingModeFrame& Drawing_mode() { return *drawing_mode_; }
    VTPFrame& VTP() { return *vtp_; }
    LWMFrame& LWM() { return *lwm_; }
    KillFrame& Kill() { return *kill_; }

    ListBox& List(ListKind kind);

    // Shows the three lists as they are now.
    void Refresh();

    // The two lines that say where the cursor is.
    void Show_cursor(const QString& in_LOD8_cell, const QString& in_LOD13_cell);

  Q_SIGNALS:
    void RefreshButton_Click();
    void Graphics_outdated();  // another line of a list was selected
    void Show_wanted();        // a line was double-clicked
    void Edit_wanted();        // the dialog Edit Point is asked for
    // The panel has got a new size, or its first one; the first drawing mode is then selected.
    void Resized();

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void Wire_frames(Session& session);
    void Fit_to_screen(QBoxLayout& column);

    DrawingModeFrame* drawing_mode_;
    VTPFrame* vtp_;
    LWMFrame* lwm_;
    KillFrame* kill_;
    QLabel* StatusLabel1_;
    QLabel* StatusLabel2_;
};

}  // namespace tidemark
