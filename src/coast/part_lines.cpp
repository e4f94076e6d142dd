#include "coast/part_lines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <set>
#include <utility>

#include "coast/coast_draft.h"
#include "coast/coast_input.h"
#include "coast/crowded_cells.h"
#include "coast/touching_steps.h"
#include "lwm/cell_edges.h"
#include "lwm/cell_text.h"

namespace tidemark {

namespace {

// Every round keeps a point more, or closes a place, and that can make lines touch elsewhere; more
// often than this it does not go on.
constexpr int MaxRounds = 400;

// A ring that goes round less is no island on the map.
constexpr double LeastTwiceArea = 8;

MapPoint Point_at(Position place) {
    return {double(place[0]), double(place[1])};
}

double Area(const DraftLine& line) {
    return std::fabs(Twice_area(line.Line.Points));
}

class Parting {
  public:
    Parting(CoastDraft& draft, TouchingSteps& touching, const GoOn& go_on)
        : draft_(draft), touching_(touching), go_on_(go_on) {}

    void All() {
        for (int round = 0; round < MaxRounds; ++round) {
            if (go_on_ && !go_on_()) throw CoastCancelled();
            const std::vector<CoastStep> steps = draft_.Steps();
            untouched_.assign(draft_.Lines().size(), Whole);
            const std::vector<TouchingSteps::Pair> touching = touching_.Among(steps);
            Keep_more(steps, touching);
            Separate_all(steps, touching);
            if (!Is_changed()) Thin_out(steps);
            if (!Is_changed()) return;
            for (std::size_t line = 0; line < draft_.Lines().size(); ++line)
                if (line >= untouched_.size() || untouched_[line] < Whole) draft_.Place(line);
        }
    }

  private:
    static constexpr std::size_t Whole = std::numeric_limits<std::size_t>::max();

    bool Is_changed() const {
        return std::any_of(untouched_.begin(), untouched_.end(),
                           [](std::size_t chords) { return chords < Whole; });
    }

    void Keep_more(const std::vector<CoastStep>& steps,
                   const std::vector<TouchingSteps::Pair>& touching) {
        std::set<std::pair<std::size_t, std::size_t>> chords;
        for (const auto& [first, second] : touching)
            for (const CoastStep& step : {steps[first], steps[second]})
                chords.emplace(step.Line, step.Chord);
        for (const auto& [line, chord] : chords)
            if (Keep_more(line, chord)) untouched_[line] = 0;
    }

    // Keeps the most significant of the points that the chord leaves out, where that can change
    // anything; those that lie on the place of one of its ends do not.
    bool Keep_more(std::size_t number, std::size_t chord) {
        DraftLine& line = draft_.Line(number);
        const std::vector<std::size_t>& kept = draft_.Kept(number);
        const std::size_t count = line.Line.Points.size();
        const std::size_t last = chord + 1 < kept.size() ? kept[chord + 1] : count + kept[0];
        double most = LeastGain;
        std::size_t point = Whole;
        for (std::size_t i = kept[chord] + 1; i < last; ++i) {
            const double significance = line.Significances[i % count];
            if (significance <= most || significance > draft_.Tolerance()) continue;
            most = significance;
            point = i % count;
        }
        if (point == Whole) return false;
        line.Significances[point] = EndlessSignificance;
        return true;
    }

    // Only where no point is left that could part them. From the end of a line on, so that what is
    // done does not change the numbers of what is still to be done.
    void Separate_all(const std::vector<CoastStep>& steps,
                      std::vector<TouchingSteps::Pair> touching) {
        const auto from_end = [&](const TouchingSteps::Pair& pair) {
            return std::pair(steps[pair.First].Line, -static_cast<std::int64_t>(pair.First));
        };
        std::stable_sort(touching.begin(), touching.end(),
                         [&](const auto& a, const auto& b) { return from_end(a) < from_end(b); });
        for (const auto& [first, second] : touching) {
            const CoastStep &one = steps[first], &other = steps[second];
            if (one.Line == other.Line) {
                const auto [low, high] = std::minmax(one.Chord, other.Chord);
                const std::vector<std::size_t>& kept = draft_.Kept(one.Line);
                if (low < high && high < untouched_[one.Line])
                    Cut_off_loop(one.Line, low, kept[low + 1], kept[high]);
            } else if (untouched_[one.Line] == Whole && untouched_[other.Line] == Whole) {
                Separate(one, other);
            }
        }
    }

    void Separate(const CoastStep& one, const CoastStep& other) {
        const bool is_ring = draft_.Line(one.Line).Line.IsRing;
        const bool other_is_ring = draft_.Line(other.Line).Line.IsRing;
        if (is_ring || other_is_ring) {
            const bool drop_one = is_ring && (!other_is_ring || Area(draft_.Line(one.Line)) <
                                                                    Area(draft_.Line(other.Line)));
            Drop(drop_one ? one.Line : other.Line);
            untouched_[one.Line] = untouched_[other.Line] = 0;
        } else if (Can_join(one, other) &&
                   joined_.insert({one.From, one.To, other.From, other.To}).second) {
            // Lines that run one on the other would be exchanged for ever.
            Join(one.Line, draft_.Kept(one.Line)[one.Chord], other.Line,
                 draft_.Kept(other.Line)[other.Chord]);
        }
    }

