// Keeps the unsaved work of this editor safe while it runs, and offers that of editors that are
// gone.
#pragma once

#include <functional>

#include <QObject>
#include <QTimer>

#include "app/recovery.h"
#include "model/document.h"
#include "platform/platform.h"

class QWidget;

namespace tidemark {

class RecoveryKeeper : public QObject {
    Q_OBJECT

  public:
    // `folder` is where the work is kept (State_folder).
    RecoveryKeeper(const std::string& folder, const Document& document, Platform& platform,
                   QObject* parent = nullptr);

    // To be called whenever the project or what is saved of it has changed.
    void Notice();
    // To be called when the project has been saved.
    void Notice_saved();

    // Asks about each lost work that there is, in a box over `owner`, until one is recovered; the
    // others stay for another time. `recover` makes one the project.
    void Offer_lost_work(QWidget* owner, const std::function<void(LostWork&)>& recover);

    // Writes what is not saved at once: the program is about to be ended from outside.
    void Write_now();

    // At an orderly exit: nothing of this editor is left to be recovered, except work that was
    // recovered, then undone, and never saved.
    void End();

    Recovery& Kept() { return recovery_; }

  Q_SIGNALS:
    void Remarked(const QString& text);  // a line for the status bar

  private:
    using Clock = std::chrono::steady_clock;

    void Tend();
    void Set_timer();
    bool Holds_undone_recovery() const;
    void Complain_once(const FileResult& result);

    Recovery recovery_;
    const Document& document_;
    Platform& platform_;
    QTimer timer_;
    bool was_recovered_ = false;  // what is kept, and not saved since
    bool has_complained_ = false;
};

}  // namespace tidemark
