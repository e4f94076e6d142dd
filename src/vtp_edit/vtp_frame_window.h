// The Status panel's frame "VTP points / segments".
#pragma once

#include <optional>

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

#include "model/project.h"
#include "platform/messages.h"
#include "platform/qt_list_box.h"

namespace tidemark {

class VTPFrame : public QGroupBox {
    Q_OBJECT

  public:
    VTPFrame(Project& project, Messages& messages, QWidget* parent = nullptr);

    // The selected point's list position (point - 1); -1 for none.
    int Selected() const;
    // Runs the list's click handler when it selects another point than before.
    void Select(int position);

    // The next point added starts a new segment.
    void Start_new_segment();

    // Adds a point at the cursor, in the drawing mode of the last click, and selects it.
    void Add_VTP_Point();
    // Shows the project's points as they are now; the selection stays as far as it can.
    void Refresh_VTP_List();

    void VTPlistbox_KeyDown(int key_code);

  Q_SIGNALS:
    void Graphics_outdated();              // the map has to be drawn again
    void SaveEntry_changed(bool enabled);  // of the menu entry VTPsave
    void EditButton_clicked();             // the Edit Point dialog is asked for

  private:
    void Lay_out();
    void ChangeButton_Click();
    void ReverseButton_Click();
    std::optional<Int16> Typed_width();
    void Show_points(int selected);

    Project& project_;
    Messages& messages_;
    ListBox* VTPlistbox_;
    QCheckBox* NewSegment_;
    QLineEdit* VTPwidthText_;
};

}  // namespace tidemark
