// Gathers the lines of a file in memory, so that the file can then be replaced as a whole.
#pragma once

#include <string>
#include <string_view>

namespace tidemark {

class LineWriter {
  public:
    // One byte a character, then CR LF. The pieces are joined without separators.
    template <class... Piece>
    void Write_line(const Piece&... pieces) {
        (bytes_.append(std::string_view(pieces)), ...);
        bytes_.append("\r\n");
    }

    const std::string& Bytes() const { return bytes_; }

  private:
    std::string bytes_;
};

}  // namespace tidemark
