// How numbers become text and text becomes numbers. None of it depends on the locale.
#pragma once

#include <string>
#include <string_view>

#include "model/int16.h"

namespace tidemark {

// Decimal text without a blank; "-" before a negative number.
std::string Int_text(Int16 value);

// "1 polygon", "2 polygons"; `several` where it takes more than an "s".
std::string Counted(std::size_t count, std::string_view one, std::string_view several = {});
inline std::string Counted(int count, std::string_view one, std::string_view several = {}) {
    return Counted(static_cast<std::size_t>(count), one, several);
}

// Blank-prefixed text: a blank before a value that is not negative, "-" before a negative one.
// Fractions have "." as decimal point, no zero before it (" .8333333") and no trailing zeros.
std::string Blank_text(Int16 value);
std::string Blank_text(float value);   // at most 7 significant digits
std::string Blank_text(double value);  // at most 15 significant digits

// Puts the blank-prefixed text of a number at `at`, which has room for MaxIntText characters, and
// returns where it ends.
inline constexpr int MaxIntText = 6;
char* Put_blank_text(char* at, Int16 value);

// " True" or " False".
std::string Blank_text(bool value);

// True exactly for " True", blank included.
bool Flag_value(std::string_view text);

// The longest leading part of the text that reads as a decimal number (leading blanks skipped;
// sign, digits, decimal point, exponent); 0 when there is none. A number too large for a double is
// an infinity.
double Numeric_value(std::string_view text);

// The same for a 16-bit number: the numeric value, rounded with halves to the even neighbour.
// Throws Overflow when that does not fit.
Int16 Int_value(std::string_view text);

// The text of that number; the text as it is when the number does not fit.
std::string Whole_number_text(std::string_view text);

}  // namespace tidemark
