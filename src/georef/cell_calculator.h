// Finds the LOD8 cell of a latitude and longitude given in degrees, minutes and seconds.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/int16.h"
#include "platform/messages.h"

namespace tidemark {

inline constexpr std::string_view LatitudeTemplate = "00:00:00.0";
inline constexpr std::string_view LongitudeTemplate = "000:00:00.0";

// What stands in the calculator's boxes.
struct CalculatorTexts {
    std::string Latitude{LatitudeTemplate};
    std::string NS{"N"};
    std::string Longitude{LongitudeTemplate};
    std::string EW{"E"};
};

struct LOD8Cell {
    Int16 X, Y;
    bool operator==(const LOD8Cell&) const = default;
};

struct CalculatorResult {
    CalculatorTexts Texts;         // what the boxes hold afterwards
    std::optional<LOD8Cell> Cell;  // nothing for bad input
};

// The cell of the texts' position; it is not limited to the world grid (90 S, 180 E gives 768,
// 512). Bad input is reported with Warn and the text at fault reset to its template.
CalculatorResult Calculate_cell(const CalculatorTexts& texts, Messages& messages);

// The value of a text "degrees:minutes:seconds"; nothing when it has another form, is beyond `most`
// degrees, or has more than 60 minutes or seconds.
std::optional<double> Angle_degrees(std::string_view text, double most);

// Tells the user the cell. With `offer_copy` it asks whether to copy it to the background
// properties; true when the user wants that.
bool Report_cell(const LOD8Cell& cell, bool offer_copy, Messages& messages);

}  // namespace tidemark
