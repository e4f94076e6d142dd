// Waiting, as the rules ask for it.
#pragma once

#include <string>

namespace tidemark {

class Patience {
  public:
    virtual ~Patience() = default;

    // Lets some time pass. Meanwhile the windows keep painting and say what is waited for; what the
    // user does waits too, so no other command begins before the one that waits has ended.
    virtual void Wait(const std::string& what_for, int milliseconds) = 0;

    // Nothing is waited for any more, and the windows stop saying so.
    virtual void Over() {}
};

}  // namespace tidemark
