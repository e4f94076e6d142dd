// What the main window does so that no work is lost.
#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QStatusBar>
#include <QTimer>

#include "app/recovery_commands.h"
#include "app/tidemark_main_window.h"
#include "platform/ending_signals.h"

namespace tidemark {

void TidemarkMain::Keep_work_in(const std::string& folder) {
    recovery_ = new RecoveryKeeper(folder, document_, session_, platform_, this);
    connect(recovery_, &RecoveryKeeper::Remarked, this,
            [this](const QString& text) { statusBar()->showMessage(text); });
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
