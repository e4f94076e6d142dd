// The numeric value of any text, against a plain reading of the same.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "check.h"
#include "model/int16.h"
#include "model/rounding.h"
#include "model/text_forms.h"

namespace tidemark {
namespace {

// Takes what belongs to a number from the front of a text, piece by piece.
class Scanner {
  public:
    explicit Scanner(std::string_view text) : text_(text) {}

    void Skip_blanks() {
        while (Next() == ' ') ++at_;
        start_ = at_;
    }
    bool Take(std::string_view one_of) {
        const bool takes = at_ < text_.size() && one_of.find(Next()) != one_of.npos;
        at_ += takes;
        return takes;
    }
    bool Take_digits() {
        const std::size_t before = at_;
        while (Take("0123456789")) {
        }
        return at_ > before;
    }
    void Take_exponent() {
        const std::size_t before = at_;
        if (!Take("eE")) return;
        Take("+-");
        if (!Take_digits()) at_ = before;
    }
    std::string Taken() const { return std::string(text_.substr(start_, at_ - start_)); }

  private:
    char Next() const { return at_ < text_.size() ? text_[at_] : '\0'; }

    std::string_view text_;
    std::size_t start_ = 0, at_ = 0;
};

double Plain_reading(std::string_view text) {
    Scanner scanner(text);
    scanner.Skip_blanks();
    scanner.Take("+-");
    const bool whole = scanner.Take_digits();
    const bool fraction = scanner.Take(".") && scanner.Take_digits();
    if (!whole && !fraction) return 0;
    scanner.Take_exponent();
    return std::strtod(scanner.Taken().c_str(), nullptr);
}

void Check_whole_number(std::string_view text, double value) {
    const bool fits = value >= -32768.5 && value < 32767.5;
    try {
        const Int16 whole = Int_value(text);
        Check(fits && std::fabs(whole - value) <= 0.5, "a whole number is the nearest");
    } catch (const Overflow&) {
        Check(!fits, "what fits is read");
    }
}

void Read_number(std::string_view text) {
    const double value = Numeric_value(text);
    Check(value == Plain_reading(text), "a number is read as far as it goes");
    Check_whole_number(text, value);
    if (!std::isfinite(value)) return;
    const double again = Numeric_value(Blank_text(value));
    Check(std::fabs(again - value) <= std::fabs(value) * 1e-14, "15 digits come back");
}

}  // namespace
}  // namespace tidemark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidemark::Read_number({reinterpret_cast<const char*>(data), size});
    return 0;
}
