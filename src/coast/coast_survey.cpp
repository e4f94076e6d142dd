#include "coast/coast_survey.h"

#include <algorithm>
#include <bitset>

#include "coast/project_places.h"
#include "lwm/edge_points.h"
#include "lwm/polygon_builder.h"
#include "lwm/polygon_candidates.h"
#include "model/drawing_modes.h"
#include "platform/messages.h"

namespace tidemark {

namespace {

constexpr int CellsAcross = LastLOD13 + 1;

// Keeps the first line of the first warning; what only informs is not kept.
class FirstWarning : public Messages {
  public:
    MessageAnswer Show(const Message& message) override {
        if (Text.empty() && message.Icon == MessageIcon::Exclamation)
            Text = message.Text.substr(0, message.Text.find('\n'));
        return MessageAnswer::OK;
    }

    std::string Text;
};

Session Session_at(LOD13Cell cell) {
    Session session;
    session.CursorCellX = cell.Column;
    session.CursorCellY = cell.Row;
    return session;
}

// Sorts the edge points of one chain, first..last, into what they are for the cell.
void Take_chain(const CellEdges& edges, int first, int last, SurveyedCell& cell) {
    std::vector<int> ends;
    bool crosses = false;
    for (int e = first; e <= last; ++e) {
        const EdgeType type = edges.EdgePointType(e);
        if (type == EdgeType::Terminal) ends.push_back(edges.EdgePointOrigin(e));
        if (!Is_edge(type)) continue;
        crosses = true;
        cell.Crossings.push_back({edges.EdgePoint(e), type, edges.EdgePointOrigin(e)});
    }
    if (crosses)
        cell.Ends.insert(cell.Ends.end(), ends.begin(), ends.end());
    else
        cell.Inner.emplace_back(edges.EdgePointOrigin(first), edges.EdgePointOrigin(last));
}

void Take_chains(const CellEdges& edges, SurveyedCell& cell) {
    for (int e = 1, first = 1; e <= edges.EdgePointCount; ++e) {
        const bool is_last = e == edges.EdgePointCount || edges.EdgePointLink(e + 1) == 0;
        if (!is_last) continue;
        Take_chain(edges, first, e, cell);
        first = e + 1;
    }
}

}  // namespace

CoastSurvey::CoastSurvey(const Project& project) : project_(std::make_unique<Project>(project)) {
    for (const Segment& segment : Segments(project))
        if (Is_coastline(segment.Mode)) coastlines_.push_back(segment);
    try {
        Find_cells();
    } catch (const Overflow&) {
        cells_.clear();
    }
}

void CoastSurvey::Find_cells() {
    constexpr std::size_t across = CellsAcross;
    std::bitset<across * across> found;
    for (const Segment& coastline : coastlines_)
        for (int i = coastline.First; i <= coastline.Last; ++i) {
            const auto [column, row] = Cell_of_point(*project_, i);
            if (Is_in_LOD8_cell({column, row}))
                found.set(static_cast<std::size_t>(column) * across +
                          static_cast<std::size_t>(row));
        }
    for (int cell = 0; cell < CellsAcross * CellsAcross; ++cell)
        if (found.test(static_cast<std::size_t>(cell)))
            cells_.push_back(Look_at({cell / CellsAcross, cell % CellsAcross}));
}

SurveyedCell CoastSurvey::Look_at(LOD13Cell place) const {
    SurveyedCell cell;
    cell.Cell = place;
    FirstWarning warning;
    const Session session = Session_at(place);
    CellPoints points(*project_, session);
    CellEdges edges = Edge_points_of(*project_, points);
    Assign_edges(edges);
    cell.PointsLost = edges.EdgePointsLost;
    Take_chains(edges, cell);
    cell.Candidates = Candidates_from(edges, warning);
    cell.Warning = warning.Text;
    return cell;
}

const SurveyedCell* CoastSurvey::At(LOD13Cell cell) const {
    const auto found =
        std::lower_bound(cells_.begin(), cells_.end(), cell,
                         [](const SurveyedCell& a, LOD13Cell b) { return a.Cell < b; });
    return found != cells_.end() && found->Cell == cell ? &*found : nullptr;
}

std::vector<Outline> CoastSurvey::Candidates(LOD13Cell cell) const {
    if (const SurveyedCell* const surveyed = At(cell)) return surveyed->Candidates;
    FirstWarning warning;
    try {
        return Candidate_polygons(*project_, Session_at(cell), warning);
    } catch (const Overflow&) {
        return {};
    }
}

int Along(const BoundaryPoint& point) {
    const bool is_upright = point.Side == EdgeType::Left || point.Side == EdgeType::Right;
    return is_upright ? point.Place.Y : point.Place.X;
}

std::vector<BoundaryPoint> Crossings_on(const SurveyedCell& cell, EdgeType side) {
    std::vector<BoundaryPoint> points;
    for (const BoundaryPoint& point : cell.Crossings)
        if (point.Side == side) points.push_back(point);
    std::sort(points.begin(), points.end(),
              [](const BoundaryPoint& a, const BoundaryPoint& b) { return Along(a) < Along(b); });
    return points;
}

LOD13Cell Beyond(LOD13Cell cell, EdgeType side) {
    switch (side) {
        case EdgeType::Left:
            return {cell.Column - 1, cell.Row};
        case EdgeType::Right:
            return {cell.Column + 1, cell.Row};
        case EdgeType::Top:
            return {cell.Column, cell.Row - 1};
        default:
            return {cell.Column, cell.Row + 1};
    }
}

EdgeType Opposite(EdgeType side) {
    switch (side) {
        case EdgeType::Left:
            return EdgeType::Right;
        case EdgeType::Right:
            return EdgeType::Left;
        case EdgeType::Top:
            return EdgeType::Bottom;
        default:
            return EdgeType::Top;
    }
}

std::int64_t Twice_area(const Outline& outline) {
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        const CellPoint a = outline[i], b = outline[i + 1 == outline.size() ? 0 : i + 1];
        sum += std::int64_t{int{a.X}} * int{b.Y} - std::int64_t{int{b.X}} * int{a.Y};
    }
    return sum;
}

bool Same_outline(const Outline& a, const Outline& b) {
    if (a.size() != b.size()) return false;
    if (a.empty()) return true;
    for (auto start = b.begin(); start != b.end(); ++start) {
        const auto tail = b.end() - start;
        if (std::equal(start, b.end(), a.begin()) && std::equal(b.begin(), start, a.begin() + tail))
            return true;
    }
    return false;
}

std::vector<Outline> Distinct_pieces(const std::vector<Outline>& candidates) {
    std::vector<Outline> pieces;
    for (const Outline& candidate : candidates) {
        const auto is_same = [&](const Outline& piece) { return Same_outline(piece, candidate); };
        if (candidate.size() >= 3 && Is_in_cell(candidate) &&
            std::none_of(pieces.begin(), pieces.end(), is_same))
            pieces.push_back(candidate);
    }
    return pieces;
}

}  // namespace tidemark
