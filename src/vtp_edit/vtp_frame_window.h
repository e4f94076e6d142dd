// The Status panel's frame "VTP points / segments".
#pragma once

#include <optional>

#include <QCheckBox>
#include <QGroupBox>
#include <QLineEdit>

#include "model/document.h"
#include "platform/messages.h"
#include "platform/qt_list_box.h"

namespace tidemark {

class VTPFrame : public QGroupBox {
    Q_OBJECT

  public:
    VTPFrame(Document& document, Session& session, Messages& messages, QWidget* parent = nullptr);

    // Puts the button for the width beside the width, for a low screen.
    void Save_height();

    // The next point added starts a new segment.
    void Start_new_segment();

    // Adds a point at the cursor, in the drawing mode of the last click, and selects it.
    void Add_VTP_Point();
    // Shows the project's points, the selection and the check of NewSegment as they are now.
    void Refresh();

  Q_SIGNALS:
    void EditButton_clicked();  // the Edit Point dialog is asked for

  private:
    void Lay_out();
    void ChangeButton_Click();
    void ReverseButton_Click();
    std::optional<Int16> Typed_width();

    Document& document_;
    Session& session_;
    Messages& messages_;
    ListBox* VTPlistbox_;
    QCheckBox* NewSegment_;
    QLineEdit* VTPwidthText_;
};

}  // namespace tidemark
