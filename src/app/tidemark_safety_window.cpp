// What the main window does so that no work is lost.
#include <QApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QStatusBar>
#include <QTimer>

#include "app/project_commands.h"
#include "app/recovery_commands.h"
#include "app/tidemark_main_window.h"
#include "platform/ending_signals.h"
#include "platform/qt_text.h"

namespace tidemark {

void TidemarkMain::Keep_work_in(const std::string& folder) {
    recovery_ = std::make_unique<RecoveryKeeper>(folder, document_, platform_);
    connect(recovery_.get(), &RecoveryKeeper::Remarked, this,
            [this](const QString& text) { Say(From_qt(text)); });
    QTimer::singleShot(0, this, &TidemarkMain::Offer_lost_work);
    if (const int signals = Pipe_of_ending_signals(); signals >= 0) {
        auto* const notifier = new QSocketNotifier(signals, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this,
                [this, signals] { End_from_outside(signals); });
    }
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &TidemarkMain::Session_ends);
}

// The desktop closes the windows next, and nobody is there to answer; unless the user thinks better
// of it, which the next command or a minute without an end tells.
void TidemarkMain::Session_ends() {
    constexpr int long_enough = 60000;  // milliseconds
    recovery_->Write_now();
    is_session_ending_ = true;
    QTimer::singleShot(long_enough, this, [this] { is_session_ending_ = false; });
}

void TidemarkMain::Wire_watch() {
    connect(watch_, &ProjectWatch::Changed, this, [this](const QString& path) {
        Say(Path_from_qt(path) +
            " has been changed by another program; Save Project would replace it");
    });
    connect(watch_, &ProjectWatch::Vanished, this, [this](const QString& path) {
        Say(Path_from_qt(path) + " is gone; Save Project writes it anew");
    });
    // What does not fit the line can be read whole in the tooltip.
    connect(statusBar(), &QStatusBar::messageChanged, statusBar(), &QStatusBar::setToolTip);
}

void TidemarkMain::Watch_project() {
    watch_->Watch(To_qt(Save_path(document_.Now(), session_)));
}

void TidemarkMain::Say(const std::string& text) {
    statusBar()->showMessage(To_qt(text));
}

// An empty remark takes back the one before, and nothing else that was said since.
void TidemarkMain::Remark(const QString& text) {
    if (!text.isEmpty() || statusBar()->currentMessage() == remark_) statusBar()->showMessage(text);
    remark_ = text;
}

void TidemarkMain::Notice_state() {
    is_session_ending_ = false;
    if (watch_->Watched() != To_qt(Save_path(document_.Now(), session_))) Watch_project();
    if (recovery_) recovery_->Notice();
}

// Not while a box is up, which may belong to a step in progress.
void TidemarkMain::Offer_lost_work() {
    constexpr int later = 100;  // milliseconds
    if (QApplication::activeModalWidget() || document_.Is_in_step()) {
        QTimer::singleShot(later, this, &TidemarkMain::Offer_lost_work);
        return;
    }
    recovery_->Offer_lost_work(this, [this](LostWork& lost) {
        Recover(lost, recovery_->Kept(), document_, session_, platform_, Screen().Show_image);
        Say(Opening_remark(document_.Now(), session_, platform_));
    });
}

void TidemarkMain::End_from_outside(int signals) {
    recovery_->Write_now();
    End_by_signal(signals);
}

}  // namespace tidemark
