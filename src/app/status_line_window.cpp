#include "app/status_line_window.h"

#include "app/status_texts.h"
#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

// On a narrow window it gives way to the others and to messages.
QLabel* Add_label(QStatusBar& bar, const char* name) {
    auto* const label = Named<QLabel>(name);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(1);
    bar.addPermanentWidget(label);
    return label;
}

}  // namespace

StatusLine::StatusLine(QStatusBar& bar)
    : QObject(&bar),
      bar_(bar),
      CountsLabel_(Add_label(bar, "CountsLabel")),
      PlaceLabel_(Add_label(bar, "PlaceLabel")),
      DistanceLabel_(Add_label(bar, "DistanceLabel")) {
    Show_counts(Project());
    // What does not fit the line can be read whole in the tooltip.
    connect(&bar, &QStatusBar::messageChanged, &bar, &QStatusBar::setToolTip);
}

void StatusLine::Say(const std::string& text) {
    bar_.showMessage(To_qt(text));
}

void StatusLine::Remark(const QString& text) {
    if (!text.isEmpty() || bar_.currentMessage() == remark_) bar_.showMessage(text);
    remark_ = text;
}

void StatusLine::Show_counts(const Project& project) {
    CountsLabel_->setText(To_qt(Counts_text(project)));
}

void StatusLine::Show_place(const Project& project, const Session& session) {
    PlaceLabel_->setText(To_qt(Cursor_position_text(project, session)));
    DistanceLabel_->setText(To_qt(Distance_text(project, session)));
}

}  // namespace tidemark
