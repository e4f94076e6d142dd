#include "coast/coast_draft.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "coast/mend.h"

namespace tidemark {

namespace {

constexpr double Endless = std::numeric_limits<double>::infinity();

// Keeping more points can make lines touch elsewhere; more often than this it does not go on.
constexpr int MaxRounds = 40;

// A ring that goes round less is no island on the map.
constexpr double LeastTwiceArea = 8;

template <class T>
std::vector<T> Part_of(const std::vector<T>& all, std::size_t first, std::size_t last) {
    return {all.begin() + static_cast<std::ptrdiff_t>(first),
            all.begin() + static_cast<std::ptrdiff_t>(last) + 1};
}

template <class T>
void Cut_out(std::vector<T>& all, std::size_t first, std::size_t last) {
    all.erase(all.begin() + static_cast<std::ptrdiff_t>(first),
              all.begin() + static_cast<std::ptrdiff_t>(last) + 1);
}

}  // namespace

MapRectangle MapUnits::Rectangle() const {
    return {First[0] - 0.5, First[1] - 0.5, Last[0] + 0.5, Last[1] + 0.5};
}

double Twice_area(const std::vector<MapPoint>& points) {
    double sum = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const MapPoint a = points[i], b = points[i + 1 == points.size() ? 0 : i + 1];
        sum += a.X * b.Y - b.X * a.Y;
    }
    return sum;
}

CoastDraft::CoastDraft(std::vector<DraftLine> lines, const MapUnits& map, double tolerance,
                       TouchingSteps& touching)
    : map_(map), tolerance_(tolerance), touching_(touching), lines_(std::move(lines)) {
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
    if (!line.Line.IsRing) return;
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
    for (std::uint32_t line = 0; line < lines_.size(); ++line) {
        const std::vector<Position>& placed = placed_[line];
        const std::size_t first = steps.size();
        for (std::uint32_t chord = 0; chord + 1 < placed.size(); ++chord) {
            const Position from = placed[chord], to = placed[chord + 1];
            const auto add = [&](Position a, Position b) {
                steps.push_back({a, b, line, chord, true, false, false});
            };
            if (Cell_of(from) == Cell_of(to)) {
                add(from, to);
                continue;
            }
            const CellPath path = Cut_at_cell_edges({from, to});
            for (std::size_t i = 0; i + 1 < path.Points.size(); ++i)
                add(path.Points[i], path.Points[i + 1]);
        }
        if (steps.size() == first) continue;
        steps.back().GoesOn = false;
        steps[first].BeginsRing = steps.back().EndsRing = lines_[line].Line.IsRing;
    }
    return steps;
}

// Keeps the most significant of the points that the chord leaves out, where that changes anything.
bool CoastDraft::Keep_more(std::size_t number, std::size_t chord) {
    DraftLine& line = lines_[number];
    const std::vector<std::size_t>& kept = kept_[number];
    const std::size_t count = line.Line.Points.size();
    const std::size_t first = kept[chord];
    const std::size_t last = chord + 1 < kept.size() ? kept[chord + 1] : count + kept[0];
    std::size_t most = first;
    for (std::size_t i = first + 1; i < last; ++i)
        if (most == first || line.Significances[i % count] > line.Significances[most % count])
            most = i;
    if (most == first || line.Significances[most % count] <= LeastGain) return false;
    if (line.Significances[most % count] != Endless) is_changed_ = true;
    line.Significances[most % count] = Endless;
    return true;
}

