#include "coast/coast_input.h"

#include <algorithm>

namespace tidemark {

std::span<const char> CoastInput::Next() {
    const double part =
        static_cast<double>(read_) / static_cast<double>(std::max(size_, read_ + 1));
    if (progress_ && !progress_(part)) throw CoastCancelled();
    stream_.read(piece_.data(), static_cast<std::streamsize>(piece_.size()));
    if (stream_.bad()) throw CoastRefusal{"", "the file cannot be read"};
    const auto count = static_cast<std::size_t>(stream_.gcount());
    read_ += count;
    return {piece_.data(), count};
}

}  // namespace tidemark
