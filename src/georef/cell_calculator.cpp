#include "georef/cell_calculator.h"

#include <cmath>

#include "model/limits.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

constexpr std::string_view FormatWarning =
    "Both latitude and longitude must be given in the appropriate format degrees:minutes:seconds";

// The factor's last digits decide the cell of a position on a cell's edge.
constexpr double SixtiethTimes100 = 1.66666666;

struct Angle {
    double Degrees, Minutes, Seconds;

    bool Within(double most_degrees) const {
        return Degrees >= 0 && Degrees <= most_degrees && Minutes >= 0 && Minutes <= 60 &&
               Seconds >= 0 && Seconds <= 60;
    }
    double Decimal() const {
        return Degrees + (Minutes + Seconds * SixtiethTimes100 / 100) * SixtiethTimes100 / 100;
    }
};

// A number with blanks, tabs and line feeds anywhere in it.
double Spaced_value(std::string_view text) {
    std::string number(text);
    std::erase_if(number, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
    return Numeric_value(number);
}

struct Halves {
    std::string_view Before, After;
};

// The text around its first ":"; nothing when it has none or ends with it.
std::optional<Halves> Split(std::string_view text) {
    const auto colon = text.find(':');
    if (colon == text.npos || colon + 1 == text.size()) return std::nullopt;
    return Halves{text.substr(0, colon), text.substr(colon + 1)};
}

Angle Angle_of(const Halves& degrees, const Halves& minutes) {
    return {Spaced_value(degrees.Before), Spaced_value(minutes.Before),
            Spaced_value(minutes.After)};
}

// Reports that a text could not be split, and resets it.
bool Check_format(bool latitude_split, bool longitude_split, CalculatorTexts& texts,
                  Messages& messages) {
    if (latitude_split && longitude_split) return true;
    Warn(messages, FormatWarning);
    if (!latitude_split) texts.Latitude = LatitudeTemplate;
    if (!longitude_split) texts.Longitude = LongitudeTemplate;
    return false;
}

// The whole number of grid lines at or before `degrees`.
Int16 Grid_index(double degrees, double degrees_to_a_cell) {
    return static_cast<int>(std::floor(degrees / degrees_to_a_cell + 1)) - 1;
}

// Resets the text at fault.
std::optional<LOD8Cell> Cell_of(CalculatorTexts& texts, Messages& messages) {
    const auto latitude_parts = Split(texts.Latitude);
    const auto longitude_parts = Split(texts.Longitude);
    if (!Check_format(latitude_parts.has_value(), longitude_parts.has_value(), texts, messages))
        return std::nullopt;
    const auto latitude_rest = Split(latitude_parts->After);
    const auto longitude_rest = Split(longitude_parts->After);
    if (!Check_format(latitude_rest.has_value(), longitude_rest.has_value(), texts, messages))
        return std::nullopt;

    const Angle north = Angle_of(*latitude_parts, *latitude_rest);
    if (!north.Within(90)) {
        Warn(messages, "Latitude value given is incorrect");
        texts.Latitude = LatitudeTemplate;
        return std::nullopt;
    }
    const Angle east = Angle_of(*longitude_parts, *longitude_rest);
    if (!east.Within(180)) {
        Warn(messages, "Longitude value given is incorrect");
        texts.Longitude = LongitudeTemplate;
        return std::nullopt;
    }

    const double latitude = texts.NS == "S" ? -north.Decimal() : north.Decimal();
    const double longitude = texts.EW == "W" ? -east.Decimal() : east.Decimal();
    return LOD8Cell{Grid_index(longitude + 180, LOD8DegreesEast),
                    Grid_index(180 - (latitude + 90), LOD8DegreesSouth)};
}

}  // namespace

CalculatorResult Calculate_cell(const CalculatorTexts& texts, Messages& messages) {
    CalculatorResult result{texts, std::nullopt};
    result.Cell = Cell_of(result.Texts, messages);
    return result;
}

std::optional<double> Angle_degrees(std::string_view text, double most) {
    const auto parts = Split(text);
    const auto rest = parts ? Split(parts->After) : std::nullopt;
    if (!rest) return std::nullopt;
    const Angle angle = Angle_of(*parts, *rest);
    return angle.Within(most) ? std::optional(angle.Decimal()) : std::nullopt;
}

bool Report_cell(const LOD8Cell& cell, bool offer_copy, Messages& messages) {
    constexpr std::string_view title = "Tidemark - Cell Co-ordinates";
    const std::string found = "Given co-ordinates are in LOD8 cell [ " + Int_text(cell.X) + ", " +
                              Int_text(cell.Y) + " ]";
    if (offer_copy)
        return Ask(messages, title,
                   found +
                       "\nDo you wish to copy these co-ordinates to the background "
                       "properties box?",
                   MessageIcon::Information);
    Inform(messages, title, found);
    return false;
}

}  // namespace tidemark
