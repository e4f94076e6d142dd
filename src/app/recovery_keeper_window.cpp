#include "app/recovery_keeper_window.h"

#include <utility>

#include <QMessageBox>
#include <QPushButton>

#include "app/recovery_commands.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

enum class Answer { Recover, Discard, Later };

Answer Ask_about(const LostWork& lost, QWidget* owner) {
    QMessageBox box(QMessageBox::Question, To_qt(RecoveryTitle), To_qt(Lost_work_text(lost)),
                    QMessageBox::NoButton, owner);
    box.setObjectName("Recovery");
    box.setTextFormat(Qt::PlainText);
    const auto add = [&box](const char* text, QMessageBox::ButtonRole role) {
        QPushButton* const button = box.addButton(text, role);
        button->setObjectName(QString(text) + "Button");
        return button;
    };
    QPushButton* const recover = add("Recover", QMessageBox::AcceptRole);
    const QPushButton* const discard = add("Discard", QMessageBox::DestructiveRole);
    QPushButton* const later = add("Later", QMessageBox::RejectRole);
    box.setDefaultButton(recover);
    box.setEscapeButton(later);
    box.exec();
    if (box.clickedButton() == recover) return Answer::Recover;
    return box.clickedButton() == discard ? Answer::Discard : Answer::Later;
}

}  // namespace

RecoveryKeeper::RecoveryKeeper(const std::string& folder, const Document& document,
                               Platform& platform, QObject* parent)
    : QObject(parent), recovery_(folder, platform.files), document_(document), platform_(platform) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &RecoveryKeeper::Tend);
}

// Recovered work that is undone can still be redone; nobody has given it up.
bool RecoveryKeeper::Holds_undone_recovery() const {
    return was_recovered_ && !document_.Differs_from_saved();
}

void RecoveryKeeper::Notice() {
    if (!Holds_undone_recovery())
        recovery_.Changed(document_.State(), document_.Differs_from_saved(), Clock::now());
    Set_timer();
}

void RecoveryKeeper::Notice_saved() {
    was_recovered_ = false;
    Notice();
}

void RecoveryKeeper::Set_timer() {
    const auto next = recovery_.Next();
    if (!next) return timer_.stop();
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now());
    timer_.start(std::max(wait, std::chrono::milliseconds(0)));
}

void RecoveryKeeper::Tend() {
    Complain_once(recovery_.Tend(document_.Settled_opened().Path, document_.Settled(),
                                 platform_.clock.Now_text(), Clock::now()));
    Set_timer();
}

void RecoveryKeeper::Write_now() {
    if (document_.Differs_from_saved())
        recovery_.Write(document_.Settled_opened().Path, document_.Settled(),
                        platform_.clock.Now_text(), Clock::now());
}

void RecoveryKeeper::End() {
    timer_.stop();
    if (!Holds_undone_recovery()) recovery_.Remove();
}

void RecoveryKeeper::Complain_once(const FileResult& result) {
    const bool is_told = std::exchange(has_complained_, !result);
    if (result || is_told) return;
    Q_EMIT Remarked("Recovery: unsaved work cannot be " +
                    QString(document_.Differs_from_saved() ? "kept: " : "removed: ") +
                    To_qt(result.Reason()));
}

void RecoveryKeeper::Offer_lost_work(QWidget* owner,
                                     const std::function<void(LostWork&)>& recover) {
    LostWorks lost = recovery_.Find_lost();
    if (!lost.Complaints.empty()) Q_EMIT Remarked("Recovery: " + To_qt(lost.Complaints.front()));
    for (LostWork& work : lost.Found) {
        const Answer answer = Ask_about(work, owner);
        if (answer == Answer::Discard)
            if (const FileResult discarded = recovery_.Discard(work); !discarded)
                Q_EMIT Remarked("Recovery: " + To_qt(discarded.Reason()));
        if (answer != Answer::Recover) continue;
        was_recovered_ = true;
        recover(work);
        Notice();
        return;
    }
}

}  // namespace tidemark
