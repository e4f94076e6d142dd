// Waiting, as the rules ask for it.
#pragma once

#include <string>

namespace tidemark {

class Patience {
  public:
    virtual ~Patience() = default;

    // Lets some time pass. False when the user would rather not wait. Meanwhile the windows keep
    // painting and say what is waited for, until it is over; no other command begins before the one
    // that waits has ended.
    [[nodiscard]] virtual bool Wait(const std::string& what_for, int milliseconds) = 0;

    // The same for a moment too short to speak of: what the user does waits too.
    virtual void Wait_a_moment(int milliseconds) = 0;

    // Nothing is waited for any more: the windows say `outcome` instead, empty for nothing.
    virtual void Over(const std::string& outcome) = 0;
};

}  // namespace tidemark
