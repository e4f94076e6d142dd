#include "coast/fill.h"

#include <algorithm>
#include <array>
#include <deque>
#include <map>
#include <set>

#include "coast/cell_mask.h"
#include "coast/cell_pieces.h"
#include "coast/check.h"
#include "coast/project_places.h"
#include "coast/rebuild.h"
#include "model/drawing_modes.h"

namespace tidemark {

namespace {

constexpr std::array Sides{EdgeType::Top, EdgeType::Right, EdgeType::Bottom, EdgeType::Left};

// An error of a coastline, because of which the pieces of its cell are wrong or are none.
bool Spoils_pieces(const Finding& finding) {
    switch (finding.Kind) {
        case FindingKind::SkippedCell:
        case FindingKind::LooseEnd:
        case FindingKind::TooMuch:
        case FindingKind::SeveralInside:
            return finding.IsError;
        case FindingKind::Segment:
            return finding.Other > 0;  // two crossings at one place
        case FindingKind::Neighbours:
            return finding.Point > 0;
        case FindingKind::Polygon:
        case FindingKind::Limits:
            break;
    }
    return false;
}

class Filling {
  public:
    Filling(const Project& p, const FillOptions& options) : p_(p), options_(options), survey_(p) {
        for (const Finding& finding : Check_coast(p))
            if (finding.Cell && Spoils_pieces(finding))
                errors_.emplace(*finding.Cell, finding.Text);
        present_ = Polygons_by_cell(p);
    }

    FillPlan Plan(int polygon) {
        plan_.Free = MaxLWMCount - p_.LWMCount;
        const LOD13Cell start = Cell_of_polygon(p_, polygon);
        first_ = {p_.LWMType(polygon), p_.LWMHeight(polygon)};
        takes_all_pieces_ = options_.Water && options_.Land;
        Begin(start, Stored_outline(p_, polygon));
        Go_on();
        return Planned();
    }

    FillPlan Plan(std::span<const KnownShore> shores) {
        plan_.Free = MaxLWMCount - p_.LWMCount;
        first_ = {WaterPolygon, 0};
        takes_all_pieces_ = true;
        for (const SurveyedCell& cell : survey_.Cells()) {
            if (reached_.contains(cell.Cell) || !Is_wanted(cell.Cell)) continue;
            Begin(cell, shores);
            Go_on();
        }
        return Planned();
    }

  private:
    struct Place {
        LOD13Cell Cell;
        std::size_t Piece;
        auto operator<=>(const Place&) const = default;  // NOLINT(modernize-use-nullptr)
    };

    struct ReachedCell {
        CellPieces Pieces;
        bool IsCrossed;    // by a coastline: its boundary is cut
        bool EvenIsWater;  // of the pieces with an even parity
        bool HasInner;     // its one piece is a coastline inside, on the other side of it
    };

    void Begin(LOD13Cell start, const Outline& outline) {
        if (!Is_wanted(start)) {
            plan_.Refusal = "The polygon lies outside the cells that are to be filled.";
            return;
        }
        if (const auto error = errors_.find(start); error != errors_.end()) {
            plan_.Refusal = "The polygon's cell has an error: " + error->second + ".";
            return;
        }
        CellPieces pieces = Pieces_of(start);
        const auto found =
            std::find_if(pieces.Pieces().begin(), pieces.Pieces().end(),
                         [&](const Outline& piece) { return Is_built_as(outline, piece); });
        if (found == pieces.Pieces().end() || !pieces.Fit()) {
            plan_.Refusal =
                "The polygon is not what the coastlines make in its cell now; build it again.";
            return;
        }
        const auto piece = static_cast<std::size_t>(found - pieces.Pieces().begin());
        const bool is_water = first_.Type == WaterPolygon;
        const bool has_inner = Has_inner(start);
        Reach(start, std::move(pieces), piece, is_water != has_inner);
        if (Wants(is_water)) Add({start, piece});
    }

