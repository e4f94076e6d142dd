// Waiting with windows on the screen.
#pragma once

#include <optional>

#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QPushButton>
#include <QStatusBar>

#include "platform/patience.h"
#include "platform/qt_busy_cursor.h"

namespace tidemark {

// The status bar says what is waited for and has a Cancel button, which Esc stands for too; the
// pointer shows that the program is busy. Everything else that the user does meanwhile is without
// effect, but for closing a window, which is done when the waiting is over.
class QtPatience : public QObject, public Patience {
  public:
    explicit QtPatience(QStatusBar& status_bar) : status_bar_(status_bar) {}
    ~QtPatience() override { QtPatience::Over(""); }

    bool Wait(const std::string& what_for, int milliseconds) override;
    void Wait_a_moment(int milliseconds) override;
    void Over(const std::string& outcome) override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Begin();
    void Let_pass(int milliseconds, QEventLoop::ProcessEventsFlags events);
    void Cancel();
    void Close_windows();

    QStatusBar& status_bar_;
    QPointer<QPushButton> cancel_button_;  // made when it is first needed
    QEventLoop* loop_ = nullptr;
    QList<QPointer<QWidget>> to_close_;
    std::optional<BusyCursor> busy_;  // while something is waited for
    bool cancelled_ = false;
};

}  // namespace tidemark
