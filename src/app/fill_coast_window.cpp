#include "app/fill_coast_window.h"

#include <utility>

#include <QVBoxLayout>

#include "lwm/cell_text.h"
#include "lwm/lwm_list.h"
#include "model/drawing_modes.h"
#include "platform/qt_active_window.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

QString Stop_line(const FillStop& stop) {
    return To_qt(Cell_text(stop.Cell.Column, stop.Cell.Row) + " " + stop.Why);
}

}  // namespace

FillCoast::FillCoast(QWidget* owner)
    : QDialog(owner),
      FillStartLabel_(Named<QLabel>("FillStartLabel")),
      FillWater_(Named<QCheckBox>("FillWater", "&Water polygons")),
      FillLand_(Named<QCheckBox>("FillLand", "&Land polygons")),
      FillInside_(Named<QCheckBox>("FillInside", "Cells &that no coastline crosses, too")),
      FillInView_(Named<QCheckBox>("FillInView", "Only the cells in &view")),
      FillCountLabel_(Named<QLabel>("FillCountLabel")),
      FillStopList_(Captionless<QListWidget>("FillStopList", "Cells at which filling stops")) {
    setObjectName("FillCoast");
    setWindowTitle("Tidemark - Fill Along the Coast");
    for (QCheckBox* const box : {FillWater_, FillLand_, FillInside_, FillInView_})
        connect(box, &QCheckBox::clicked, this, &FillCoast::Choices_changed);
    Lay_out();
}

void FillCoast::Lay_out() {
    auto* const column = new QVBoxLayout(this);
    for (QLabel* const label : {FillStartLabel_, FillCountLabel_}) label->setWordWrap(true);
    // Two lines, so that the window keeps its size while the counts change.
    FillCountLabel_->setMinimumHeight(3 * FillCountLabel_->fontMetrics().lineSpacing());
    FillCountLabel_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    column->addWidget(FillStartLabel_);
    for (QCheckBox* const box : {FillWater_, FillLand_, FillInside_, FillInView_})
        column->addWidget(box);
    column->addWidget(FillCountLabel_);
    auto* const stops = new QLabel("&Stops at:");
    stops->setBuddy(FillStopList_);
    column->addWidget(stops);
    column->addWidget(FillStopList_);
    QDialogButtonBox* const buttons = Ok_and_cancel(*this);
    OkButton_ = buttons->button(QDialogButtonBox::Ok);
    column->addWidget(buttons);
    setMinimumWidth(64 * fontMetrics().averageCharWidth());
}

std::optional<FillPlan> FillCoast::Ask(const Project& project, int polygon,
                                       const std::optional<CellRange>& view) {
    project_ = &project;
    polygon_ = polygon;
    view_ = view;
    const bool is_chosen = polygon >= 1 && polygon <= project.LWMCount;
    const bool is_water = is_chosen && project.LWMType(polygon) == WaterPolygon;
    FillStartLabel_->setText(is_chosen ? "From " + To_qt(LWM_list_line(project, polygon))
                                       : QString());
    FillWater_->setChecked(is_water);
    FillLand_->setChecked(is_chosen && !is_water);
    FillInView_->setEnabled(view.has_value());
    if (!view) FillInView_->setChecked(false);
    Choices_changed();
    FillWater_->setFocus();
    const ActiveWindow active_window;
    return exec() == QDialog::Accepted ? std::optional(std::move(plan_)) : std::nullopt;
}

FillOptions FillCoast::Options() const {
    return {FillWater_->isChecked(), FillLand_->isChecked(), FillInside_->isChecked(),
            FillInView_->isChecked() ? view_ : std::nullopt};
}

void FillCoast::Choices_changed() {
    const FillOptions options = Options();
    plan_ = Plan_fill(*project_, polygon_, options);
    std::string text = plan_.Refusal.empty() ? Fill_count_text(plan_) : plan_.Refusal;
    if (!plan_.Fits()) text += "\n" + Fill_advice(*project_, polygon_, options, view_);
    FillCountLabel_->setText(To_qt(text));
    FillStopList_->clear();
    for (const FillStop& stop : plan_.Stops) FillStopList_->addItem(Stop_line(stop));
    OkButton_->setEnabled(plan_.Refusal.empty() && !plan_.Polygons.empty() && plan_.Fits());
}

}  // namespace tidemark
