// The window that is in use while a dialog comes and goes.
#pragma once

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace tidemark {

// Made before a dialog is shown, it gives the keyboard back to the window that had it. By itself
// the dialog's owner would be next, even when the dialog was asked for in another window.
class ActiveWindow {
  public:
    ActiveWindow() : before_(QApplication::activeWindow()) {}
    ActiveWindow(const ActiveWindow&) = delete;
    ActiveWindow& operator=(const ActiveWindow&) = delete;
    ~ActiveWindow() {
        if (before_) before_->activateWindow();
    }

  private:
    QPointer<QWidget> before_;
};

}  // namespace tidemark
