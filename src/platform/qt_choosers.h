// File choosers on the screen.
#pragma once

#include <optional>

#include "platform/choosers.h"

class QWidget;

namespace tidemark {

// Each chooser's dialog carries the chooser's own name as its object name.
class QtChoosers : public Choosers {
  public:
    explicit QtChoosers(QWidget& owner) : owner_(owner) {}

    std::optional<std::string> Choose(const FileChooser& chooser) override;

  private:
    QWidget& owner_;
};

}  // namespace tidemark