    // Not where their land is on different sides.
    bool Can_join(const CoastStep& one, const CoastStep& other) const {
        return draft_.Lines()[one.Line].Line.LandOnLeft ==
               draft_.Lines()[other.Line].Line.LandOnLeft;
    }

    void Drop(std::size_t number) {
        DraftLine& line = draft_.Line(number);
        draft_.Dropped.push_back("the island of " + line.Line.Origin +
                                 " touches another coastline");
        line.Line.Points.clear();
        line.Significances.clear();
    }

    // Each goes on with the other one after the point.
    void Join(std::size_t line, std::size_t at, std::size_t other, std::size_t other_at) {
        DraftLine &one = draft_.Line(line), &two = draft_.Line(other);
        if (two.Line.IsRing)
            Splice(one, at, two, other_at);
        else if (one.Line.IsRing)
            Splice(two, other_at, one, at);
        else
            Exchange_tails(one, at, two, other_at);
        untouched_[line] = untouched_[other] = 0;
    }

    // The points first..last, behind that chord, leave the line. As a ring of their own they stay
    // if they go round anything; of a ring the larger part goes on as the line.
    void Cut_off_loop(std::size_t number, std::size_t chord, std::size_t first, std::size_t last) {
        DraftLine& line = draft_.Line(number);
        DraftLine loop = Cut_loop(line, first, last);
        if (line.Line.IsRing && Area(line) < Area(loop)) std::swap(line, loop);
        untouched_[number] = line.Line.IsRing ? 0 : chord;
        if (Area(loop) <= LeastTwiceArea) return;
        for (DraftLine* const part : {&line, &loop})
            if (!part->Line.Points.empty())
                part->Significances.front() = part->Significances.back() = EndlessSignificance;
        draft_.Add(std::move(loop));
    }

    // Of each cell that lines cross too often the narrowest place that can be is closed.
    void Thin_out(const std::vector<CoastStep>& steps) {
        const auto can_join = [this](const CoastStep& one, const CoastStep& other) {
            return Can_join(one, other);
        };
        for (const NarrowPlace& place : Narrow_places(steps, draft_.Ends_on_map_edge(), can_join)) {
            const CoastStep *one = &steps[place.Step], *other = &steps[place.Other];
            if (untouched_[one->Line] < Whole || untouched_[other->Line] < Whole) continue;
            if (one->Line == other->Line && one->Chord > other->Chord) std::swap(one, other);
            Close(*one, *other);
            if (!crowded_.insert(place.Crowded).second) continue;
            draft_.Dropped.push_back("what is narrowest in " +
                                     Cell_text(place.Crowded.Column, place.Crowded.Row) +
                                     ", a cell that lines would cross more than " +
                                     std::to_string(MaxPolyNumber) + " times");
        }
    }

    // On either side of the cell edge that both steps go over, the lines are led from one to the
    // other.
    void Close(const CoastStep& one, const CoastStep& other) {
        const std::size_t other_at = Keep_ends(other);
        const std::size_t before = draft_.Line(one.Line).Line.Points.size();
        const std::size_t at = Keep_ends(one);
        if (one.Line != other.Line) return Join(one.Line, at, other.Line, other_at);
        const std::size_t after = draft_.Line(one.Line).Line.Points.size();
        Cut_off_loop(one.Line, 0, at + 1, other_at + after - before);
        untouched_[one.Line] = 0;
    }

    // The ends of the step become points of its line, in place of those that its chord leaves out.
    std::size_t Keep_ends(const CoastStep& step) {
        DraftLine& line = draft_.Line(step.Line);
        const std::vector<std::size_t>& kept = draft_.Kept(step.Line);
        const std::size_t last =
            step.Chord + 1U < kept.size() ? kept[step.Chord + 1] : line.Line.Points.size();
        return Put_between(line, kept[step.Chord], last, Point_at(step.From), Point_at(step.To));
    }

    CoastDraft& draft_;
    TouchingSteps& touching_;
    const GoOn& go_on_;
    // Of each line: the chords below this number are still as they were placed.
    std::vector<std::size_t> untouched_;
    std::set<LOD13Cell> crowded_;               // that are told of
    std::set<std::array<Position, 4>> joined_;  // the steps at which open lines were joined
};

}  // namespace

void Part_lines(CoastDraft& draft, TouchingSteps& touching, const GoOn& go_on) {
    Parting(draft, touching, go_on).All();
}

}  // namespace tidemark
