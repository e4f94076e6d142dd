// The Status panel's frame "Drawing Mode".
#pragma once

#include <string>

#include <QComboBox>
#include <QGroupBox>

#include "model/drawing_modes.h"

namespace tidemark {

class DrawingModeFrame : public QGroupBox {
    Q_OBJECT

  public:
    explicit DrawingModeFrame(QWidget* parent = nullptr);

    // The selected item's text; it says what a left click on the map adds.
    std::string Item() const;

    // Selects a mode by its place in DrawingModes; announced as the user's own choice is.
    void Select_mode(int index);

  Q_SIGNALS:
    // A mode was chosen, be it the one that was selected already.
    void Mode_chosen(const DrawingMode& mode);

  private:
    void DrawModeCombo_Click();

    QComboBox* DrawModeCombo_;
};

}  // namespace tidemark
