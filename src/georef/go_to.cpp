#include "georef/go_to.h"

#include "model/cell_frame.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// A number that stands in the text; nothing when it does not begin with one or does not fit 16
// bits.
std::optional<Int16> Number_in(const std::string& text) {
    if (text.find_first_of("0123456789") == text.npos) return std::nullopt;
    try {
        return Int_value(text);
    } catch (const Overflow&) {
        return std::nullopt;
    }
}

std::optional<VTPPlace> Pair(const std::string& x, const std::string& y) {
    const auto first = Number_in(x), second = Number_in(y);
    return first && second ? std::optional(VTPPlace{*first, *second}) : std::nullopt;
}

int Cell_of(Int16 coordinate) {
    return (int{coordinate} - FirstVTP) >> 8;
}

}  // namespace

GoToTexts Texts_of_place(const Project& project, VTPPlace place) {
    const GeoPosition position = Position_of(project, place);
    return {std::to_string(Cell_of(place.X)),
            std::to_string(Cell_of(place.Y)),
            Int_text(place.X),
            Int_text(place.Y),
            Latitude_text(position.Latitude),
            Longitude_text(position.Longitude)};
}

std::optional<VTPPlace> Place_told(const Project& project, const GoToTexts& texts, GoToWay way) {
    if (way == GoToWay::VTP) return Pair(texts.VTPX, texts.VTPY);
    if (way == GoToWay::Cell) {
        const auto cell = Pair(texts.Column, texts.Row);
        const auto is_cell = [](int number) { return number >= 0 && number <= LastLOD13; };
        if (!cell || !is_cell(cell->X) || !is_cell(cell->Y)) return std::nullopt;
        return VTPPlace{Cell_edge_VTP(cell->X) + CellSizeVTP / 2,
                        Cell_edge_VTP(cell->Y) + CellSizeVTP / 2};
    }
    const auto latitude = Degrees_from(texts.Latitude, "NS", 90);
    const auto longitude = Degrees_from(texts.Longitude, "EW", 180);
    if (!latitude || !longitude) return std::nullopt;
    return Place_at(project, {*latitude, *longitude});
}

std::string Not_on_map(const Project& p, const std::optional<VTPPlace>& place) {
    if (!place) return "This is no place: see the examples in the fields";
    const bool is_on_map = place->X >= p.AreaLeftVTP && place->X <= p.AreaRightVTP &&
                           place->Y >= p.AreaTopVTP && place->Y <= p.AreaBottomVTP;
    return is_on_map ? "" : "This place is not on the map";
}

}  // namespace tidemark
