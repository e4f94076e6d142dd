// A coast file as the JSON parser takes it, byte by byte.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "coast/coast_input.h"

namespace tidemark {

class GeojsonStream {
  public:
    using Ch = char;

    explicit GeojsonStream(CoastInput& input) : input_(input) {
        Refill();
        Skip_byte_order_mark();
    }

    // NUL at the end.
    char Peek() const { return *at_; }
    char Take() {
        const char taken = *at_;
        if (++at_ == end_) Refill();
        return taken;
    }
    std::size_t Tell() const { return 0; }  // the parser's offsets are not asked for

    // Whether a NUL that was seen is the end.
    bool Is_at_end() const { return at_ == &nul_; }

    // From 1.
    std::size_t Line() {
        Count_lines(at_);
        return lines_ + 1;
    }

    // The parser wants them of every stream; only parsing in place writes.
    char* PutBegin() { return nullptr; }
    void Put(char) {}
    std::size_t PutEnd(char*) { return 0; }

  private:
    void Count_lines(const char* end) {
        if (Is_at_end()) return;
        while (counted_ != end) {
            const auto rest = static_cast<std::size_t>(end - counted_);
            const void* const found = std::memchr(counted_, '\n', rest);
            if (found == nullptr) break;
            counted_ = static_cast<const char*>(found) + 1;
            ++lines_;
        }
        counted_ = end;
    }

    void Refill() {
        if (at_ != nullptr) {
            at_ = end_ - 1;
            Count_lines(end_);
        }
        const std::span<const char> piece = input_.Next();
        at_ = counted_ = piece.empty() ? &nul_ : piece.data();
        end_ = piece.empty() ? at_ + 1 : at_ + piece.size();
    }

    void Skip_byte_order_mark() {
        if (end_ - at_ < 3) return;
        if (std::equal(at_, at_ + 3, "\xEF\xBB\xBF"))
            for (int byte = 0; byte < 3; ++byte) Take();
        else if (std::equal(at_, at_ + 2, "\xFF\xFE") || std::equal(at_, at_ + 2, "\xFE\xFF"))
            throw CoastRefusal{"", "it is UTF-16 text; GeoJSON is UTF-8"};
    }

    CoastInput& input_;
    static constexpr char nul_ = 0;
    const char* at_ = nullptr;
    const char* end_ = nullptr;
    const char* counted_ = nullptr;
    std::size_t lines_ = 0;
};

}  // namespace tidemark
