#include "platform/qt_patience.h"

#include <utility>

#include <QApplication>
#include <QKeyEvent>
#include <QScopeGuard>
#include <QTimer>

#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

bool Is_input(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ShortcutOverride:
        case QEvent::InputMethod:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
            return true;
        default:
            return false;
    }
}

bool Is_drag(QEvent::Type type) {
    return type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
}

bool Is_escape(const QEvent& event) {
    return event.type() == QEvent::KeyPress &&
           static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

}  // namespace

bool QtPatience::Wait(const std::string& what_for, int milliseconds) {
    if (!busy_) Begin();
    status_bar_.showMessage(To_qt(what_for));
    if (!cancelled_) Let_pass(milliseconds, QEventLoop::AllEvents);
    return !cancelled_;
}

void QtPatience::Wait_a_moment(int milliseconds) {
    Let_pass(milliseconds, QEventLoop::ExcludeUserInputEvents);
}

void QtPatience::Over(const std::string& outcome) {
    if (!busy_) return;
    busy_.reset();
    status_bar_.removeWidget(cancel_button_);
    status_bar_.showMessage(To_qt(outcome));
    if (!to_close_.isEmpty()) QTimer::singleShot(0, this, &QtPatience::Close_windows);
}

void QtPatience::Begin() {
    busy_.emplace(Qt::BusyCursor);
    cancelled_ = false;
    if (!cancel_button_) {
        cancel_button_ = Named<QPushButton>("CancelButton", "Cancel");
        cancel_button_->setFocusPolicy(Qt::NoFocus);  // the keyboard has Esc, and stays where it is
        connect(cancel_button_, &QPushButton::clicked, this, &QtPatience::Cancel);
    }
    // A higher status bar would leave the map less room, and have it loaded again.
    cancel_button_->setFixedHeight(status_bar_.fontMetrics().height());
    status_bar_.addPermanentWidget(cancel_button_);
    cancel_button_->show();
}

// The filter is there only meanwhile, so that no error on the way can leave it behind.
void QtPatience::Let_pass(int milliseconds, QEventLoop::ProcessEventsFlags events) {
    qApp->installEventFilter(this);
    QEventLoop loop;
    loop_ = &loop;
    const auto restore = qScopeGuard([this] {
        loop_ = nullptr;
        qApp->removeEventFilter(this);
    });
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec(events);
    if (!busy_ && !to_close_.isEmpty()) QTimer::singleShot(0, this, &QtPatience::Close_windows);
}

void QtPatience::Cancel() {
    cancelled_ = true;
    if (loop_) loop_->quit();
}

// A box that has come up first is answered first.
void QtPatience::Close_windows() {
    constexpr int look_again = 100;  // milliseconds
    if (QApplication::activeModalWidget()) {
        QTimer::singleShot(look_again, this, &QtPatience::Close_windows);
        return;
    }
    for (const QPointer<QWidget>& window : std::exchange(to_close_, {}))
        if (window) window->close();
}

bool QtPatience::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::Shortcut) return true;  // whatever it would set off
    if (!watched->isWidgetType() || watched == cancel_button_) return false;
    if (type == QEvent::Close) {
        event->ignore();
        to_close_.append(static_cast<QWidget*>(watched));
        return true;
    }
    if (Is_drag(type)) event->ignore();
    if (Is_escape(*event)) Cancel();
    return Is_input(type) || Is_drag(type);
}

}  // namespace tidemark
