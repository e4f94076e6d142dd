#include "georef/background_properties.h"

#include <cmath>
#include <optional>

#include "model/cell_frame.h"
#include "model/rounding.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

constexpr std::string_view RangeWarning =
    "LOD 8 cell X value must be in the range 0-767\n"
    "LOD 8 cell Y value must be in the range 0-511\n"
    "All LOD 13 cell values must be in the range 0-31";
constexpr std::string_view CornerWarning =
    "LOD13 values are not correct for top left / bottom right cells";

double Whole_value(std::string_view text) {
    return Round_half_even_to(Numeric_value(text), 0);
}

std::optional<Int16> Value_in_range(std::string_view text, int last) {
    const double value = Whole_value(text);
    if (!(value >= 0 && value <= last)) return std::nullopt;
    return static_cast<int>(value);
}

std::string Place_label(std::string_view quantity, double degrees, char negative, char positive) {
    return "( Appoximate " + std::string(quantity) + " of this cell is " +
           (degrees < 0 ? negative : positive) +
           Blank_text(std::fabs(Round_half_even_to(degrees, 2))) + " )";
}

}  // namespace

GeoreferenceTexts Georeference_texts(const Project& project) {
    GeoreferenceTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = Int_text(project.*GeoreferenceFields[i].Value);
    return texts;
}

std::string Normalised_field(const std::string& text) {
    const double value = Whole_value(text);
    return std::isfinite(value) ? Blank_text(value) : text;  // "inf" would read as 0
}

CellPlace Place_of_cell(std::string_view LOD8X, std::string_view LOD8Y) {
    const double latitude = 90 - (Whole_value(LOD8Y) + 1) * LOD8DegreesSouth;
    const double longitude = (Whole_value(LOD8X) + 1) * LOD8DegreesEast - 180;
    return {
        Place_label("Latitude", latitude, 'S', 'N'), Place_label("Longitude", longitude, 'W', 'E'),
        Blank_text(Round_half_even_to(latitude, 0)), Blank_text(Round_half_even_to(longitude, 0))};
}

bool Take_georeference(Project& p, const GeoreferenceTexts& texts, Messages& messages) {
    bool in_range = true;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const GeoreferenceField& field = GeoreferenceFields[i];
        if (const auto value = Value_in_range(texts[i], field.Last))
            p.*field.Value = *value;
        else
            in_range = false;
    }
    const bool in_order = p.BGLOD13brX >= p.BGLOD13tlX && p.BGLOD13brY >= p.BGLOD13tlY;
    if (!in_range) Warn(messages, RangeWarning);
    if (!in_order) Warn(messages, CornerWarning);
    return in_range && in_order;
}

void Derive_area(Project& p, int canvas_width, int canvas_height) {
    p.AreaLeftVTP = Cell_edge_VTP(p.BGLOD13tlX);
    p.AreaTopVTP = Cell_edge_VTP(p.BGLOD13tlY);
    p.AreaRightVTP = Cell_edge_VTP(p.BGLOD13brX + 1);
    p.AreaBottomVTP = Cell_edge_VTP(p.BGLOD13brY + 1);
    p.AreaWidth = p.AreaRightVTP - p.AreaLeftVTP;
    p.AreaHeight = p.AreaBottomVTP - p.AreaTopVTP;
    p.ScaleX = static_cast<float>(canvas_width) / static_cast<float>(p.AreaWidth);
    p.ScaleY = static_cast<float>(canvas_height) / static_cast<float>(p.AreaHeight);
}

void Ask_background_properties(Project& project, const AskGeoreference& ask, int canvas_width,
                               int canvas_height, Messages& messages) {
    GeoreferenceTexts texts;
    do {
        texts = ask(Georeference_texts(project));
    } while (!Take_georeference(project, texts, messages));

    const CellPlace place = Place_of_cell(texts[0], texts[1]);
    project.CellLatitude = Int_value(place.HiddenLat);
    project.CellLongitude = Int_value(place.HiddenLon);
    Derive_area(project, canvas_width, canvas_height);
}

}  // namespace tidemark
