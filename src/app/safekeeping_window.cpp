#include "app/safekeeping_window.h"

#include <utility>

#include <QApplication>
#include <QScopeGuard>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QTimer>
#include <QWidget>

#include "app/project_commands.h"
#include "app/recovery_commands.h"
#include "app/status_texts.h"
#include "platform/ending_signals.h"
#include "platform/qt_text.h"

namespace tidemark {

Safekeeping::Safekeeping(Document& document, Session& session, Platform& platform,
                         ShowImage show_image, QWidget& owner)
    : QObject(&owner),
      document_(document),
      session_(session),
      platform_(platform),
      show_image_(std::move(show_image)),
      owner_(owner) {
    connect(&watch_, &ProjectWatch::Changed, this,
            [this](const QString& path) { Q_EMIT Said(File_changed_text(Path_from_qt(path))); });
    connect(&watch_, &ProjectWatch::Vanished, this,
            [this](const QString& path) { Q_EMIT Said(File_gone_text(Path_from_qt(path))); });
    session_end_.setSingleShot(true);
    connect(&session_end_, &QTimer::timeout, this, &Safekeeping::Session_goes_on);
}

void Safekeeping::Keep_work_in(const std::string& folder) {
    recovery_ = std::make_unique<RecoveryKeeper>(folder, document_, platform_);
    connect(recovery_.get(), &RecoveryKeeper::Remarked, this,
            [this](const QString& text) { Q_EMIT Said(From_qt(text)); });
    QTimer::singleShot(0, this, &Safekeeping::Offer_lost_work);
    Hear_ending_signals();
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &Safekeeping::Session_ends);
}

void Safekeeping::Hear_ending_signals() {
    const int signals = Pipe_of_ending_signals();
    if (signals < 0) return;
    auto* const notifier = new QSocketNotifier(signals, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this,
            [this, signals] { End_from_outside(signals); });
}

// The session ends unless the user thinks better of it, which the next command or a minute without
// an end tells.
void Safekeeping::Session_ends() {
    constexpr int long_enough = 60000;  // milliseconds
    recovery_->Write_now();
    is_session_ending_ = true;
    session_end_.start(long_enough);
}

void Safekeeping::Save() {
    is_saving_ = true;
    watch_.Watch({});  // our own writing is no other program's
    const auto watch_again = qScopeGuard([this] {
        is_saving_ = false;
        Watch_project();
    });
    if (Save_project(document_, session_, platform_) && recovery_) recovery_->Notice_saved();
}

void Safekeeping::Watch_project() {
    watch_.Watch(To_qt(Save_path(document_.Now(), session_)));
}

void Safekeeping::Notice() {
    is_session_ending_ = false;
    if (!is_saving_ && watch_.Watched() != To_qt(Save_path(document_.Now(), session_)))
        Watch_project();
    if (recovery_) recovery_->Notice();
}

// Not while a box is up, which may belong to a step in progress.
void Safekeeping::Offer_lost_work() {
    constexpr int later = 100;  // milliseconds
    if (QApplication::activeModalWidget() || document_.Is_in_step()) {
        QTimer::singleShot(later, this, &Safekeeping::Offer_lost_work);
        return;
    }
    recovery_->Offer_lost_work(&owner_, [this](LostWork& lost) {
        Recover(lost, recovery_->Kept(), document_, session_, platform_, show_image_);
        Q_EMIT Said(Opening_remark(document_.Now(), session_, platform_));
    });
}

void Safekeeping::End_from_outside(int signals) {
    recovery_->Write_now();
    End_by_signal(signals);
}

void Safekeeping::End() {
    if (!recovery_) return;
    if (is_session_ending_)
        recovery_->Write_now();
    else
        recovery_->End();
}

}  // namespace tidemark
