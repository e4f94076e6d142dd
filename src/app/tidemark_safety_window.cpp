// What the main window does so that no work is lost.
#include <QGuiApplication>
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
    recovery_ = new RecoveryKeeper(folder, document_, session_, platform_, this);
    connect(recovery_, &RecoveryKeeper::Remarked, this,
            [this](const QString& text) { Say(From_qt(text)); });
    QTimer::singleShot(0, this, &TidemarkMain::Offer_lost_work);
    if (const int signals = Pipe_of_ending_signals(); signals >= 0) {
        auto* const notifier = new QSocketNotifier(signals, QSocketNotifier::Read, this);
        connect(notifier, &QSocketNotifier::activated, this,
                [this, signals] { End_from_outside(signals); });
    }
    // The desktop's session ends; it closes the windows afterwards, and nobody is there to answer.
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager&) {
        recovery_->Write_now();
        is_ended_from_outside_ = true;
    });
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

void TidemarkMain::Notice_state() {
    if (recovery_) recovery_->Notice();
}

void TidemarkMain::Offer_lost_work() {
    recovery_->Offer_lost_work(this, [this](LostWork& lost) {
        Recover(lost, recovery_->Kept(), document_, session_, platform_, Screen().Show_image);
    });
}

void TidemarkMain::End_from_outside(int signals) {
    recovery_->Write_now();
    End_by_signal(signals);
}

}  // namespace tidemark
