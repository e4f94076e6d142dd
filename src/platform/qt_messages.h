// Message boxes on the screen.
#pragma once

#include "platform/messages.h"

class QWidget;

namespace tidemark {

// Shows each message over the window that is in use, or over `owner`. The box has the object name
// "MessageBox"; its text can be selected and copied.
class QtMessages : public Messages {
  public:
    explicit QtMessages(QWidget& owner) : owner_(owner) {}

    MessageAnswer Show(const Message& message) override;

  private:
    QWidget& owner_;
};

}  // namespace tidemark
