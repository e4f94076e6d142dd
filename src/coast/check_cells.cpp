#include <algorithm>

#include "coast/cell_path.h"
#include "coast/check_parts.h"
#include "coast/mend.h"

namespace tidemark {

namespace {

std::string Count_text(std::size_t count, const char* what) {
    return std::to_string(count) + " " + what;
}

// Whether an end near its cell's edge belongs on it. Where the coastline has crossed the edge right
// there, it would only come back to that place; and one that goes on from another's end would be in
// the way of that.
bool Belongs_on_edge(const Project& p, const SurveyedCell& cell, int end) {
    const auto place = Place_on_edge(p, end);
    const auto shares_place = [&](int other) {
        return other != end && VTP_position(p, other) == VTP_position(p, end);
    };
    return place && std::none_of(cell.Ends.begin(), cell.Ends.end(), shares_place) &&
           std::none_of(cell.Crossings.begin(), cell.Crossings.end(), [&](const auto& crossing) {
               return Position{First_unit(cell.Cell.Column) + int{crossing.Place.X},
                               First_unit(cell.Cell.Row) + int{crossing.Place.Y}} == *place;
           });
}

void Check_ends(const Project& p, const SurveyedCell& cell, Findings& findings) {
    const Finding loose_end{.Kind = FindingKind::LooseEnd, .Cell = cell.Cell};
    const std::vector<int>& ends = cell.Ends;
    if (ends.size() == 2 && cell.Inner.empty()) {
        if (VTP_position(p, ends[0]) == VTP_position(p, ends[1])) return;  // a closed line
        Finding linked = loose_end;
        linked.IsError = false;
        linked.Point = ends[0];
        linked.Text = "coastlines end in this cell at " + Point_text(ends[0]) + " and at " +
                      Point_text(ends[1]) +
                      ", and its polygons go straight from one to the other; if that is wrong, "
                      "draw what is missing";
        findings.push_back(linked);
        return;
    }
    for (const int end : ends) {
        Finding found = loose_end;
        found.Point = end;
        const bool is_near = Belongs_on_edge(p, cell, end);
        if (is_near) found.Mending = Remedy::MoveToEdge;
        found.Text = "a coastline ends in this cell at " + Point_text(end) +
                     (ends.size() > 1 ? ", one of " + Count_text(ends.size(), "ends") : "") +
                     ", and no polygon can be built; " +
                     (is_near ? "Mend moves the end to the cell's edge"
                              : "move the end to the cell's edge or delete it");
        findings.push_back(found);
    }
}

void Check_inner(const SurveyedCell& cell, Findings& findings) {
    if (cell.Inner.empty()) return;
    Finding finding{
        .Kind = FindingKind::SeveralInside, .Cell = cell.Cell, .Point = cell.Inner.front().first};
    const auto count = cell.Inner.size();
    if (!cell.Crossings.empty() && (count > 1 || !cell.Ends.empty())) {
        const bool is_one = count == 1;
        finding.Text = (is_one ? "the coastline inside this cell counts"
                               : Count_text(count, "coastlines inside this cell count")) +
                       " as loose ends, because another one crosses it, and no polygon can be "
                       "built; " +
                       (is_one ? "delete it or lead it" : "delete them or lead them") +
                       " across an edge";
    } else if (!cell.Crossings.empty()) {
        finding.IsError = false;
        finding.Text = "the coastline from " + Point_text(cell.Inner.front().first) + " to " +
                       Point_text(cell.Inner.front().second) +
                       " lies inside this cell, and polygons are built as if it were not there";
    } else if (count > 1) {
        finding.Text = "of the " + Count_text(count, "coastlines") +
                       " inside this cell the polygon takes only the first, at " +
                       Point_text(finding.Point) + "; delete the others";
    } else if (cell.Inner.front().second - cell.Inner.front().first < 2) {
        finding.IsError = false;
        finding.Text = "the coastline at " + Point_text(finding.Point) +
                       " encloses nothing, and the polygon here is the whole cell; add points to "
                       "it or delete it";
    } else {
        return;
    }
    findings.push_back(finding);
}

void Check_amount(const SurveyedCell& cell, Findings& findings) {
    Finding finding{.Kind = FindingKind::TooMuch, .Cell = cell.Cell};
    if (!cell.Crossings.empty()) finding.Point = cell.Crossings.front().Origin;
    if (cell.PointsLost) {
        finding.Text = "more than " + std::to_string(MaxEdgePointCount) +
                       " coastline points in this cell, and no polygon can be built; delete some";
        findings.push_back(finding);
    } else if (cell.Crossings.size() > MaxPolyNumber) {
        finding.Text = "coastlines cross the edges of this cell " +
                       Count_text(cell.Crossings.size(), "times") +
                       ", and no polygon can be built with more than " +
                       std::to_string(MaxPolyNumber) + "; delete some of them";
        findings.push_back(finding);
    }
}

// Whether the step that ends at the point lies on the edge of a cell with one of its ends; then its
// crossing is there and cannot be moved aside.
bool Is_held(const Project& p, int point) {
    return Is_on_boundary(Place_in_cell(p, point - 1)) || Is_on_boundary(Place_in_cell(p, point));
}

// The steps that end at points a and b lead a coastline out of a cell and back into it, or the
// other way round.
bool Is_needle(const Project& p, const CoastSurvey& survey, int a, int b) {
    const auto& coastlines = survey.Coastlines();
    const bool is_one_coastline = std::any_of(
        coastlines.begin(), coastlines.end(),
        [&](const Segment& coastline) { return coastline.First < a && b <= coastline.Last; });
    if (!is_one_coastline || Cell_of_point(p, a - 1) != Cell_of_point(p, b) || Is_held(p, a) ||
        Is_held(p, b))
        return false;
    for (int i = a; i < b; ++i)
        if (Cell_of_point(p, i) != Cell_of_point(p, a)) return false;
    return true;
}

bool Is_itself(const Project& p, const BoundaryPoint& crossing) {
    return Place_in_cell(p, crossing.Origin) == crossing.Place;
}

// Where coastlines cross the cell's edge; but one that starts on the edge and leaves the cell right
// there has nothing in it, and does no harm where no other crosses at that place.
std::vector<BoundaryPoint> Passages(const Project& p, const SurveyedCell& cell) {
    std::vector<BoundaryPoint> passages;
    for (const BoundaryPoint& crossing : cell.Crossings) {
        const auto is_here = [&](const BoundaryPoint& other) {
            return other.Place == crossing.Place;
        };
        const bool leaves_at_once =
            !passages.empty() && is_here(passages.back()) &&
            passages.back().Origin + 1 == crossing.Origin &&
            p.VTPSegStart(passages.back().Origin) &&
            std::count_if(cell.Crossings.begin(), cell.Crossings.end(), is_here) == 2;
        if (leaves_at_once)
            passages.pop_back();
        else
            passages.push_back(crossing);
    }
    return passages;
}

void Check_same_places(const Project& p, const CoastSurvey& survey, const SurveyedCell& cell,
                       Findings& findings) {
    const auto text = [&](const BoundaryPoint& crossing) {
        return (Is_itself(p, crossing) ? "at " : "before ") + Point_text(crossing.Origin);
    };
    const std::vector<BoundaryPoint> passages = Passages(p, cell);
    for (auto a = passages.begin(); a != passages.end(); ++a) {
        const auto found = std::find_if(a + 1, passages.end(), [&](const BoundaryPoint& other) {
            return other.Place == a->Place;
        });
        if (found == passages.end()) continue;
        const auto [from, to] = std::minmax(a->Origin, found->Origin);
        Finding finding{.Kind = FindingKind::Segment,
                        .Cell = cell.Cell,
                        .Text = "coastlines cross this cell's edge twice at the same place, " +
                                text(*a) + " and " + text(*found),
                        .Point = from,
                        .Other = to};
        if (Is_needle(p, survey, from, to)) {
            finding.Mending = Remedy::Widen;
            if (First_crossing(VTP_position(p, from - 1), VTP_position(p, from)) >
                First_crossing(VTP_position(p, to - 1), VTP_position(p, to)))
                std::swap(finding.Point, finding.Other);
        }
        finding.Text += finding.Mending == Remedy::Widen ? "; Mend leads them across a unit apart"
                                                         : "; move one of them aside";
        findings.push_back(std::move(finding));
    }
}

}  // namespace

void Check_cells(const Project& p, const CoastSurvey& survey, Findings& findings) {
    for (const SurveyedCell& cell : survey.Cells()) {
        const auto is_here = [&](const Finding& finding) {
            return finding.IsError && finding.Cell == cell.Cell;
        };
        Check_ends(p, cell, findings);
        Check_inner(cell, findings);
        Check_amount(cell, findings);
        Check_same_places(p, survey, cell, findings);
        if (!cell.Warning.empty() && std::none_of(findings.begin(), findings.end(), is_here))
            findings.push_back({.Kind = FindingKind::TooMuch,
                                .Cell = cell.Cell,
                                .Text = "a polygon that is clicked here is refused: \"" +
                                        cell.Warning +
                                        "\"; look up this message in the Instructions"});
    }
}

}  // namespace tidemark
