// The dialog Fill Along the Coast.
#pragma once

#include <optional>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "coast/fill.h"

namespace tidemark {

// Counts what the choices would fill before anything is filled.
class FillCoast : public QDialog {
    Q_OBJECT

  public:
    explicit FillCoast(QWidget* owner = nullptr);

    // Shows what would be filled from the polygon (numbered from 1; 0: none is chosen) on. The plan
    // that the user wants, or nothing when the dialog was closed in any other way than with OK.
    // `view`: the cells that are in view.
    std::optional<FillPlan> Ask(const Project& project, int polygon,
                                const std::optional<CellRange>& view);

  private:
    void Lay_out();
    void Choices_changed();
    FillOptions Options() const;

    const Project* project_ = nullptr;  // while the dialog is shown
    int polygon_ = 0;
    std::optional<CellRange> view_;
    FillPlan plan_;
    QLabel* FillStartLabel_;
    QCheckBox *FillWater_, *FillLand_, *FillInside_, *FillInView_;
    QLabel* FillCountLabel_;
    QListWidget* FillStopList_;
    QPushButton* OkButton_ = nullptr;
};

}  // namespace tidemark
