#include "model/encoding.h"

#include <cstdint>

namespace tidemark {

namespace {

// The length of the valid UTF-8 sequence at the start of `bytes`, 0 when there is none.
std::size_t Sequence_length(std::string_view bytes) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::uint8_t first = byte(0);
    if (first < 0x80) return 1;

    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((byte(i) & 0xC0) != 0x80) return 0;

    const std::uint8_t second = byte(1);
    const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool surrogate = first == 0xED && second > 0x9F;
    const bool too_high = first == 0xF4 && second > 0x8F;
    return overlong || surrogate || too_high ? 0 : length;
}

bool Is_UTF8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = Sequence_length(bytes);
        if (length == 0) return false;
        bytes.remove_prefix(length);
    }
    return true;
}

}  // namespace

std::string Text_from_bytes(std::string_view bytes) {
    if (Is_UTF8(bytes)) return std::string(bytes);
    std::string text;
    for (const char c : bytes) {
        const auto latin1 = static_cast<std::uint8_t>(c);
        if (latin1 < 0x80) {
            text += c;
        } else {
            text += static_cast<char>(0xC0 | (latin1 >> 6));
            text += static_cast<char>(0x80 | (latin1 & 0x3F));
        }
    }
    return text;
}

}  // namespace tidemark
