// Gathers the lines of a file in memory, so that the file can then be replaced as a whole.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "model/text_forms.h"

namespace tidemark {

class LineWriter {
  public:
    LineWriter() = default;
    // With room for as many bytes as are expected.
    explicit LineWriter(std::size_t expected) { bytes_.reserve(expected); }

    // One byte a character, then CR LF. The pieces are joined without separators.
    template <class... Piece>
    void Write_line(const Piece&... pieces) {
        (bytes_.append(std::string_view(pieces)), ...);
        bytes_.append("\r\n");
    }

    // A line with the blank-prefixed text of a number.
    void Write_number(Int16 value) {
        std::array<char, MaxIntText + 2> line;
        char* end = Put_blank_text(line.data(), value);
        *end++ = '\r';
        *end++ = '\n';
        bytes_.append(line.data(), static_cast<std::size_t>(end - line.data()));
    }

    // Hands the bytes over; the writer is empty afterwards.
    std::string Take_bytes() { return std::exchange(bytes_, {}); }

  private:
    std::string bytes_;
};

}  // namespace tidemark
