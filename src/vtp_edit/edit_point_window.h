// The Edit Point dialog.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "model/document.h"
#include "platform/messages.h"
#include "vtp_edit/edit_point.h"

namespace tidemark {

class EditPoint : public QDialog {
    Q_OBJECT

  public:
    EditPoint(Document& document, Session& session, Messages& messages, QWidget* owner = nullptr);

    // Shows a point's place, waits until the dialog is closed and stores what was entered. Closed
    // in any other way than with OK it changes nothing.
    void Edit(int point);

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Lay_out();
    void Option_Click();
    void OKButton_Click();
    void Show_texts(const EditPointTexts& texts);
    EditPointTexts Texts() const;

    Document& document_;
    Session& session_;
    Messages& messages_;
    QRadioButton* Option1_;  // VTP units
    QRadioButton* Option2_;  // position in the cell
    QWidget* VTP_fields_;
    QWidget* cell_fields_;
    QLineEdit *VTPX_, *VTPY_;
    QLineEdit *LOD13X_, *LOD13Y_;
    QLabel* CellLabel_;
};

}  // namespace tidemark