void CoastDraft::Part_lines() {
    for (int round = 0; round < MaxRounds; ++round) {
        const std::vector<CoastStep> steps = Steps();
        const std::vector<TouchingSteps::Pair> touching = touching_.Among(steps);
        if (touching.empty()) return;
        std::vector<bool> changed(lines_.size(), false);
        is_changed_ = false;
        for (const auto& [first, second] : touching)
            for (const CoastStep& step : {steps[first], steps[second]})
                if (Keep_more(step.Line, step.Chord)) changed[step.Line] = true;
        // Only where no point is left that could part them.
        for (const auto& [first, second] : touching) {
            const CoastStep &one = steps[first], &other = steps[second];
            if (!changed[one.Line] && !changed[other.Line] && Separate(one, other))
                is_changed_ = changed[one.Line] = changed[other.Line] = true;
        }
        // Open lines that cross stay as they are; the check will say so.
        if (!is_changed_) return;
        changed.resize(lines_.size(), true);  // with the loops that were cut off
        for (std::size_t line = 0; line < lines_.size(); ++line)
            if (changed[line]) Place(line);
    }
}

bool CoastDraft::Separate(const CoastStep& one, const CoastStep& two) {
    const std::size_t line = one.Line, other = two.Line;
    if (line == other)
        return Cut_off_loop(line, std::min(one.Chord, two.Chord), std::max(one.Chord, two.Chord));
    const bool first_is_ring = lines_[line].Line.IsRing;
    const bool second_is_ring = lines_[other].Line.IsRing;
    if (!first_is_ring && !second_is_ring) return false;
    const auto area = [&](std::size_t i) { return std::fabs(Twice_area(lines_[i].Line.Points)); };
    const bool drop_first = first_is_ring && (!second_is_ring || area(line) < area(other));
    Drop(drop_first ? line : other, "touches another coastline");
    return true;
}

// The points between the two chords leave the line. As a ring of their own they stay if they go
// round anything; of a ring the larger part goes on as the line.
bool CoastDraft::Cut_off_loop(std::size_t number, std::size_t first_chord, std::size_t last_chord) {
    if (first_chord == last_chord) return false;
    DraftLine& line = lines_[number];
    const std::size_t first = kept_[number][first_chord + 1], last = kept_[number][last_chord];
    DraftLine loop{
        {Part_of(line.Line.Points, first, last), true, line.Line.LandOnLeft, line.Line.Origin},
        Part_of(line.Significances, first, last)};
    Cut_out(line.Line.Points, first, last);
    Cut_out(line.Significances, first, last);
    if (line.Line.IsRing &&
        std::fabs(Twice_area(line.Line.Points)) < std::fabs(Twice_area(loop.Line.Points)))
        std::swap(line, loop);
    if (std::fabs(Twice_area(loop.Line.Points)) <= LeastTwiceArea) return true;
    for (DraftLine* const part : {&line, &loop})
        if (!part->Line.Points.empty())
            part->Significances.front() = part->Significances.back() = Endless;
    lines_.push_back(std::move(loop));
    kept_.emplace_back();
    placed_.emplace_back();
    return true;
}

void CoastDraft::Drop(std::size_t line, const std::string& why) {
    dropped_.push_back("the island of " + lines_[line].Line.Origin + " " + why);
    lines_[line].Line.Points.clear();
    lines_[line].Significances.clear();
}

double CoastDraft::Deviation(std::size_t number) const {
    const std::vector<MapPoint>& points = lines_[number].Line.Points;
    const std::vector<Position>& placed = placed_[number];
    const std::vector<std::size_t>& kept = kept_[number];
    double most = 0;
    for (std::size_t chord = 0; chord + 1 < placed.size(); ++chord) {
        const MapPoint a{double(placed[chord][0]), double(placed[chord][1])};
        const MapPoint b{double(placed[chord + 1][0]), double(placed[chord + 1][1])};
        const std::size_t last =
            chord + 1 < kept.size() ? kept[chord + 1] : points.size() + kept[0];
        for (std::size_t i = kept[chord]; i <= last; ++i)
            most = std::max(most, Square_to_segment(points[i % points.size()], a, b));
        for (const Position& cut : Cut_at_cell_edges({placed[chord], placed[chord + 1]}).Points)
            most = std::max(most, Square_to_segment({double(cut[0]), double(cut[1])}, a, b));
    }
    return std::sqrt(most) + (lines_[number].LeftOut ? LeastGain : 0);
}

}  // namespace tidemark
