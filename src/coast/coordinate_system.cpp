#include "coast/coordinate_system.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <optional>

namespace tidemark {

namespace {

// Metres. The datums of today rest on ellipsoids with this axis, and agree with WGS 84 within a
// metre or two; older ones were laid to fit one country, each on another ellipsoid.
constexpr double EquatorialAxis = 6378137;
constexpr double SameAxis = 5;

// What stands in brackets behind a keyword: a name, with its quotation marks, and a number.
struct Described {
    std::string Name;
    std::optional<double> Number;
};

std::optional<double> Number_in(std::string_view text) {
    const auto start = text.find_first_of("+-.0123456789");
    if (start == text.npos || text.find_first_not_of(", \t\r\n") != start) return std::nullopt;
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data() + start, text.data() + text.size(), number);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

class WellKnownText {
  public:
    explicit WellKnownText(std::string_view text) : text_(text), upper_(text) {
        bool is_quoted = false;  // what is called after a keyword is none
        for (char& letter : upper_) {
            if (letter == '"') is_quoted = !is_quoted;
            letter = is_quoted
                         ? ' '
                         : static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
        }
    }

    // Of the first of these keywords that the text has.
    std::optional<Described> Find(std::initializer_list<std::string_view> keywords) const {
        for (const std::string_view keyword : keywords)
            if (const auto found = upper_.find(keyword); found != upper_.npos)
                return Behind(found + keyword.size());
        return std::nullopt;
    }

  private:
    Described Behind(std::size_t place) const {
        const auto start = text_.find('"', place);
        const auto end = start == text_.npos ? start : text_.find('"', start + 1);
        if (end == text_.npos) return {};
        return {std::string(text_.substr(start, end + 1 - start)),
                Number_in(text_.substr(end + 1))};
    }

    std::string_view text_;
    std::string upper_;
};

}  // namespace

CoordinateSystem Coordinate_system(std::string_view text) {
    const WellKnownText described(text);
    CoordinateSystem system;
    if (const auto projection = described.Find({"PROJCS", "PROJCRS", "PROJECTEDCRS"})) {
        system.IsProjected = true;
        system.Projection = projection->Name;
    }
    const auto meridian = described.Find({"PRIMEM"});
    if (meridian && meridian->Number.value_or(0) != 0) system.PrimeMeridian = meridian->Name;
    const auto ellipsoid = described.Find({"SPHEROID", "ELLIPSOID"});
    if (ellipsoid && ellipsoid->Number &&
        std::fabs(*ellipsoid->Number - EquatorialAxis) > SameAxis) {
        const auto datum = described.Find({"DATUM"});
        system.OtherDatum = datum ? datum->Name : ellipsoid->Name;
    }
    return system;
}

}  // namespace tidemark
