#include "model/rounding.h"

#include <cmath>

namespace tidemark {

namespace {

Int16 Checked(double whole) {
    if (!Int16::Fits(whole)) throw Overflow();
    return static_cast<int>(whole);
}

double Nearest_even(double x) {
    const double below = std::floor(x);
    const double fraction = x - below;
    if (fraction < 0.5) return below;
    if (fraction > 0.5) return below + 1;
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

}  // namespace

Int16 Round_half_up(float x) {
    return Checked(std::floor(x + 0.5F));
}

Int16 Round_half_even(double x) {
    return Checked(Nearest_even(x));
}

double Round_half_even_to(double x, int decimals) {
    const double scale = std::pow(10.0, decimals);
    return Nearest_even(x * scale) / scale;
}

}  // namespace tidemark
