// The date and time, as the rules ask for it.
#pragma once

#include <string>

namespace tidemark {

class Clock {
  public:
    virtual ~Clock() = default;

    // The current local date and time as text, such as "2026-11-22 14:05:09".
    virtual std::string Now_text() = 0;
};

class SystemClock : public Clock {
  public:
    std::string Now_text() override;
};

}  // namespace tidemark
