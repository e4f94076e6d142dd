// The Cell Calculator dialog.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>

#include "georef/cell_calculator.h"
#include "model/session.h"

namespace tidemark {

// It is only hidden between its uses, so the texts stay as the user left them. Opened from the
// background properties (CalcFromBGproperties) it offers to copy the cell that it found.
class CellCalculator : public QDialog {
    Q_OBJECT

  public:
    CellCalculator(const Session& session, Messages& messages, QWidget* owner = nullptr);

  Q_SIGNALS:
    void Copy_wanted(const LOD8Cell& cell);

  private:
    void Lay_out();
    void CalcButton_Click();

    const Session& session_;
    Messages& messages_;
    QLineEdit* CalcLatText_;
    QComboBox* NScombo_;
    QLineEdit* CalcLonText_;
    QComboBox* EWcombo_;
};

}  // namespace tidemark