    // From a cell that one of the coastlines runs through.
    void Begin(const SurveyedCell& cell, std::span<const KnownShore> shores) {
        for (const KnownShore& shore : shores) {
            const auto is_of_shore = [&](int point) {
                return shore.First <= point && point <= shore.Last;
            };
            const auto crossing =
                std::find_if(cell.Crossings.begin(), cell.Crossings.end(),
                             [&](const BoundaryPoint& point) { return is_of_shore(point.Origin); });
            const bool is_inside = Has_inner(cell.Cell) && is_of_shore(cell.Inner.front().first);
            if (crossing == cell.Crossings.end() && !is_inside) continue;
            if (const auto error = errors_.find(cell.Cell); error != errors_.end()) {
                stops_.emplace(cell.Cell, error->second);
                return;
            }
            CellPieces pieces = Pieces_of(cell.Cell);
            if (!pieces.Fit() || pieces.Pieces().empty()) {
                stops_.emplace(cell.Cell, "coastlines cross one another");
                return;
            }
            // Clockwise along the boundary from where a coastline enters lies its left side, from
            // where it leaves its right one.
            std::size_t piece = 0;
            // A line that goes round clockwise has its outside on the left.
            bool is_land = (Twice_area(pieces.Pieces().front()) > 0) == shore.LandOnLeft;
            if (!is_inside) {
                piece = pieces.Piece_after(crossing->Place);
                is_land = Enters(cell.Cell, *crossing) == shore.LandOnLeft;
            }
            Reach(cell.Cell, std::move(pieces), piece, !is_land);
            return;
        }
    }

    // Whether the coastline comes into the cell at the crossing: what is after it lies inside.
    bool Enters(LOD13Cell cell, const BoundaryPoint& crossing) const {
        const int point = crossing.Origin;
        return Cell_of_point(p_, point) == cell && (p_.VTPSegStart(point) || !p_.VTPSegEnd(point) ||
                                                    Place_in_cell(p_, point) != crossing.Place);
    }

    void Go_on() {
        while (!ahead_.empty()) {
            const Place place = ahead_.front();
            ahead_.pop_front();
            Visit(place);
        }
    }

    FillPlan Planned() {
        for (auto& [cell, why] : stops_) plan_.Stops.push_back({cell, std::move(why)});
        return std::move(plan_);
    }

    bool Wants(bool is_water) const { return is_water ? options_.Water : options_.Land; }

    bool Is_wanted(LOD13Cell cell) const {
        const CellRange map{{p_.BGLOD13tlX, p_.BGLOD13tlY}, {p_.BGLOD13brX, p_.BGLOD13brY}};
        return Is_in_LOD8_cell(cell) && map.Contains(cell) &&
               (!options_.Within || options_.Within->Contains(cell));
    }

    bool Is_crossed(LOD13Cell cell) const {
        const SurveyedCell* const surveyed = survey_.At(cell);
        return surveyed != nullptr && !surveyed->Crossings.empty();
    }

    // The builder makes the outline of a coastline inside, and nothing around it.
    bool Has_inner(LOD13Cell cell) const {
        const SurveyedCell* const surveyed = survey_.At(cell);
        return surveyed != nullptr && surveyed->Crossings.empty() && !surveyed->Inner.empty() &&
               surveyed->Inner.front().second - surveyed->Inner.front().first > 1;
    }

    CellPieces Pieces_of(LOD13Cell cell) const {
        if (Is_crossed(cell)) return CellPieces(*survey_.At(cell));
        return CellPieces(Distinct_pieces(survey_.Candidates(cell)));
    }

