#include <algorithm>
#include <bitset>
#include <map>

#include "coast/cell_mask.h"
#include "coast/check_parts.h"
#include "coast/rebuild.h"
#include "lwm/polygon_builder.h"
#include "model/drawing_modes.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

std::string Polygon_text(int polygon) {
    return "polygon " + std::to_string(polygon);
}

Finding About(const Project& p, int polygon, std::string text) {
    return {.Kind = FindingKind::Polygon,
            .Cell = Cell_of_polygon(p, polygon),
            .Text = std::move(text),
            .Polygon = polygon};
}

void Check_outline(const Project& p, int polygon, const std::vector<Outline>& candidates,
                   bool can_be_rebuilt, Findings& findings) {
    const Outline outline = Stored_outline(p, polygon);
    if (outline.size() < 3) {
        findings.push_back(About(p, polygon,
                                 Polygon_text(polygon) + " has fewer than three vertices; delete "
                                                         "it and click it again"));
        return;
    }
    if (std::any_of(candidates.begin(), candidates.end(),
                    [&](const Outline& piece) { return Is_built_as(outline, piece); }))
        return;
    Finding found =
        About(p, polygon, Polygon_text(polygon) + " is not what the coastlines make here");
    if (candidates.empty()) {
        found.Text += ", and none can be built now; mend the coastlines first";
    } else if (can_be_rebuilt) {
        found.Text += " now; Mend builds it again";
        found.Mending = Remedy::Rebuild;
    } else {
        found.Text +=
            " now, and it is not clear which piece it should be; delete it and click the right one";
    }
    findings.push_back(std::move(found));
}

void Check_outlines(const Project& p, const std::vector<int>& polygons,
                    const std::vector<Outline>& candidates, Findings& findings) {
    std::vector<Outline> outlines;
    outlines.reserve(polygons.size());
    for (const int polygon : polygons) outlines.push_back(Stored_outline(p, polygon));
    const auto rebuilt = Rebuilt_together(outlines, candidates);
    for (std::size_t i = 0; i < polygons.size(); ++i)
        Check_outline(p, polygons[i], candidates, rebuilt[i].has_value(), findings);
}

// The polygons of one cell against each other.
void Check_overlaps(const Project& p, const std::vector<int>& polygons, Findings& findings) {
    std::vector<CellMask> masks;
    for (const int polygon : polygons) {
        masks.emplace_back(Stored_outline(p, polygon));
        for (std::size_t k = 0; k + 1 < masks.size(); ++k) {
            const int common = masks[k].Common_area(masks.back());
            if (common == 0) continue;
            findings.push_back(About(p, polygon,
                                     Polygon_text(polygon) + " overlaps " +
                                         Polygon_text(polygons[k]) + " by " +
                                         Counted(common, "square unit") + "; delete one of them"));
        }
    }
}

// Which unit lengths of a cell's four sides polygons reach: all water's, all land's.
struct Shores {
    std::array<std::bitset<LastCellUnit>, 4> Water, Land;
};

constexpr std::array Sides{EdgeType::Top, EdgeType::Right, EdgeType::Bottom, EdgeType::Left};

std::size_t Number_of(EdgeType side) {
    return static_cast<std::size_t>(side) - static_cast<std::size_t>(EdgeType::Top);
}

bool Is_on(CellPoint place, EdgeType side) {
    switch (side) {
        case EdgeType::Top:
            return place.Y == 0;
        case EdgeType::Right:
            return place.X == LastCellUnit;
        case EdgeType::Bottom:
            return place.Y == LastCellUnit;
        default:
            return place.X == 0;
    }
}

void Add_shore(Shores& shores, const Outline& outline, bool is_water) {
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const CellPoint a = outline[i], b = outline[i + 1 == outline.size() ? 0 : i + 1];
        for (const EdgeType side : Sides) {
            if (!Is_on(a, side) || !Is_on(b, side)) continue;
            const bool is_upright = side == EdgeType::Left || side == EdgeType::Right;
            const auto [low, high] =
                is_upright ? std::minmax({int{a.Y}, int{b.Y}}) : std::minmax({int{a.X}, int{b.X}});
            auto& shore = (is_water ? shores.Water : shores.Land)[Number_of(side)];
            for (int unit = std::max(low, 0); unit < std::min(high, LastCellUnit); ++unit)
                shore.set(static_cast<std::size_t>(unit));
        }
    }
}

// The units along which water lies beside land, where that are two or more in a row.
int Units_of_disagreement(const Shores& here, EdgeType side, const Shores& there) {
    const std::size_t a = Number_of(side), b = Number_of(Opposite(side));
    const auto differs = (here.Water[a] & there.Land[b]) | (here.Land[a] & there.Water[b]);
    return static_cast<int>((differs & (differs << 1U | differs >> 1U)).count());
}

}  // namespace

void Check_polygons(const Project& p, const CoastSurvey& survey, Findings& findings) {
    const bool has_coast = !survey.Coastlines().empty();
    if (!has_coast && p.LWMCount > 0)
        findings.push_back({.Kind = FindingKind::Polygon,
                            .IsError = false,
                            .Text =
                                "there is no coastline to hold the polygons against; they belong "
                                "to another project of this LOD8 cell, or it is gone"});
    for (const auto& [cell, polygons] : Polygons_by_cell(p)) {
        if (!Is_in_LOD8_cell(cell)) continue;
        if (has_coast) Check_outlines(p, polygons, survey.Candidates(cell), findings);
        if (polygons.size() > 1) Check_overlaps(p, polygons, findings);
    }
}

void Check_common_edges(const Project& p, Findings& findings) {
    std::map<LOD13Cell, Shores> cells;
    for (int polygon = 1; polygon <= p.LWMCount; ++polygon)
        Add_shore(cells[Cell_of_polygon(p, polygon)], Stored_outline(p, polygon),
                  p.LWMType(polygon) == WaterPolygon);
    for (const auto& [cell, shores] : cells)
        for (const EdgeType side : {EdgeType::Right, EdgeType::Bottom}) {
            const auto other = cells.find(Beyond(cell, side));
            if (other == cells.end()) continue;
            const int units = Units_of_disagreement(shores, side, other->second);
            if (units == 0) continue;
            findings.push_back({.Kind = FindingKind::Neighbours,
                                .Cell = cell,
                                .Text = "water lies beside land along " + std::to_string(units) +
                                        " units of the edge to " + Text_of(other->first) +
                                        "; delete the wrong polygon and click it again"});
        }
}

}  // namespace tidemark
