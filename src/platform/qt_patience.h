// Waiting with windows on the screen.
#pragma once

#include "platform/patience.h"

class QStatusBar;

namespace tidemark {

// The windows keep painting, the status bar says what is waited for, the pointer shows that the
// program is busy.
class QtPatience : public Patience {
  public:
    explicit QtPatience(QStatusBar& status_bar) : status_bar_(status_bar) {}
    QtPatience(const QtPatience&) = delete;
    QtPatience& operator=(const QtPatience&) = delete;
    ~QtPatience() override { QtPatience::Over(); }

    void Wait(const std::string& what_for, int milliseconds) override;
    void Over() override;

  private:
    QStatusBar& status_bar_;
    bool waited_ = false;
};

}  // namespace tidemark
