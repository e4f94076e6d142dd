// What the editor does so that no work is lost: it keeps a copy of what is not saved, notices what
// other programs do to the project's file, and what ends the program from outside.
#pragma once

#include <memory>

#include <QObject>
#include <QTimer>

#include "app/project_watch_window.h"
#include "app/recovery_keeper_window.h"
#include "canvas/background.h"
#include "model/document.h"
#include "platform/platform.h"

namespace tidemark {

class Safekeeping : public QObject {
    Q_OBJECT

  public:
    // All that is handed over lives as long as this does; `owner` is the boxes'.
    Safekeeping(Document& document, Session& session, Platform& platform, ShowImage show_image,
                QWidget& owner);

    // From now on unsaved work is kept in this folder, in case the program is ended from outside,
    // and what other editors have lost there is offered once, by an event.
    void Keep_work_in(const std::string& folder);

    // To be called whenever the project or its names may have changed.
    void Notice();

    // Saves the project, as File > Save does.
    void Save();

    // The desktop is about to close the windows, and nobody is there to answer.
    void Session_ends();
    bool Is_session_ending() const { return is_session_ending_; }
    // The user has thought better of it.
    void Session_goes_on() { is_session_ending_ = false; }

    // The program ends in good order.
    void End();

  Q_SIGNALS:
    void Said(const std::string& text);  // for the status bar

  private:
    void Watch_project();
    void Offer_lost_work();
    void Hear_ending_signals();
    void End_from_outside(int signals);

    Document& document_;
    Session& session_;
    Platform& platform_;
    const ShowImage show_image_;
    QWidget& owner_;
    ProjectWatch watch_;
    std::unique_ptr<RecoveryKeeper> recovery_;  // null: nothing is kept
    bool is_session_ending_ = false;            // of the desktop
    QTimer session_end_;                        // for as long as it may still come
    bool is_saving_ = false;
};

}  // namespace tidemark
