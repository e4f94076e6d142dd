// The project's whole numbers: 16 bits, signed, and never wrapping around.
#pragma once

#include <concepts>
#include <cstdint>
#include <stdexcept>
#include <utility>

namespace tidemark {

// A whole number that does not fit -32768..32767.
class Overflow : public std::overflow_error {
  public:
    Overflow() : std::overflow_error("A number is outside the range -32768 to 32767.") {}
};

// A whole number in -32768..32767. It turns into an int freely; coming from an int, and after
// every + - *, it is checked and throws Overflow.
class Int16 {
  public:
    static constexpr int Lowest = -32768;
    static constexpr int Highest = 32767;

    static constexpr bool Fits(double value) { return value >= Lowest && value <= Highest; }

    constexpr Int16() = default;

    template <std::integral I>
    constexpr Int16(I value) : value_(static_cast<std::int16_t>(value)) {  // NOLINT: implicit
        if (!std::in_range<std::int16_t>(value)) throw Overflow();
    }

    constexpr operator int() const { return value_; }  // NOLINT: implicit

    constexpr Int16& operator+=(Int16 other) { return *this = *this + other; }
    constexpr Int16& operator-=(Int16 other) { return *this = *this - other; }
    constexpr Int16& operator++() { return *this += Int16(1); }
    constexpr Int16& operator--() { return *this -= Int16(1); }
    constexpr Int16 operator-() const { return -int{value_}; }

    friend constexpr Int16 operator+(Int16 a, Int16 b) { return int{a.value_} + int{b.value_}; }
    friend constexpr Int16 operator-(Int16 a, Int16 b) { return int{a.value_} - int{b.value_}; }
    friend constexpr Int16 operator*(Int16 a, Int16 b) { return int{a.value_} * int{b.value_}; }

    template <std::integral I>
    friend constexpr Int16 operator+(Int16 a, I b) {
        return a + Int16(b);
    }
    template <std::integral I>
    friend constexpr Int16 operator+(I a, Int16 b) {
        return Int16(a) + b;
    }
    template <std::integral I>
    friend constexpr Int16 operator-(Int16 a, I b) {
        return a - Int16(b);
    }
    template <std::integral I>
    friend constexpr Int16 operator-(I a, Int16 b) {
        return Int16(a) - b;
    }
    template <std::integral I>
    friend constexpr Int16 operator*(Int16 a, I b) {
        return a * Int16(b);
    }
    template <std::integral I>
    friend constexpr Int16 operator*(I a, Int16 b) {
        return Int16(a) * b;
    }

  private:
    std::int16_t value_ = 0;
};

constexpr Int16 Min_int(Int16 a, Int16 b) {
    return a < b ? a : b;
}
constexpr Int16 Max_int(Int16 a, Int16 b) {
    return a > b ? a : b;
}

}  // namespace tidemark
