// What a fuzz target says when a rule breaks its promise.
#pragma once

#include <cstdlib>
#include <iostream>

namespace tidemark {

inline void Check(bool holds, const char* promise) {
    if (holds) return;
    std::cerr << "Broken: " << promise << '\n';
    std::abort();
}

}  // namespace tidemark
