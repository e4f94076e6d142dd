#include "coast/coast_draft.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "coast/cell_path.h"
#include "coast/mend.h"

namespace tidemark {

namespace {

// The line goes along one edge of the map, and there is nothing between it and the edge.
bool Is_along_edge(const std::vector<Position>& placed, const MapUnits& map) {
    if (placed.size() != 2) return false;
    for (const std::size_t axis : {0U, 1U})
        if (placed[0][axis] == placed[1][axis] &&
            (placed[0][axis] == map.First[axis] || placed[0][axis] == map.Last[axis]))
            return true;
    return false;
}

}  // namespace

MapRectangle MapUnits::Rectangle() const {
    return {First[0] - 0.5, First[1] - 0.5, Last[0] + 0.5, Last[1] + 0.5};
}

bool MapUnits::Is_on_edge(Position place) const {
    return place[0] == First[0] || place[0] == Last[0] || place[1] == First[1] ||
           place[1] == Last[1];
}

CoastDraft::CoastDraft(std::vector<DraftLine> lines, const MapUnits& map, double tolerance)
    : map_(map), tolerance_(tolerance), lines_(std::move(lines)) {
    kept_.resize(lines_.size());
    placed_.resize(lines_.size());
    for (std::size_t line = 0; line < lines_.size(); ++line) Place(line);
}

// An end on the edge of the map, or all but there, is put on it; every other point keeps clear of
// cell edges.
Position CoastDraft::Place_of(const DraftLine& line, std::size_t point) const {
    const std::vector<MapPoint>& points = line.Line.Points;
    const MapPoint p = points[point];
    Position unit;
    for (const std::size_t axis : {0U, 1U})
        unit[axis] = static_cast<int>(std::clamp(std::lround(axis == 0 ? p.X : p.Y),
                                                 static_cast<long>(map_.First[axis]),
                                                 static_cast<long>(map_.Last[axis])));
    Position place = Off_cell_edges(unit);
    const bool is_end = point == 0 || point + 1 == points.size();
    if (line.Line.IsRing || !is_end) return place;
    std::size_t nearest = 0;
    int least = MaxEndFromEdge + 1;
    for (const std::size_t axis : {0U, 1U})
        for (const int edge : {map_.First[axis], map_.Last[axis]}) {
            const int distance = std::abs(edge - unit[axis]);
            if (distance >= least) continue;
            least = distance;
            nearest = axis;
            unit[axis] = edge;
        }
    if (least <= MaxEndFromEdge) place[nearest] = unit[nearest];
    return place;
}

void CoastDraft::Place(std::size_t number) {
    const DraftLine& line = lines_[number];
    std::vector<std::size_t>& kept = kept_[number];
    std::vector<Position>& placed = placed_[number];
    kept.clear();
    placed.clear();
    const std::size_t count = line.Line.Points.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (line.Significances[i] <= tolerance_) continue;
        const Position place = Place_of(line, i);
        const bool is_last = !line.Line.IsRing && i + 1 == count;
        if (!placed.empty() && placed.back() == place) {
            if (!is_last) continue;
            kept.pop_back();  // an open line keeps its very end
            placed.pop_back();
        }
        kept.push_back(i);
        placed.push_back(place);
    }
    if (!line.Line.IsRing) {
        if (Is_along_edge(placed, map_)) placed.clear();
        return;
    }
    while (placed.size() > 1 && placed.back() == placed.front()) {
        kept.pop_back();
        placed.pop_back();
    }
    if (placed.size() >= 3)
        placed.push_back(placed.front());
    else
        placed.clear();
}

// Of all lines, cut at the cell edges.
std::vector<CoastStep> CoastDraft::Steps() const {
    std::vector<CoastStep> steps;
    std::vector<Position> points;
    for (std::uint32_t line = 0; line < lines_.size(); ++line) {
        const std::vector<Position>& placed = placed_[line];
        const std::size_t first = steps.size();
        for (std::uint32_t chord = 0; chord + 1 < placed.size(); ++chord) {
            Position from = placed[chord];
            points.clear();
            Append_cut(points, from, placed[chord + 1]);
            for (const Position& to : points) {
                steps.push_back({from, to, line, chord, true, false, false});
                from = to;
            }
        }
        if (steps.size() == first) continue;
        steps.back().GoesOn = false;
        steps[first].BeginsRing = steps.back().EndsRing = lines_[line].Line.IsRing;
    }
    return steps;
}

std::vector<Position> CoastDraft::Ends_on_map_edge() const {
    std::vector<Position> ends;
    for (std::size_t line = 0; line < lines_.size(); ++line) {
        const std::vector<Position>& placed = placed_[line];
        if (placed.empty() || lines_[line].Line.IsRing) continue;
        for (const Position& end : {placed.front(), placed.back()})
            if (map_.Is_on_edge(end)) ends.push_back(end);
    }
    return ends;
}

void CoastDraft::Add(DraftLine line) {
    lines_.push_back(std::move(line));
    kept_.emplace_back();
    placed_.emplace_back();
}

double CoastDraft::Deviation(std::size_t number) const {
    const std::vector<MapPoint>& points = lines_[number].Line.Points;
    const std::vector<Position>& placed = placed_[number];
    const std::vector<std::size_t>& kept = kept_[number];
    double most = 0;
    std::vector<Position> cuts;
    for (std::size_t chord = 0; chord + 1 < placed.size(); ++chord) {
        const MapPoint a{double(placed[chord][0]), double(placed[chord][1])};
        const MapPoint b{double(placed[chord + 1][0]), double(placed[chord + 1][1])};
        const std::size_t last =
            chord + 1 < kept.size() ? kept[chord + 1] : points.size() + kept[0];
        for (std::size_t i = kept[chord]; i <= last; ++i)
            most = std::max(most, Square_to_segment(points[i % points.size()], a, b));
        cuts.clear();
        Append_cut(cuts, placed[chord], placed[chord + 1]);
        for (const Position& cut : cuts)
            most = std::max(most, Square_to_segment({double(cut[0]), double(cut[1])}, a, b));
    }
    return std::sqrt(most) + (lines_[number].LeftOut ? LeastGain : 0);
}

}  // namespace tidemark
