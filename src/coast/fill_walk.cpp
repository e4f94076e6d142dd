#include "coast/fill_walk.h"

#include <array>

#include "coast/cell_mask.h"
#include "coast/rebuild.h"
#include "model/drawing_modes.h"

namespace tidemark {

namespace {

constexpr std::array Sides{EdgeType::Top, EdgeType::Right, EdgeType::Bottom, EdgeType::Left};

}  // namespace

FillWalk::FillWalk(const FillGround& ground, PolygonKind first, bool takes_all_pieces)
    : ground_(ground), first_(first), takes_all_pieces_(takes_all_pieces) {
    plan_.Free = MaxLWMCount - ground.Of().LWMCount;
}

void FillWalk::Begin_at_polygon(LOD13Cell cell, FillSeed seed) {
    plan_.Refusal = seed.Refusal;
    if (!seed.Refusal.empty()) return;
    const std::size_t piece = seed.Piece;
    Reach(cell, std::move(seed));
    if (Wants(first_.Type == WaterPolygon)) Add({cell, piece});
    Go_on();
}

void FillWalk::Begin(LOD13Cell cell, FillSeed seed) {
    if (!seed.Refusal.empty()) {
        stops_.emplace(cell, std::move(seed.Refusal));
        return;
    }
    Reach(cell, std::move(seed));
    Go_on();
}

FillPlan FillWalk::Planned() {
    for (auto& [cell, why] : stops_) plan_.Stops.push_back({cell, std::move(why)});
    return std::move(plan_);
}

bool FillWalk::Wants(bool is_water) const {
    return is_water ? ground_.Options().Water : ground_.Options().Land;
}

PolygonKind FillWalk::Kind_of(bool is_water) const {
    if (is_water == (first_.Type == WaterPolygon)) return first_;
    return is_water ? PolygonKind{WaterPolygon, 0} : PolygonKind{LandPolygon, ConformsHeight};
}

// Makes the cell known by what its seed says of one piece; its pieces of the other kind are reached
// with it when that kind is wanted.
FillWalk::ReachedCell& FillWalk::Reach(LOD13Cell cell, FillSeed seed) {
    const bool even_is_water = seed.IsWater != seed.Pieces.Parity(seed.Piece);
    const bool has_inner = ground_.Has_inner(cell);
    ReachedCell& reached =
        reached_.emplace(cell, ReachedCell{std::move(seed.Pieces), even_is_water, has_inner})
            .first->second;
    ++plan_.Cells;
    if (has_inner) stops_.emplace(cell, "a coastline lies inside; around it nothing can be built");
    for (std::size_t k = 0; k < reached.Pieces.Pieces().size(); ++k) {
        const bool is_water = reached.Is_water(k);
        const bool is_other = is_water != (first_.Type == WaterPolygon);
        if ((takes_all_pieces_ || is_other) && Wants(is_water)) Add({cell, k});
    }
    if (has_inner) Go_on_from(cell, 0, reached);
    return reached;
}

void FillWalk::Add(Place place) {
    if (seen_.insert(place).second) ahead_.push_back(place);
}

void FillWalk::Go_on() {
    while (!ahead_.empty()) {
        const Place place = ahead_.front();
        ahead_.pop_front();
        Visit(place);
    }
}

void FillWalk::Visit(Place place) {
    const ReachedCell& cell = reached_.at(place.Cell);
    if (!Take(place, cell)) return;
    if (!cell.HasInner) Go_on_from(place.Cell, place.Piece, cell);
}

// Plans the polygon of a piece. False when something else lies there.
bool FillWalk::Take(Place place, const ReachedCell& cell) {
    const Project& p = ground_.Of();
    const Outline& piece = cell.Pieces.Pieces()[place.Piece];
    const PolygonKind kind = Kind_of(cell.Is_water(place.Piece));
    const std::vector<int>& present = ground_.Polygons_in(place.Cell);
    const CellMask mask = present.empty() ? CellMask() : CellMask(piece);
    for (const int polygon : present) {
        const Outline other = Stored_outline(p, polygon);
        if (p.LWMType(polygon) == kind.Type && Is_built_as(other, piece)) {
            ++plan_.Passed;
            return true;
        }
        if (mask.Common_area(CellMask(other)) == 0) continue;
        stops_.emplace(place.Cell, "polygon " + std::to_string(polygon) + " is in the way");
        return false;
    }
    plan_.Polygons.push_back({place.Cell, kind, piece});
    return true;
}

void FillWalk::Go_on_from(LOD13Cell cell, std::size_t piece, const ReachedCell& from) {
    for (const EdgeType side : Sides) Go_over(cell, piece, from, side);
}

// Through every part of a side of the cell that the piece has.
void FillWalk::Go_over(LOD13Cell cell, std::size_t piece, const ReachedCell& from, EdgeType side) {
    const bool is_water = from.HasInner ? from.EvenIsWater : from.Is_water(piece);
    const LOD13Cell other = Beyond(cell, side);
    if (!ground_.Is_wanted(other) || !Can_enter(other)) return;
    const std::vector<int> here = ground_.Cuts(cell, side);
    const std::vector<int> there = ground_.Cuts(other, Opposite(side));
    if (here.size() != there.size()) {
        stops_.emplace(other, "its coastlines do not meet those of its neighbours");
        return;
    }
    for (std::size_t k = 0; k + 1 < here.size(); ++k) {
        const int middle = here[k] + here[k + 1], other_middle = there[k] + there[k + 1];
        const bool is_gap = here[k] == here[k + 1] || there[k] == there[k + 1];
        if (is_gap || from.Pieces.Piece_at(side, middle) != piece) continue;
        Enter(other, Opposite(side), other_middle, is_water);
    }
}

bool FillWalk::Can_enter(LOD13Cell cell) {
    const std::string* const error = ground_.Error_in(cell);
    if (error != nullptr) stops_.emplace(cell, *error);
    return error == nullptr && (ground_.Is_crossed(cell) || ground_.Options().Inside);
}

void FillWalk::Enter(LOD13Cell cell, EdgeType side, int half_units, bool is_water) {
    auto reached = reached_.find(cell);
    if (reached == reached_.end()) {
        FillSeed seed{{}, ground_.Pieces_of(cell), 0, is_water};
        if (!seed.Pieces.Fit() || seed.Pieces.Pieces().empty()) {
            stops_.emplace(cell, CrossingCoastlinesText);
            return;
        }
        seed.Piece = seed.Pieces.Piece_at(side, half_units);
        Reach(cell, std::move(seed));
        reached = reached_.find(cell);
    }
    if (reached->second.HasInner) return;
    const std::size_t piece = reached->second.Pieces.Piece_at(side, half_units);
    if (reached->second.Is_water(piece) != is_water)
        stops_.emplace(cell, "water and land meet here from different sides");
    else if (Wants(is_water))
        Add({cell, piece});
}

}  // namespace tidemark
