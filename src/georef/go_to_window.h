// The dialog Go To.
#pragma once

#include <array>
#include <optional>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "georef/go_to.h"

namespace tidemark {

// Three rows tell one place; typing in one of them fills the others.
class GoTo : public QDialog {
    Q_OBJECT

  public:
    explicit GoTo(QWidget* owner = nullptr);

    // Shows the dialog with a place in its fields; the place that the user wants to see, or nothing
    // when it was closed in any other way than with OK.
    std::optional<VTPPlace> Ask(const Project& project, VTPPlace place);

  private:
    void Lay_out();
    void Field_edited(GoToWay way);
    void Show_place(const GoToTexts& texts, std::optional<GoToWay> but);
    GoToTexts Texts() const;

    const Project* project_ = nullptr;  // while the dialog is shown
    std::optional<VTPPlace> place_;
    std::array<QLineEdit*, 6> fields_;  // two to a way, in the order of GoToWay
    QLabel* RemarkLabel_;
    QPushButton* OkButton_;
};

}  // namespace tidemark
