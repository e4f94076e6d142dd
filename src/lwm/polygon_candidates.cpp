#include "lwm/polygon_candidates.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "lwm/edge_points.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// An edge of the cell as it is walked, clockwise, to the corner at its end.
struct CellEdge {
    EdgeType Type;
    Int16 CellPoint::*Across;  // the coordinate that is the same all along the edge
    Int16 CellPoint::*Along;   // the one that changes,
    int Direction;             // and how
    CellPoint Corner;
};

constexpr std::array<CellEdge, 4> Clockwise{{
    {EdgeType::Top, &CellPoint::Y, &CellPoint::X, +1, {LastCellUnit, 0}},
    {EdgeType::Right, &CellPoint::X, &CellPoint::Y, +1, {LastCellUnit, LastCellUnit}},
    {EdgeType::Bottom, &CellPoint::Y, &CellPoint::X, -1, {0, LastCellUnit}},
    {EdgeType::Left, &CellPoint::X, &CellPoint::Y, -1, {0, 0}},
}};

// Units from one point to another in the direction of the edge.
int Distance(const CellEdge& edge, CellPoint from, CellPoint to) {
    return (int{to.*edge.Along} - int{from.*edge.Along}) * edge.Direction;
}

// The candidates as they are built, one after the other.
class Candidates {
  public:
    explicit Candidates(Messages& messages) : messages_(messages) {}

    void Begin() { outlines_.emplace_back(); }
    // Appends a vertex to the last one. A vertex beyond the 200th is dropped with a warning.
    void Add(CellPoint vertex) {
        if (outlines_.back().size() < MaxLWMPointCount)
            outlines_.back().push_back(vertex);
        else
            Warn(messages_,
                 "Fatal error - polygon overflow\n"
                 "Likely cause is a VTP segment without a point in a cell through which it passes");
    }
    // Leaves the last one in its place without vertices.
    void Drop() { outlines_.back().clear(); }

    std::vector<Outline> Take() { return std::move(outlines_); }

  private:
    std::vector<Outline> outlines_;
    Messages& messages_;
};

// Builds candidates from the chains that end on the boundary.
class CandidateWalks {
  public:
    CandidateWalks(const CellEdges& edges, Candidates& candidates, Messages& messages)
        : edges_(edges), candidates_(candidates), messages_(messages) {
        for (int e = 1; e <= edges.EdgePointCount; ++e)
            if (Is_edge(edges.EdgePointType(e))) EdgeStart_.push_back(e);
    }

    void Build_all() {
        for (const int start : EdgeStart_) {
            candidates_.Begin();
            if (!Build_from(start)) candidates_.Drop();
        }
    }

  private:
    // False when the walk does not come back to its start.
    bool Build_from(int start) {
        std::array<bool, MaxEdgePointCount + 1> passed{};
        for (int current = start; !passed[static_cast<std::size_t>(current)];) {
            passed[static_cast<std::size_t>(current)] = true;
            const std::optional<int> far_end = Follow_chain(current);
            if (!far_end) return false;
            if (!Is_edge(edges_.EdgePointType(*far_end))) {
                Warn(messages_,
                     "Fatal error - got to end of a line segment and it's not at an edge!!!");
                return true;  // unfinished, but a candidate
            }
            const int found = Follow_boundary(*far_end);
            if (found == start) return true;
            if (found == 0) return false;
            current = Last_start_at(edges_.EdgePoint(found));
        }
        return false;
    }

    // Appends the chain from the edge point to the other end, which it returns; nothing when the
    // chain runs in a circle.
    std::optional<int> Follow_chain(int e) {
        candidates_.Add(edges_.EdgePoint(e));
        const bool forward = edges_.EdgePointLink(e) == 0;
        for (int passed = 1; passed <= edges_.EdgePointCount; ++passed) {
            const int next = forward ? edges_.Next_edge_point(e) : edges_.EdgePointLink(e);
            if (next == 0) return e;
            candidates_.Add(edges_.EdgePoint(next));
            e = next;
        }
        return std::nullopt;
    }

