// Gathers the lines of a file in memory, so that the file can then be replaced as a whole.
#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace tidemark {

class LineWriter {
  public:
    // One byte a character, then CR LF. The pieces are joined without separators.
    template <class... Piece>
    void Write_line(const Piece&... pieces) {
        (bytes_.append(std::string_view(pieces)), ...);
        bytes_.append("\r\n");
    }

    // Hands the bytes over; the writer is empty afterwards.
    std::string Take_bytes() { return std::exchange(bytes_, {}); }

  private:
    std::string bytes_;
};

}  // namespace tidemark
