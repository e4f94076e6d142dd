#include "app/status_panel_window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/qt_controls.h"

namespace tidemark {

namespace {

// A frame with one line about the cursor. The line does not widen the panel as it changes.
QLabel* Add_cursor_frame(QVBoxLayout& column, const QString& caption, const char* name) {
    auto* const frame = new QGroupBox(caption);
    auto* const label = Named<QLabel>(name, "--");
    label->setAccessibleName(caption);
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const layout = new QVBoxLayout(frame);
    layout->addWidget(label);
    column.addWidget(frame);
    return label;
}

QPushButton* Add_button(QHBoxLayout& row, const char* name, const QString& caption) {
    auto* const button = Named<QPushButton>(name, caption);
    row.addWidget(button);
    return button;
}

}  // namespace

Status::Status(Document& document, Session& session, Messages& messages, QWidget* owner)
    : QWidget(owner, Qt::Tool),
      drawing_mode_(new DrawingModeFrame(this)),
      vtp_(new VTPFrame(document, session, messages, this)),
      lwm_(new LWMFrame(document, session, messages, this)),
      kill_(new KillFrame(document, session, messages, this)) {
    setObjectName("Status");
    setWindowTitle("Tidemark - Status Panel");

    auto* const column = new QVBoxLayout(this);
    column->addWidget(drawing_mode_);
    column->addWidget(vtp_, 4);
    column->addWidget(lwm_, 3);
    column->addWidget(kill_, 2);
    StatusLabel1_ = Add_cursor_frame(*column, "LOD8 cell co-ordinates (VTP)", "StatusLabel1");
    StatusLabel2_ = Add_cursor_frame(*column, "LOD13 cell co-ordinates", "StatusLabel2");
    auto* const buttons = new QHBoxLayout;
    column->addLayout(buttons);

    const auto* const refresh = Add_button(*buttons, "RefreshButton", "Refresh Graphics");
    connect(refresh, &QPushButton::clicked, this, &Status::RefreshButton_Click);
    const auto* const hide_button = Add_button(*buttons, "HideButton", "Hide Status Panel");
    connect(hide_button, &QPushButton::clicked, this, &Status::hide);

    for (QLineEdit* const field : findChildren<QLineEdit*>())
        field->installEventFilter(new LeavesUndoToWindow(field));
    connect(drawing_mode_, &DrawingModeFrame::Mode_chosen, vtp_, &VTPFrame::Start_new_segment);
    connect(drawing_mode_, &DrawingModeFrame::Mode_chosen, lwm_, &LWMFrame::Mode_chosen);
    connect(vtp_, &VTPFrame::Graphics_outdated, this, &Status::Graphics_outdated);
    connect(lwm_, &LWMFrame::Graphics_outdated, this, &Status::Graphics_outdated);
    connect(kill_, &KillFrame::Graphics_outdated, this, &Status::Graphics_outdated);
}

void Status::Refresh() {
    vtp_->Refresh();
    lwm_->Refresh();
    kill_->Refresh();
}

void Status::Show_cursor(const QString& in_LOD8_cell, const QString& in_LOD13_cell) {
    StatusLabel1_->setText(in_LOD8_cell);
    StatusLabel2_->setText(in_LOD13_cell);
}

void Status::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    drawing_mode_->Select_mode(0);
    Q_EMIT Resized();
}

}  // namespace tidemark
