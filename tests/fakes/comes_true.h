// Waiting for what other programs, threads or the system do.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace tidemark {

// Whether it comes true within ten seconds.
inline bool Comes_true(const std::function<bool()>& condition) {
    for (int look = 0; look < 1000; ++look) {
        if (condition()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

}  // namespace tidemark
