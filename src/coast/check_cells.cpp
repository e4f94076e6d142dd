#include <algorithm>
#include <cstdlib>

#include "coast/cell_path.h"
#include "coast/check_parts.h"
#include "coast/mend.h"

namespace tidemark {

namespace {

std::string Count_text(std::size_t count, const char* what) {
    return std::to_string(count) + " " + what;
}

void Check_ends(const Project& p, const SurveyedCell& cell, Findings& findings) {
    const Finding loose_end{.Kind = FindingKind::LooseEnd, .Cell = cell.Cell};
    const std::vector<int>& ends = cell.Ends;
    if (ends.size() == 2 && cell.Inner.empty()) {
        if (VTP_position(p, ends[0]) == VTP_position(p, ends[1])) return;  // a closed line
        Finding linked = loose_end;
        linked.IsError = false;
        linked.Point = ends[0];
        linked.Text = "coastlines end in this cell at " + Point_text(ends[0]) + " and " +
                      Point_text(ends[1]) + "; its polygons go straight from one to the other";
        findings.push_back(linked);
        return;
    }
    for (const int end : ends) {
        Finding found = loose_end;
        found.Point = end;
        if (Place_on_edge(p, end)) found.Mending = Remedy::MoveToEdge;
        found.Text = "a coastline ends in this cell at " + Point_text(end) +
                     (ends.size() > 1 ? ", one of " + Count_text(ends.size(), "ends") : "") +
                     ", and no polygon can be built; move the end to the cell's edge or delete it";
        findings.push_back(found);
    }
}

void Check_inner(const SurveyedCell& cell, Findings& findings) {
    if (cell.Inner.empty()) return;
    Finding finding{
        .Kind = FindingKind::SeveralInside, .Cell = cell.Cell, .Point = cell.Inner.front().first};
    const auto count = cell.Inner.size();
    if (!cell.Crossings.empty() && (count > 1 || !cell.Ends.empty())) {
        finding.Text = Count_text(count, "coastlines inside") +
                       " a cell that another one crosses count as loose ends, and no polygon can "
                       "be built; delete them or lead them across an edge";
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
                       " encloses nothing: the polygon here is the whole cell";
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
                       Count_text(cell.Crossings.size(), "times") + ", and the builder takes " +
                       std::to_string(MaxPolyNumber) + "; delete some of them";
        findings.push_back(finding);
    }
}

// The steps that end at points a and b lead a coastline out of a cell and back into it, or the
// other way round.
bool Is_needle(const Project& p, const CoastSurvey& survey, int a, int b) {
    const auto& coastlines = survey.Coastlines();
    const bool is_one_coastline = std::any_of(
        coastlines.begin(), coastlines.end(),
        [&](const Segment& coastline) { return coastline.First < a && b <= coastline.Last; });
    if (!is_one_coastline || Cell_of_point(p, a - 1) != Cell_of_point(p, b)) return false;
    for (int i = a; i < b; ++i)
        if (Cell_of_point(p, i) != Cell_of_point(p, a)) return false;
    return true;
}

void Check_same_places(const Project& p, const CoastSurvey& survey, const SurveyedCell& cell,
                       Findings& findings) {
    for (auto a = cell.Crossings.begin(); a != cell.Crossings.end(); ++a) {
        const auto found =
            std::find_if(a + 1, cell.Crossings.end(),
                         [&](const BoundaryPoint& other) { return other.Place == a->Place; });
        if (found == cell.Crossings.end()) continue;
        const int from = std::min(a->Origin, found->Origin);
        const int to = std::max(a->Origin, found->Origin);
        Finding finding{.Kind = FindingKind::Segment,
                        .Cell = cell.Cell,
                        .Text =
                            "coastlines cross the edge of this cell twice at one place, "
                            "before " +
                            Point_text(from) + " and before " + Point_text(to) +
                            "; move one of them aside",
                        .Point = from,
                        .Other = to};
        if (Is_needle(p, survey, from, to)) {
            finding.Mending = Remedy::Widen;
            if (First_crossing(VTP_position(p, from - 1), VTP_position(p, from)) >
                First_crossing(VTP_position(p, to - 1), VTP_position(p, to)))
                std::swap(finding.Point, finding.Other);
        }
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
                                .Text = "the polygon builder says: " + cell.Warning});
    }
}

}  // namespace tidemark
