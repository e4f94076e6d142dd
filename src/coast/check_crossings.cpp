#include <algorithm>
#include <cstdlib>

#include "coast/cell_path.h"
#include "coast/check_parts.h"

namespace tidemark {

namespace {

// A crossing of the common edge of two cells, as one of them has it.
struct Seen {
    BoundaryPoint Point;
    bool IsMatched = false;
};

using Side = std::vector<Seen>;

Side Seen_on(const SurveyedCell* cell, EdgeType edge) {
    Side side;
    if (cell != nullptr)
        for (const BoundaryPoint& point : Crossings_on(*cell, edge)) side.push_back({point});
    return side;
}

// The two cells agree to a unit.
bool Is_close(const BoundaryPoint& a, const BoundaryPoint& b) {
    return std::abs(Along(a) - Along(b)) <= 1;
}

class EdgeCheck {
  public:
    EdgeCheck(const Project& p, const CoastSurvey& survey, Findings& findings)
        : p_(p), survey_(survey), findings_(findings) {
        for (const Finding& finding : findings)
            if (finding.Mending == Remedy::MoveInside) moved_inside_.push_back(finding.Point);
    }

    // The edge of a cell that it has in common with its neighbour.
    void Check(const SurveyedCell& cell, EdgeType edge) {
        cell_ = cell.Cell;
        other_ = Beyond(cell_, edge);
        Side here = Seen_on(&cell, edge);
        Side there = Seen_on(survey_.At(other_), Opposite(edge));
        // The two ends of one step belong together however far apart they are; where one coastline
        // goes on from another, or a point lies on the edge, the place tells.
        for (const int apart : {0, 1})
            Match(here, there, [&](const BoundaryPoint& a, const BoundaryPoint& b) {
                return std::abs(a.Origin - b.Origin) == apart &&
                       (apart == 0 || !p_.VTPSegStart(std::max(a.Origin, b.Origin)));
            });
        Match(here, there, Is_close);
        for (const Seen& seen : here) Look_at_lonely(seen, cell_, other_);
        for (const Seen& seen : there) Look_at_lonely(seen, other_, cell_);
    }

  private:
    template <class Belong_together>
    void Match(Side& here, Side& there, const Belong_together& belong_together) {
        for (Seen& a : here) {
            const auto b = std::find_if(there.begin(), there.end(), [&](const Seen& seen) {
                return !a.IsMatched && !seen.IsMatched && belong_together(a.Point, seen.Point);
            });
            if (b == there.end()) continue;
            a.IsMatched = b->IsMatched = true;
            if (!Is_close(a.Point, b->Point)) Report_slant(a.Point, b->Point);
        }
    }

    void Report_slant(const BoundaryPoint& a, const BoundaryPoint& b) {
        const int point = Is_itself(a, cell_) ? b.Origin : a.Origin;
        if (Is_explained(point) || !Is_step(point)) return;
        Report(cell_, point,
               "the step from " + Point_text(point - 1) + " to " + Point_text(point) +
                   " crosses the edge to " + Text_of(other_) +
                   " at a slant, and the polygons miss each other by " +
                   std::to_string(std::abs(Along(a) - Along(b))) +
                   " units; Mend puts a point on each side of the edge",
               Remedy::CutStep);
    }

    // The boundary point is the VTP point, and no place that was reckoned out.
    bool Is_itself(const BoundaryPoint& a, LOD13Cell cell) const {
        return Cell_of_point(p_, a.Origin) == cell && Place_in_cell(p_, a.Origin) == a.Place;
    }

    // A crossing that the other cell knows nothing of.
    void Look_at_lonely(const Seen& seen, LOD13Cell cell, LOD13Cell other) {
        const int point = seen.Point.Origin;
        if (seen.IsMatched || Is_explained(point) || Is_end_on_edge(point)) return;
        const bool can_be_cut = Can_be_cut(point);
        Report(cell, point,
               "the coastline crosses the edge to " + Text_of(other) + " before " +
                   Point_text(point) + ", which does not see it; " +
                   (can_be_cut ? "Mend puts" : "put") + " a point on each side of the edge",
               can_be_cut ? Remedy::CutStep : Remedy::None);
    }

    // Whether another finding says it already: the step skips a cell, or one of its ends lies on an
    // edge where it should not.
    bool Is_explained(int point) const {
        const auto is_moved = [&](int i) {
            return std::find(moved_inside_.begin(), moved_inside_.end(), i) != moved_inside_.end();
        };
        if (is_moved(point) || is_moved(point - 1) || is_moved(point + 1)) return true;
        if (!Is_step(point)) return false;
        const LOD13Cell a = Cell_of_point(p_, point - 1), b = Cell_of_point(p_, point);
        return std::abs(a.Column - b.Column) + std::abs(a.Row - b.Row) > 1;
    }

    // A coastline may end on a cell's edge: the neighbour has nothing of it, and need not.
    bool Is_end_on_edge(int point) const {
        const auto is_end = [&](int i) {
            return i >= 1 && (p_.VTPSegStart(i) || p_.VTPSegEnd(i)) &&
                   Is_on_boundary(Place_in_cell(p_, i));
        };
        return is_end(point) || (Is_step(point) && is_end(point - 1)) ||
               (Is_step(point + 1) && is_end(point + 1));
    }

    // It may have those points already, and the other cell too many to see it.
    bool Can_be_cut(int point) const {
        return Is_step(point) &&
               !Cut_of_step(VTP_position(p_, point - 1), VTP_position(p_, point)).empty();
    }

    bool Is_step(int point) const {
        return point > 1 && point <= p_.VTPCount && !p_.VTPSegStart(point);
    }

    void Report(LOD13Cell cell, int point, const std::string& text, Remedy remedy) {
        Finding finding{.Kind = FindingKind::Neighbours,
                        .Cell = cell,
                        .Text = text,
                        .Point = point,
                        .Mending = remedy};
        if (Is_in_LOD8_cell(other_) && Is_in_LOD8_cell(cell_))
            findings_.push_back(std::move(finding));
    }

    const Project& p_;
    const CoastSurvey& survey_;
    Findings& findings_;
    std::vector<int> moved_inside_;
    LOD13Cell cell_, other_;
};

}  // namespace

void Check_crossings(const Project& project, const CoastSurvey& survey, Findings& findings) {
    EdgeCheck check(project, survey, findings);
    for (const SurveyedCell& cell : survey.Cells()) {
        check.Check(cell, EdgeType::Right);
        check.Check(cell, EdgeType::Bottom);
        // An edge whose other cell is surveyed too is that one's right or bottom edge.
        for (const EdgeType edge : {EdgeType::Left, EdgeType::Top})
            if (survey.At(Beyond(cell.Cell, edge)) == nullptr) check.Check(cell, edge);
    }
}

}  // namespace tidemark
