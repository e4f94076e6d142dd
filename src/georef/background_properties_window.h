// The Background Properties dialog.
#pragma once

#include <array>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>

#include "georef/background_properties.h"
#include "georef/cell_calculator_window.h"

namespace tidemark {

// There is no way out but OK: closing it in any other way counts as OK.
class BGproperties : public QDialog {
    Q_OBJECT

  public:
    BGproperties(Session& session, CellCalculator& calculator, QWidget* owner = nullptr);

    // Shows the dialog with these texts in its fields and returns, when it has been closed, what
    // stands in them then.
    GeoreferenceTexts Ask(const GeoreferenceTexts& texts);

    void reject() override;

  private:
    void Lay_out();
    QWidget* LOD8_frame();
    QWidget* LOD13_frame();
    void LOD8X_Change();
    void OKButton_Click();
    void ShowCalc_Click();
    void Copy_cell(const LOD8Cell& cell);

    Session& session_;
    CellCalculator& calculator_;
    std::array<QLineEdit*, GeoreferenceFields.size()> fields_;  // in the order of the table
    QLabel *LatLabel_, *LonLabel_;
    QLabel *HiddenLat_, *HiddenLon_;  // never shown
};

}  // namespace tidemark