    // Makes the cell known, of which the piece (or, in a cell with a coastline inside, what is
    // around it) is water or land; its pieces of the other kind are reached with it when both
    // kinds are wanted.
    ReachedCell& Reach(LOD13Cell cell, CellPieces pieces, std::size_t piece, bool is_water) {
        const bool even_is_water = is_water != pieces.Parity(piece);
        const bool has_inner = Has_inner(cell);
        ReachedCell& reached = reached_
                                   .emplace(cell, ReachedCell{std::move(pieces), Is_crossed(cell),
                                                              even_is_water, has_inner})
                                   .first->second;
        ++plan_.Cells;
        if (has_inner)
            stops_.emplace(cell, "a coastline lies inside; around it nothing can be built");
        for (std::size_t k = 0; k < reached.Pieces.Pieces().size(); ++k) {
            const bool is_other = Is_water(reached, k) != (first_.Type == WaterPolygon);
            if ((takes_all_pieces_ || is_other) && Wants(Is_water(reached, k))) Add({cell, k});
        }
        if (has_inner) Go_on_from(cell, 0, reached);
        return reached;
    }

    static bool Is_water(const ReachedCell& cell, std::size_t piece) {
        return cell.EvenIsWater != (cell.Pieces.Parity(piece) != cell.HasInner);
    }

    void Add(Place place) {
        if (seen_.insert(place).second) ahead_.push_back(place);
    }

    void Visit(Place place) {
        const ReachedCell& cell = reached_.at(place.Cell);
        if (!Take(place, cell)) return;
        if (!cell.HasInner) Go_on_from(place.Cell, place.Piece, cell);
    }

    // Plans the polygon of a piece. False when something else lies there.
    bool Take(Place place, const ReachedCell& cell) {
        const Outline& piece = cell.Pieces.Pieces()[place.Piece];
        const PolygonKind kind = Kind_of(Is_water(cell, place.Piece));
        const auto present = present_.find(place.Cell);
        if (present != present_.end()) {
            const CellMask mask(piece);
            for (const int polygon : present->second) {
                const Outline other = Stored_outline(p_, polygon);
                if (p_.LWMType(polygon) == kind.Type && Is_built_as(other, piece)) {
                    ++plan_.Passed;
                    return true;
                }
                if (mask.Common_area(CellMask(other)) == 0) continue;
                stops_.emplace(place.Cell, "polygon " + std::to_string(polygon) + " is in the way");
                return false;
            }
        }
        plan_.Polygons.push_back({place.Cell, kind, piece});
        return true;
    }

    PolygonKind Kind_of(bool is_water) const {
        if (is_water == (first_.Type == WaterPolygon)) return first_;
        return is_water ? PolygonKind{WaterPolygon, 0} : PolygonKind{LandPolygon, ConformsHeight};
    }

    // Through every part of the cell's sides that the piece has.
    void Go_on_from(LOD13Cell cell, std::size_t piece, const ReachedCell& from) {
        const bool is_water = from.HasInner ? from.EvenIsWater : Is_water(from, piece);
        for (const EdgeType side : Sides) {
            const LOD13Cell other = Beyond(cell, side);
            if (!Is_wanted(other) || !Can_enter(other)) continue;
            const std::vector<int> here = Cuts(cell, side), there = Cuts(other, Opposite(side));
            if (here.size() != there.size()) {
                stops_.emplace(other, "its coastlines do not meet those of its neighbours");
                continue;
            }
            for (std::size_t k = 0; k + 1 < here.size(); ++k) {
                const int middle = here[k] + here[k + 1], other_middle = there[k] + there[k + 1];
                const bool is_gap = here[k] == here[k + 1] || there[k] == there[k + 1];
                if (is_gap || from.Pieces.Piece_at(side, middle) != piece) continue;
                Enter(other, Opposite(side), other_middle, is_water);
            }
        }
    }

    // The ends of the parts of a side, the cell's corners among them.
    std::vector<int> Cuts(LOD13Cell cell, EdgeType side) const {
        std::vector<int> cuts{0};
        if (const SurveyedCell* const surveyed = survey_.At(cell))
            for (const BoundaryPoint& point : Crossings_on(*surveyed, side))
                cuts.push_back(Along(point));
        cuts.push_back(LastCellUnit);
        return cuts;
    }

