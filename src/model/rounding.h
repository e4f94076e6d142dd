// The two ways in which the project's numbers are rounded. They are not interchangeable, and
// nothing else in the program rounds.
#pragma once

#include "model/int16.h"

namespace tidemark {

// floor(x + 0.5), worked out in 32-bit floating point. Throws Overflow outside 16 bits.
Int16 Round_half_up(float x);

// The nearest whole number, halves to the even neighbour: 2.5 gives 2, 3.5 gives 4.
// Throws Overflow outside 16 bits and for a value that is not a number.
Int16 Round_half_even(double x);

// The same rounding to `decimals` places after the point, without a limit of size.
double Round_half_even_to(double x, int decimals);

}  // namespace tidemark
