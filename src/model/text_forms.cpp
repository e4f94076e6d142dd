#include "model/text_forms.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

#include "model/rounding.h"

namespace tidemark {

namespace {

constexpr bool Is_digit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view Without_leading_blanks(std::string_view text) {
    const auto start = text.find_first_not_of(' ');
    return start == text.npos ? std::string_view() : text.substr(start);
}

std::string Fraction_text(double value, int digits) {
    std::array<char, 64> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                            std::fabs(value), std::chars_format::general, digits);
    std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    if (text.starts_with("0.")) text.remove_prefix(1);
    return (value < 0 ? "-" : " ") + std::string(text);
}

// A number beyond a double's range: an infinity, or 0 when it is too small. A stream knows which.
double Out_of_range_value(std::string_view number) {
    std::istringstream stream{std::string(number)};
    stream.imbue(std::locale::classic());
    double value = 0;
    return stream >> value ? value : std::numeric_limits<double>::infinity();
}

}  // namespace

std::string Int_text(Int16 value) {
    return std::to_string(int{value});
}

std::string Counted(std::size_t count, std::string_view one, std::string_view several) {
    const std::string number = std::to_string(count) + " ";
    if (count == 1) return number + std::string(one);
    return several.empty() ? number + std::string(one) + "s" : number + std::string(several);
}

std::string Blank_text(Int16 value) {
    std::array<char, MaxIntText> text;
    const char* const end = Put_blank_text(text.data(), value);
    return {text.data(), static_cast<std::size_t>(end - text.data())};
}

char* Put_blank_text(char* at, Int16 value) {
    char* const start = value < 0 ? at : at + 1;
    *at = ' ';
    return std::to_chars(start, at + MaxIntText, int{value}).ptr;
}

std::string Blank_text(float value) {
    return Fraction_text(value, 7);
}

std::string Blank_text(double value) {
    return Fraction_text(value, 15);
}

std::string Blank_text(bool value) {
    return value ? " True" : " False";
}

bool Flag_value(std::string_view text) {
    return text == " True";
}

double Numeric_value(std::string_view text) {
    text = Without_leading_blanks(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    // from_chars would also read a second sign, "inf" and "nan".
    if (text.empty() || !(Is_digit(text[0]) || text[0] == '.')) return 0;

    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc::result_out_of_range)
        value = Out_of_range_value({text.data(), static_cast<std::size_t>(end - text.data())});
    return negative ? -value : value;
}

Int16 Int_value(std::string_view text) {
    // Nearly every number of a project is a few digits behind a blank or a sign.
    int whole = 0;
    const std::string_view number = Without_leading_blanks(text);
    const char* const last = number.data() + number.size();
    const auto [end, error] = std::from_chars(number.data(), last, whole);
    if (error == std::errc() && end == last) return whole;
    return Round_half_even(Numeric_value(text));
}

std::string Whole_number_text(std::string_view text) {
    try {
        return Int_text(Int_value(text));
    } catch (const Overflow&) {
        return std::string(text);
    }
}

}  // namespace tidemark
