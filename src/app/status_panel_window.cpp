#include "app/status_panel_window.h"

#include <QAccessibleWidget>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "platform/qt_controls.h"

namespace tidemark {

namespace {

// A frame with one line about the cursor. The line does not widen the panel as it changes.
QLabel* Add_cursor_frame(QVBoxLayout& column, const QString& caption, const char* name) {
    auto* const frame = new QGroupBox(caption);
    auto* const label = Named<QLabel>(name, "--");
    label->setTextFormat(Qt::PlainText);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* const layout = new QVBoxLayout(frame);
    layout->addWidget(label);
    column.addWidget(frame);
    return label;
}

// A label is its text to assistive tools; without its frame nobody knew what the numbers are.
void Show_position(QLabel& label, const QString& text) {
    const auto& frame = static_cast<const QGroupBox&>(*label.parentWidget());
    label.setText(text);
    label.setAccessibleName(frame.title() + ": " + text);
}

QPushButton* Add_button(QHBoxLayout& row, const char* name, const QString& caption) {
    auto* const button = Named<QPushButton>(name, caption);
    row.addWidget(button);
    return button;
}

// Moves two frames that are one above the other into one row.
void Put_side_by_side(QBoxLayout& column, QWidget* upper, QWidget* lower, int stretch) {
    const int place = column.indexOf(upper);
    auto* const row = new QHBoxLayout;
    for (QWidget* const frame : {upper, lower}) {
        column.removeWidget(frame);
        row->addWidget(frame, frame == upper ? 4 : 3);  // the upper one has the longer lines
    }
    column.insertLayout(place, row, stretch);
}

// What assistive tools call the panel: by itself Qt calls only dialogs and main windows so.
QAccessibleInterface* Window_interface(const QString& class_name, QObject* object) {
    if (class_name != QLatin1String(Status::staticMetaObject.className())) return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Window);
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
    QAccessible::installFactory(Window_interface);

    auto* const column = new QVBoxLayout(this);
    column->addWidget(drawing_mode_);
    column->addWidget(vtp_, 4);
    column->addWidget(lwm_, 3);
    column->addWidget(kill_, 2);
    StatusLabel1_ = Add_cursor_frame(*column, "LOD8 cell co-ordinates (VTP)", "StatusLabel1");
    StatusLabel2_ = Add_cursor_frame(*column, "LOD13 cell co-ordinates", "StatusLabel2");
    Show_cursor("--", "--");
    auto* const buttons = new QHBoxLayout;
    column->addLayout(buttons);

    const auto* const refresh = Add_button(*buttons, "RefreshButton", "Refresh Graphics");
    connect(refresh, &QPushButton::clicked, this, &Status::RefreshButton_Click);
    const auto* const hide_button = Add_button(*buttons, "HideButton", "Hide Status Panel");
    connect(hide_button, &QPushButton::clicked, this, &Status::hide);

    Fit_to_screen(*column);

    for (QLineEdit* const field : findChildren<QLineEdit*>())
        field->installEventFilter(new LeavesUndoToWindow(field));
    Wire_frames(session);
}

void Status::Wire_frames(Session& session) {
    connect(drawing_mode_, &DrawingModeFrame::Mode_chosen, vtp_, &VTPFrame::Start_new_segment);
    connect(drawing_mode_, &DrawingModeFrame::Mode_chosen, lwm_, &LWMFrame::Mode_chosen);
    connect(vtp_, &VTPFrame::EditButton_clicked, this, &Status::Edit_wanted);
    for (const ListKind kind : {ListKind::Points, ListKind::Polygons, ListKind::ClearedCells}) {
        const auto choose = [&session, kind] { session.LastChosen = kind; };
        ListBox& list = List(kind);
        connect(&list, &ListBox::Clicked, this, choose);
        connect(&list, &ListBox::Clicked, this, &Status::Graphics_outdated);
        connect(&list, &ListBox::Double_clicked, this, choose);
        connect(&list, &ListBox::Double_clicked, this, &Status::Show_wanted);
    }
}

ListBox& Status::List(ListKind kind) {
    QWidget* const frame = kind == ListKind::Points     ? static_cast<QWidget*>(vtp_)
                           : kind == ListKind::Polygons ? static_cast<QWidget*>(lwm_)
                                                        : kill_;
    return *frame->findChild<ListBox*>();
}

// A screen that is too low for lists of six lines in one column gets the shorter ones, and the two
// positions, side by side.
void Status::Fit_to_screen(QBoxLayout& column) {
    constexpr int around = 72;     // pixels, the window frame's title and what is left free
    constexpr int more_lines = 2;  // than a list asks for by itself
    const int lists = static_cast<int>(findChildren<ListBox*>().size());
    const int wanted = sizeHint().height() + lists * more_lines * fontMetrics().height();
    if (wanted <= screen()->availableGeometry().height() - around) return;
    constexpr int margin = 6, spacing = 3;  // pixels
    constexpr int shortest_line = 22;       // characters
    vtp_->Save_height();
    // Lists of about one height: the frame of the points holds one line of controls more.
    column.setStretchFactor(vtp_, 8);
    Put_side_by_side(column, lwm_, kill_, 7);
    Put_side_by_side(column, StatusLabel1_->parentWidget(), StatusLabel2_->parentWidget(), 0);
    column.setContentsMargins(margin, margin, margin, margin);
    column.setSpacing(spacing);
    for (const QGroupBox* const frame : findChildren<QGroupBox*>()) {
        frame->layout()->setContentsMargins(margin, spacing, margin, spacing);
        frame->layout()->setSpacing(spacing);
    }
    for (ListBox* const list : findChildren<ListBox*>()) {
        list->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        list->setMinimumWidth(shortest_line * fontMetrics().averageCharWidth());
    }
}

void Status::Refresh() {
    vtp_->Refresh();
    lwm_->Refresh();
    kill_->Refresh();
}

void Status::Show_cursor(const QString& in_LOD8_cell, const QString& in_LOD13_cell) {
    Show_position(*StatusLabel1_, in_LOD8_cell);
    Show_position(*StatusLabel2_, in_LOD13_cell);
}

void Status::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    drawing_mode_->Select_mode(0);
    Q_EMIT Resized();
}

}  // namespace tidemark
