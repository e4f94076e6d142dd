#include "coast/coast_runs.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

#include "coast/geo_box.h"

namespace tidemark {

namespace {

constexpr int FarthestTurn = 2;  // that a box may lie away from a position
constexpr double NoDegrees = std::numeric_limits<double>::infinity();

// Of a whole line that closes: a ring when it is in the box, otherwise an open line from one of the
// positions outside back to it.
void Make_ring(CoastLine& line, const GeoBox& box) {
    auto& positions = line.Positions;
    if (positions.size() < 4) return;
    positions.pop_back();
    const auto outside = std::find_if(positions.begin(), positions.end(),
                                      [&](const auto& position) { return !Is_in(position, box); });
    line.Ring = outside == positions.end();
    if (line.Ring) return;
    std::rotate(positions.begin(), outside, positions.end());
    positions.push_back(CoastPosition(positions.front()));
}

}  // namespace

CoastRuns::CoastRuns(std::span<const GeoBox> wanted)
    : wanted_(wanted.begin(), wanted.end()),
      around_wanted_{NoDegrees, NoDegrees, -NoDegrees, -NoDegrees},
      runs_(wanted.size()),
      kept_(wanted.size()) {
    for (const GeoBox& box : wanted_) {
        Widen(around_wanted_, {box.West, box.South});
        Widen(around_wanted_, {box.East, box.North});
    }
}

bool CoastRuns::May_touch(const GeoBox& bounds) const {
    if (watch_) return true;
    for (int turns = -FarthestTurn; turns <= FarthestTurn; ++turns) {
        if (!Touch(Moved_east(around_wanted_, turns), bounds)) continue;
        for (const GeoBox& box : wanted_)
            if (Touch(Moved_east(box, turns), bounds)) return true;
    }
    return false;
}

void CoastRuns::Begin_line(CoastRole role, const CoastPlace& origin) {
    role_ = role;
    origin_ = origin;
    last_ = {std::numeric_limits<double>::quiet_NaN(), 0};
    added_ = count_ = segments_ = 0;
    turn_ = lead_turn_ = 0;
    twice_area_ = sum_of_latitudes_ = 0;
}

void CoastRuns::Step_over_date_line(int turns) {
    Flush();
    turn_ += turns;
    last_.Longitude -= turns * TurnDegrees;
}

CoastPosition CoastRuns::Chunk_position(std::size_t at, int turn) const {
    const int turns = (at == 0 ? lead_turn_ : turn_) - turn;
    return {chunk_[at].Longitude + turns * TurnDegrees, chunk_[at].Latitude};
}

// Looks through the chunk and begins the next one with its last position.
void CoastRuns::Flush() {
    if (count_ < 2) return;
    if (watch_) Show_segments();
    GeoBox bounds{NoDegrees, NoDegrees, -NoDegrees, -NoDegrees};
    CoastPosition before = Chunk_position(0, turn_);
    Widen(bounds, before);
    for (std::size_t at = 1; at < count_; ++at) {
        Widen(bounds, chunk_[at]);
        Add_area(before, chunk_[at]);
        sum_of_latitudes_ += chunk_[at].Latitude;
        before = chunk_[at];
    }
    for (int turns = -FarthestTurn; turns <= FarthestTurn; ++turns) {
        if (!Touch(Moved_east(around_wanted_, turns), bounds)) continue;
        for (std::size_t box = 0; box < wanted_.size(); ++box) {
            const GeoBox moved = Moved_east(wanted_[box], turns);
            if (Touch(moved, bounds)) Keep_segments(box, turns, moved);
        }
    }
    segments_ += count_ - 1;
    chunk_[0] = chunk_[count_ - 1];
    lead_turn_ = turn_;
    count_ = 1;
}

void CoastRuns::Show_segments() const {
    CoastPosition from = Chunk_position(0, turn_);
    for (std::size_t at = 1; at < count_; ++at) {
        if (!Closes_polygon_only(from, chunk_[at])) watch_(from, chunk_[at]);
        from = chunk_[at];
    }
}

void CoastRuns::Keep_segments(std::size_t box, int turns, const GeoBox& moved) {
    CoastPosition from = Chunk_position(0, turn_);
    for (std::size_t at = 1; at < count_; ++at) {
        const CoastPosition to = chunk_[at];
        if (Touches(from, to, moved) && !Closes_polygon_only(from, to))
            Keep_segment(box, turn_ + turns, at);
        from = to;
    }
}

// Adds the segment that ends with the chunk's position `at` to the run that it continues, which is
// the last one of the same turn, or begins a run.
void CoastRuns::Keep_segment(std::size_t box, int turn, std::size_t at) {
    auto& runs = runs_[box];
    const std::size_t segment = segments_ + at - 1;
    const auto run =
        std::find_if(runs.rbegin(), runs.rend(), [&](const Run& one) { return one.Turn == turn; });
    if (run != runs.rend() && run->EndSegment == segment) {
        run->Positions.push_back(Chunk_position(at, turn));
        ++run->EndSegment;
    } else {
        runs.push_back(
            {turn, segment, segment + 1, {Chunk_position(at - 1, turn), Chunk_position(at, turn)}});
    }
}

// Degrees east of the line's first position, along the line.
double CoastRuns::From_first(double longitude) const {
    return longitude - first_.Longitude + turn_ * TurnDegrees;
}

void CoastRuns::Add_area(const CoastPosition& from, const CoastPosition& to) {
    twice_area_ += From_first(from.Longitude) * (to.Latitude - first_.Latitude) -
                   From_first(to.Longitude) * (from.Latitude - first_.Latitude);
}

// 180 and -180 degrees are the same place.
bool CoastRuns::Is_at_first() const {
    return added_ > 2 && last_.Latitude == first_.Latitude &&
           std::remainder(last_.Longitude - first_.Longitude, TurnDegrees) == 0;
}

int CoastRuns::Turns_round_world() const {
    return static_cast<int>(std::lround(From_first(last_.Longitude) / TurnDegrees));
}

void CoastRuns::Close() {
    if (added_ > 2 && !Is_at_first()) Add(first_.Longitude, first_.Latitude);
}

// Of a line that closes. A ring round the world has the pole inside that it is nearer to, and its
// area is measured by way of that pole.
double CoastRuns::Twice_ring_area() const {
    if (Turns_round_world() == 0) return twice_area_;
    const double pole = (sum_of_latitudes_ < 0 ? -90 : 90) - first_.Latitude;
    return twice_area_ + 2 * From_first(last_.Longitude) * pole;
}

std::optional<bool> CoastRuns::Has_land_on_left(double twice_area) const {
    if (role_ == CoastRole::Line || twice_area == 0) return std::nullopt;
    return (twice_area > 0) == (role_ == CoastRole::OuterRing);
}

bool CoastRuns::End_line() {
    Flush();
    if (added_ < 2) return true;
    ++waiting_lines_;
    const bool closes = Is_at_first();
    const double twice_area = closes ? Twice_ring_area() : 0;
    if (std::fabs(twice_area) > std::fabs(largest_area_)) largest_area_ = twice_area;
    for (std::size_t box = 0; box < wanted_.size(); ++box)
        if (!runs_[box].empty()) End_runs(box, closes, Has_land_on_left(twice_area));
    return closes;
}

// Of a line that closes, the run that ends with it goes on in the one that begins with it.
void CoastRuns::Join_over_start(std::vector<Run>& runs) const {
    const auto last = std::find_if(runs.begin(), runs.end(), [&](const Run& run) {
        return run.FirstSegment != 0 && run.EndSegment == segments_;
    });
    if (last == runs.end()) return;
    const int turn = last->Turn - Turns_round_world();
    const auto first = std::find_if(runs.begin(), runs.end(), [&](const Run& run) {
        return run.FirstSegment == 0 && run.EndSegment != segments_ && run.Turn == turn;
    });
    if (first == runs.end()) return;
    last->Positions.insert(last->Positions.end(), first->Positions.begin() + 1,
                           first->Positions.end());
    runs.erase(first);
}

void CoastRuns::End_runs(std::size_t box, bool closes, std::optional<bool> land_on_left) {
    auto runs = std::exchange(runs_[box], {});
    std::stable_sort(runs.begin(), runs.end(), [](const Run& one, const Run& other) {
        return one.FirstSegment < other.FirstSegment;
    });
    if (closes) Join_over_start(runs);
    const bool may_be_ring = closes && Turns_round_world() == 0;
    for (Run& run : runs) {
        const bool is_whole = run.FirstSegment == 0 && run.EndSegment == segments_;
        WaitingLine waiting{box, {std::move(run.Positions), false, land_on_left, origin_.Text()}};
        if (may_be_ring && is_whole) Make_ring(waiting.Line, wanted_[box]);
        waiting_.push_back(std::move(waiting));
    }
}

void CoastRuns::Keep(CoastSides sides) {
    for (WaitingLine& waiting : waiting_) {
        auto& land_on_left = waiting.Line.LandOnLeft;
        if (sides == CoastSides::None) land_on_left.reset();
        if (sides == CoastSides::ByLargest && land_on_left) land_on_left = largest_area_ > 0;
        kept_[waiting.Box].push_back(std::move(waiting.Line));
    }
    kept_lines_ += waiting_lines_;
    Drop();
}

void CoastRuns::Drop() {
    waiting_.clear();
    waiting_lines_ = 0;
    largest_area_ = 0;
}

std::vector<std::vector<CoastLine>> CoastRuns::Take() {
    return std::exchange(kept_, {});
}

}  // namespace tidemark