    bool Can_enter(LOD13Cell cell) {
        if (!Is_crossed(cell) && !options_.Inside && !errors_.contains(cell)) return false;
        const auto error = errors_.find(cell);
        if (error == errors_.end()) return true;
        stops_.emplace(cell, error->second);
        return false;
    }

    void Enter(LOD13Cell cell, EdgeType side, int half_units, bool is_water) {
        auto reached = reached_.find(cell);
        if (reached == reached_.end()) {
            CellPieces pieces = Pieces_of(cell);
            if (!pieces.Fit() || pieces.Pieces().empty()) {
                stops_.emplace(cell, "coastlines cross one another");
                return;
            }
            const std::size_t piece = pieces.Piece_at(side, half_units);
            Reach(cell, std::move(pieces), piece, is_water);
            reached = reached_.find(cell);
        }
        if (reached->second.HasInner) return;
        const std::size_t piece = reached->second.Pieces.Piece_at(side, half_units);
        if (Is_water(reached->second, piece) != is_water)
            stops_.emplace(cell, "water and land meet here from different sides");
        else if (Wants(is_water))
            Add({cell, piece});
    }

    const Project& p_;
    const FillOptions& options_;
    const CoastSurvey survey_;
    std::map<LOD13Cell, std::string> errors_;
    std::map<LOD13Cell, std::vector<int>> present_;  // the polygons of a cell
    PolygonKind first_;
    bool takes_all_pieces_ = false;  // of the wanted kinds, in every cell that is reached
    std::map<LOD13Cell, ReachedCell> reached_;
    std::set<Place> seen_;
    std::deque<Place> ahead_;
    std::map<LOD13Cell, std::string> stops_;
    FillPlan plan_;
};

}  // namespace

FillPlan Plan_fill(const Project& project, int polygon, const FillOptions& options) {
    if (polygon >= 1 && polygon <= project.LWMCount) return Filling(project, options).Plan(polygon);
    FillPlan nothing;
    nothing.Refusal = "Choose a polygon in the list of LWM polygons first.";
    return nothing;
}

FillPlan Plan_fill(const Project& project, std::span<const KnownShore> shores,
                   const FillOptions& options) {
    return Filling(project, options).Plan(shores);
}

std::string Fill_count_text(const FillPlan& plan) {
    const auto counted = [](std::size_t count, const char* what) {
        return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
    };
    return counted(static_cast<std::size_t>(plan.Cells), "cell") + "; " +
           counted(plan.Polygons.size(), "polygon") + " needed, " + std::to_string(plan.Free) +
           " free";
}

std::string Fill_advice(const Project& project, int polygon, const FillOptions& options,
                        const std::optional<CellRange>& view) {
    struct Choice {
        const char* Name;
        FillOptions Options;
    };
    std::vector<Choice> choices;
    FillOptions narrower = options;
    narrower.Inside = false;
    if (options.Inside) choices.push_back({"without the cells inside", narrower});
    if (options.Water && options.Land) {
        choices.push_back({"water only", {true, false, false, options.Within}});
        choices.push_back({"land only", {false, true, false, options.Within}});
    }
    if (view && !options.Within) {
        narrower.Within = view;
        choices.push_back({"the cells in view", narrower});
    }
    std::string advice;
    for (const auto& [name, chosen] : choices) {
        const FillPlan plan = Plan_fill(project, polygon, chosen);
        if (!plan.Refusal.empty() || plan.Polygons.empty() || !plan.Fits()) continue;
        advice += advice.empty() ? "These would fit: " : ", ";
        advice += std::string(name) + " (" + std::to_string(plan.Polygons.size()) + ")";
    }
    return advice;
}

void Fill(Project& project, const FillPlan& plan) {
    for (const auto& [cell, kind, outline] : plan.Polygons)
        Store_polygon(project, project.LWMCount + 1, cell.Column, cell.Row, kind, outline);
}

}  // namespace tidemark
