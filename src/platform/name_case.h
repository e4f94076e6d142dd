// Names of files regardless of the case of their letters A to Z.
#pragma once

#include <algorithm>
#include <string_view>

namespace tidemark {

// Whether two names are the same, or differ in nothing but the case of their letters A to Z.
inline bool Differ_at_most_in_case(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; };
    return std::ranges::equal(a, b, {}, lower, lower);
}

}  // namespace tidemark