    // The next edge point on the boundary, clockwise from a chain's far end; appends the corners on
    // the way. 0 when the boundary holds none.
    int Follow_boundary(int far_end) {
        auto edge =
            std::find_if(Clockwise.begin(), Clockwise.end(), [&](const CellEdge& candidate) {
                return candidate.Type == edges_.EdgePointType(far_end);
            });
        if (const int found = Next_on(*edge, edges_.EdgePoint(far_end))) return found;
        for (std::size_t corners = 0; corners < Clockwise.size(); ++corners) {
            candidates_.Add(edge->Corner);
            if (++edge == Clockwise.end()) edge = Clockwise.begin();
            if (const int found = Next_on(*edge, std::nullopt)) return found;
        }
        return 0;
    }

    // The first edge point on the edge, beyond `after` and before the corner; 0 when there is none.
    // Interior and terminal points are never on an edge, so only the boundary points are asked.
    int Next_on(const CellEdge& edge, std::optional<CellPoint> after) const {
        int found = 0;
        int farthest = 0;  // from the corner, up to now
        for (const int e : EdgeStart_) {
            const CellPoint p = edges_.EdgePoint(e);
            const int to_corner = Distance(edge, p, edge.Corner);
            const bool on_edge = p.*edge.Across == edge.Corner.*edge.Across;
            if (!on_edge || to_corner <= farthest) continue;
            if (after && Distance(edge, *after, p) <= 0) continue;
            found = e;
            farthest = to_corner;
        }
        return found;
    }

    int Last_start_at(CellPoint place) const {
        return *std::find_if(EdgeStart_.rbegin(), EdgeStart_.rend(),
                             [&](int e) { return edges_.EdgePoint(e) == place; });
    }

    const CellEdges& edges_;
    Candidates& candidates_;
    Messages& messages_;
    std::vector<int> EdgeStart_;  // the boundary points, by number
};

// The first coastline that lies wholly inside the cell.
void Build_inner_outline(const CellEdges& edges, Candidates& candidates, Messages& messages) {
    Inform(messages, "Tidemark - Information",
           "One or more VTP segments which are entirely inside this cell have detected. \n"
           "Tidemark will draw a polygon around the points of the first VTP segment detected.");
    int e = 1;
    while (edges.EdgePointLink(e) != 0) ++e;
    for (; e != 0; e = edges.Next_edge_point(e)) candidates.Add(edges.EdgePoint(e));
}

void Build_whole_cell(Candidates& candidates) {
    for (const CellPoint corner :
         {CellPoint{0, 0}, {LastCellUnit, 0}, {LastCellUnit, LastCellUnit}, {0, LastCellUnit}})
        candidates.Add(corner);
}

void Build_without_boundary_points(const CellEdges& edges, Candidates& candidates,
                                   Messages& messages) {
    candidates.Begin();
    if (Count_edge_points(edges, EdgeType::Interior) > 0)
        Build_inner_outline(edges, candidates, messages);
    else
        Build_whole_cell(candidates);
}

// False when there are too many boundary points, or half a pair.
bool Check_boundary_points(int count, Messages& messages) {
    if (count % 2 != 0) {
        Warn(messages, "Final polygon check failed - odd number of edge points!");
        return false;
    }
    if (count > MaxPolyNumber) {
        Warn(messages, "This LOD13 cell contains too many coast segments for Tidemark to handle!");
        return false;
    }
    return true;
}

// False when the cell is refused.
bool Build_candidates(CellEdges& edges, Candidates& candidates, Messages& messages) {
    const int terminals = Count_edge_points(edges, EdgeType::Terminal);
    const int boundary_points = Count_boundary_points(edges);
    if (boundary_points == 0) {
        Build_without_boundary_points(edges, candidates, messages);
        return true;
    }
    if (terminals > 0 && !Join_terminal_points(edges, terminals, messages)) return false;
    if (!Check_boundary_points(boundary_points, messages)) return false;
    CandidateWalks(edges, candidates, messages).Build_all();
    return true;
}

}  // namespace

std::vector<Outline> Candidate_polygons(Project& project, const Session& session,
                                        Messages& messages) {
    CellPoints points(project, session);
    CellEdges edges = Edge_points_of(project, points);
    return Candidates_from(edges, messages);
}

std::vector<Outline> Candidates_from(CellEdges& edges, Messages& messages) {
    if (edges.EdgePointsLost) {
        Warn(messages, "The polygon has not been added: the coastlines may have at most " +
                           Int_text(MaxEdgePointCount) + " points in one LOD13 cell.");
        return {};
    }
    Assign_edges(edges);
    Candidates candidates(messages);
    if (!Build_candidates(edges, candidates, messages)) return {};
    return candidates.Take();
}

}  // namespace tidemark
