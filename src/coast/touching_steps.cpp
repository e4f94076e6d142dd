#include "coast/touching_steps.h"

#include <algorithm>

namespace tidemark {

namespace {

std::int64_t Turn(Position a, Position b, Position c) {
    return std::int64_t{b[0] - a[0]} * (c[1] - a[1]) - std::int64_t{b[1] - a[1]} * (c[0] - a[0]);
}

bool Is_in_box(Position a, Position b, Position place) {
    for (const std::size_t axis : {0U, 1U})
        if (place[axis] < std::min(a[axis], b[axis]) || place[axis] > std::max(a[axis], b[axis]))
            return false;
    return true;
}

bool Lies_on(Position place, Position a, Position b) {
    return Is_in_box(a, b, place) && Turn(a, b, place) == 0;
}

bool Touch(Position a, Position b, Position c, Position d) {
    if (Lies_on(a, c, d) || Lies_on(b, c, d) || Lies_on(c, a, b) || Lies_on(d, a, b)) return true;
    const auto differ = [](std::int64_t one, std::int64_t other) {
        return (one > 0 && other < 0) || (one < 0 && other > 0);
    };
    return differ(Turn(a, b, c), Turn(a, b, d)) && differ(Turn(c, d, a), Turn(c, d, b));
}

template <class Step>
int West(const Step& step) {
    return std::min(step.From[0], step.To[0]);
}

template <class Step>
int East(const Step& step) {
    return std::max(step.From[0], step.To[0]);
}

std::size_t Number_of_cell(Position place) {
    constexpr int last = LastLOD13;
    const auto [column, row] = Cell_of(place);
    return static_cast<std::size_t>(std::clamp(column, 0, last) * (last + 1) +
                                    std::clamp(row, 0, last));
}

// Steps that follow one another share a point, and no more unless the line turns back.
template <class Step>
bool Turns_back(const Step& step, const Step& next) {
    return Lies_on(next.To, step.From, step.To) || Lies_on(step.From, next.From, next.To);
}

}  // namespace

// The steps by the cells of their ends, which is all that they are in, and in each by their number.
void TouchingSteps::Share_out(const std::vector<CoastStep>& steps) {
    starts_.fill(0);
    for (const CoastStep& step : steps) {
        const std::size_t from = Number_of_cell(step.From), to = Number_of_cell(step.To);
        ++starts_[from + 1];
        if (to != from) ++starts_[to + 1];
    }
    for (std::size_t cell = 0; cell < Cells; ++cell) starts_[cell + 1] += starts_[cell];
    here_.resize(starts_[Cells]);
    std::array<std::size_t, Cells> next;
    std::copy_n(starts_.begin(), Cells, next.begin());
    for (std::uint32_t i = 0; i < steps.size(); ++i) {
        const std::size_t from = Number_of_cell(steps[i].From), to = Number_of_cell(steps[i].To);
        here_[next[from]++] = i;
        if (to != from) here_[next[to]++] = i;
    }
}

std::vector<TouchingSteps::Pair> TouchingSteps::Among(const std::vector<CoastStep>& steps) {
    Share_out(steps);
    std::vector<Pair> pairs;
    for (std::size_t number = 0; number < Cells; ++number) {
        const std::uint32_t* const here = here_.data() + starts_[number];
        const std::size_t count = starts_[number + 1] - starts_[number];
        known_.clear();
        for (std::size_t i = 0; i < count; ++i) {
            const CoastStep& step = steps[here[i]];
            const bool follows = i > 0 && here[i - 1] + 1 == here[i] && steps[here[i - 1]].GoesOn;
            known_.push_back(
                {step.From, step.To, step.Line, follows, step.BeginsRing, step.EndsRing});
        }
        Cell& cell = cells_[number];
        if (cell.Steps != known_) {
            cell.Steps.swap(known_);
            Look_at(cell);
        }
        for (const auto& [first, second] : cell.Touching)
            pairs.push_back({here[first], here[second]});
    }
    return pairs;
}

// From west to east: a step is held only against those that begin where it still is.
void TouchingSteps::Look_at(Cell& cell) {
    const std::vector<Known>& steps = cell.Steps;
    by_west_.resize(steps.size());
    for (std::uint32_t i = 0; i < steps.size(); ++i) by_west_[i] = i;
    std::sort(by_west_.begin(), by_west_.end(),
              [&](std::uint32_t a, std::uint32_t b) { return West(steps[a]) < West(steps[b]); });
    const auto touch = [&](std::uint32_t first, std::uint32_t second) {
        const Known &a = steps[first], &b = steps[second];
        if (std::max(a.From[1], a.To[1]) < std::min(b.From[1], b.To[1]) ||
            std::max(b.From[1], b.To[1]) < std::min(a.From[1], a.To[1]))
            return false;
        if (first + 1 == second && b.FollowsOneBefore) return Turns_back(a, b);
        if (b.EndsRing && a.BeginsRing && a.Line == b.Line) return Turns_back(b, a);
        return Touch(a.From, a.To, b.From, b.To);
    };
    cell.Touching.clear();
    for (std::size_t i = 0; i < by_west_.size(); ++i) {
        const std::uint32_t one = by_west_[i];
        const int east = East(steps[one]);
        for (std::size_t k = i + 1; k < by_west_.size(); ++k) {
            const std::uint32_t other = by_west_[k];
            if (West(steps[other]) > east) break;
            const auto [first, second] = std::minmax(one, other);
            if (touch(first, second)) cell.Touching.push_back({first, second});
        }
    }
    std::sort(cell.Touching.begin(), cell.Touching.end());
}

}  // namespace tidemark
