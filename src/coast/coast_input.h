// The bytes of a coast file, piece by piece, and how a reader breaks off.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <istream>
#include <span>
#include <string>
#include <utility>

namespace tidemark {

// Receives how much of the file is read, 0 to 1; false cancels the reading.
using CoastProgress = std::function<bool(double part)>;

// Thrown by readers: the file is refused.
struct CoastRefusal {
    std::string Where;  // "line 12, feature 3", "record 3"; empty of the whole file
    std::string What;
};

// Thrown by readers: the progress said so.
struct CoastCancelled {};

class CoastInput {
  public:
    // `size` in bytes, as far as it is known; only the progress depends on it.
    CoastInput(std::istream& stream, std::uintmax_t size, CoastProgress progress = {})
        : stream_(stream), size_(size), progress_(std::move(progress)) {}

    // The next bytes, which stay until the following call; none at the end of the file. Throws
    // CoastRefusal when the file cannot be read, and CoastCancelled.
    std::span<const char> Next();

  private:
    std::istream& stream_;
    std::uintmax_t size_, read_ = 0;
    CoastProgress progress_;
    std::array<char, 65536> piece_;
};

}  // namespace tidemark
