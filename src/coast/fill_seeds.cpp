#include "coast/fill_seeds.h"

#include <algorithm>

#include "coast/project_places.h"
#include "coast/rebuild.h"
#include "model/drawing_modes.h"

namespace tidemark {

namespace {

FillSeed Refused(std::string why) {
    return {std::move(why), CellPieces(std::vector<Outline>{})};
}

bool Is_of(const KnownShore& shore, int point) {
    return shore.First <= point && point <= shore.Last;
}

// Whether the coastline comes into the cell at the crossing: what is after it lies inside.
bool Enters(const Project& p, LOD13Cell cell, const BoundaryPoint& crossing) {
    const int point = crossing.Origin;
    return Cell_of_point(p, point) == cell && (p.VTPSegStart(point) || !p.VTPSegEnd(point) ||
                                               Place_in_cell(p, point) != crossing.Place);
}

// The shore runs through the cell and crosses its boundary, there where `crossing` is not null.
FillSeed Seed_along(const FillGround& ground, LOD13Cell cell, const BoundaryPoint* crossing,
                    bool land_on_left) {
    if (const std::string* const error = ground.Error_in(cell)) return Refused(*error);
    FillSeed seed{{}, ground.Pieces_of(cell)};
    if (!seed.Pieces.Fit() || seed.Pieces.Pieces().empty()) return Refused(CrossingCoastlinesText);
    if (crossing == nullptr) {
        // A line that goes round clockwise has its outside on the left.
        seed.IsWater = (Twice_area(seed.Pieces.Pieces().front()) > 0) != land_on_left;
        return seed;
    }
    // Clockwise along the boundary from where a coastline enters lies its left side, from where it
    // leaves its right one.
    seed.Piece = seed.Pieces.Piece_after(crossing->Place);
    seed.IsWater = Enters(ground.Of(), cell, *crossing) != land_on_left;
    return seed;
}

}  // namespace

FillSeed Seed_of_polygon(const FillGround& ground, int polygon) {
    const Project& p = ground.Of();
    const LOD13Cell cell = Cell_of_polygon(p, polygon);
    if (!ground.Is_wanted(cell))
        return Refused("The polygon lies outside the cells that are to be filled.");
    if (const std::string* const error = ground.Error_in(cell))
        return Refused("The polygon's cell has an error: " + *error + ".");
    FillSeed seed{{}, ground.Pieces_of(cell)};
    const auto& pieces = seed.Pieces.Pieces();
    const Outline outline = Stored_outline(p, polygon);
    const auto found = std::find_if(pieces.begin(), pieces.end(), [&](const Outline& piece) {
        return Is_built_as(outline, piece);
    });
    if (found == pieces.end() || !seed.Pieces.Fit())
        return Refused(
            "The polygon is not what the coastlines make in its cell now; build it again.");
    seed.Piece = static_cast<std::size_t>(found - pieces.begin());
    seed.IsWater = (p.LWMType(polygon) == WaterPolygon) != ground.Has_inner(cell);
    return seed;
}

std::optional<FillSeed> Seed_of_shores(const FillGround& ground, const SurveyedCell& cell,
                                       std::span<const KnownShore> shores) {
    for (const KnownShore& shore : shores) {
        const auto crossing =
            std::find_if(cell.Crossings.begin(), cell.Crossings.end(),
                         [&](const BoundaryPoint& point) { return Is_of(shore, point.Origin); });
        if (ground.Has_inner(cell.Cell) && Is_of(shore, cell.Inner.front().first))
            return Seed_along(ground, cell.Cell, nullptr, shore.LandOnLeft);
        if (crossing != cell.Crossings.end())
            return Seed_along(ground, cell.Cell, &*crossing, shore.LandOnLeft);
    }
    return std::nullopt;
}

}  // namespace tidemark
