#include "coast/finding_choice.h"

#include <algorithm>
#include <cstdlib>

#include "coast/check_parts.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// The findings of one cell within a list, by their positions: First to before Last.
struct Range {
    int First, Last;
};

Range Range_of(const Findings& findings, const std::optional<LOD13Cell>& cell) {
    const auto first = std::find_if(findings.begin(), findings.end(),
                                    [&](const Finding& finding) { return finding.Cell >= cell; });
    const auto last = std::find_if(first, findings.end(),
                                   [&](const Finding& finding) { return finding.Cell > cell; });
    return {static_cast<int>(first - findings.begin()), static_cast<int>(last - findings.begin())};
}

// The polygons and the edges of the map never stand in the builder's way.
bool Is_of_coastline(const Finding& finding) {
    const bool is_between_polygons = finding.Kind == FindingKind::Neighbours && finding.Point == 0;
    return finding.Kind != FindingKind::Polygon && finding.Kind != FindingKind::Limits &&
           !is_between_polygons;
}

// The square of how far a place is from a cell; 0 inside.
int Distance_squared(Position place, Position cell) {
    int sum = 0;
    for (const std::size_t axis : {0U, 1U}) {
        const int first = First_unit(cell[axis]);
        const int away = place[axis] - std::clamp(place[axis], first, first + LastCellUnit);
        sum += away * away;
    }
    return sum;
}

}  // namespace

std::string Findings_summary(const Findings& findings) {
    const int errors = Count_errors(findings);
    const int remarks = static_cast<int>(findings.size()) - errors;
    if (errors == 0 && remarks == 0) return "No findings";
    if (remarks == 0) return Counted(errors, "error");
    if (errors == 0) return Counted(remarks, "remark");
    return Counted(errors, "error") + ", " + Counted(remarks, "remark");
}

std::vector<std::string> Filter_lines(const Findings& findings) {
    std::vector<std::string> lines{"All findings (" + std::to_string(findings.size()) + ")"};
    int kind = 0;
    for (const std::string_view name : FindingKindNames) {
        const auto count = Of_kind(findings, static_cast<FindingKind>(kind++)).size();
        lines.push_back(std::string(name) + " (" + std::to_string(count) + ")");
    }
    return lines;
}

int Chosen_after(const Findings& before, int chosen, const Findings& after) {
    if (chosen < 0 || chosen >= static_cast<int>(before.size())) return -1;
    const Finding& was = before[static_cast<std::size_t>(chosen)];
    const auto same = std::find(after.begin(), after.end(), was);
    if (same != after.end()) return static_cast<int>(same - after.begin());
    // The numbers of points change as others come and go; the place within the cell stays.
    const int in_cell = chosen - Range_of(before, was.Cell).First;
    const Range cell = Range_of(after, was.Cell);
    return std::min({cell.First + in_cell, cell.Last, static_cast<int>(after.size()) - 1});
}

std::optional<Position> Place_of_finding(const Project& p, const Finding& finding) {
    if (!finding.Cell) return std::nullopt;
    const bool has_point = finding.Point >= 1 && finding.Point <= p.VTPCount;
    if (has_point && Cell_of_point(p, finding.Point) == *finding.Cell)
        return VTP_position(p, finding.Point);
    constexpr int middle = CellSizeVTP / 2;
    return Position{First_unit(finding.Cell->Column) + middle,
                    First_unit(finding.Cell->Row) + middle};
}

const Finding* Explaining_finding(const Findings& findings, Position place) {
    const Position clicked = Cell_of(place);
    const Finding* nearest = nullptr;
    int least = 0;
    for (const Finding& finding : findings) {
        if (!finding.IsError || !finding.Cell || !Is_of_coastline(finding)) continue;
        const Position cell{finding.Cell->Column, finding.Cell->Row};
        if (std::abs(cell[0] - clicked[0]) > 1 || std::abs(cell[1] - clicked[1]) > 1) continue;
        const int distance = Distance_squared(place, cell);
        if (nearest != nullptr && distance >= least) continue;
        nearest = &finding;
        least = distance;
    }
    return nearest;
}

}  // namespace tidemark
