#include "coast/crowded_cells.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "lwm/cell_edges.h"

namespace tidemark {

namespace {

// A step over the edge between a cell and the next one to the east or south.
struct EdgeCrossing {
    LOD13Cell Cell;
    std::size_t Axis;
    int Along;
    bool Ahead;
    std::size_t Step;
};

LOD13Cell Cell_at(Position place) {
    const auto [column, row] = Cell_of(place);
    return {column, row};
}

std::vector<EdgeCrossing> Crossings(const std::vector<CoastStep>& steps) {
    std::vector<EdgeCrossing> crossings;
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const LOD13Cell from = Cell_at(steps[i].From), to = Cell_at(steps[i].To);
        if (from == to) continue;
        const std::size_t axis = from.Column != to.Column ? 0 : 1;
        crossings.push_back({std::min(from, to), axis, steps[i].From[1 - axis], from < to, i});
    }
    std::sort(crossings.begin(), crossings.end(), [](const auto& a, const auto& b) {
        return std::tuple(a.Cell, a.Axis, a.Along, a.Step) <
               std::tuple(b.Cell, b.Axis, b.Along, b.Step);
    });
    return crossings;
}

LOD13Cell Beyond_edge(const EdgeCrossing& crossing) {
    const auto [column, row] = crossing.Cell;
    return crossing.Axis == 0 ? LOD13Cell{column + 1, row} : LOD13Cell{column, row + 1};
}

}  // namespace

std::vector<NarrowPlace> Narrow_places(
    const std::vector<CoastStep>& steps, std::span<const Position> ends,
    const std::function<bool(const CoastStep&, const CoastStep&)>& can_join) {
    const std::vector<EdgeCrossing> crossings = Crossings(steps);
    std::map<LOD13Cell, int> counts;
    for (const Position& end : ends) ++counts[Cell_at(end)];
    for (const EdgeCrossing& crossing : crossings) {
        ++counts[crossing.Cell];
        ++counts[Beyond_edge(crossing)];
    }
    struct Narrowest {
        int Width;
        NarrowPlace Place;
    };
    std::map<LOD13Cell, Narrowest> narrowest;
    for (std::size_t i = 0; i + 1 < crossings.size(); ++i) {
        const EdgeCrossing &one = crossings[i], &next = crossings[i + 1];
        if (one.Cell != next.Cell || one.Axis != next.Axis || one.Ahead == next.Ahead) continue;
        if (!can_join(steps[one.Step], steps[next.Step])) continue;
        const int width = next.Along - one.Along;
        for (const LOD13Cell cell : {one.Cell, Beyond_edge(one)}) {
            if (counts[cell] <= MaxPolyNumber) continue;
            const auto found = narrowest.find(cell);
            if (found == narrowest.end() || width < found->second.Width)
                narrowest[cell] = {width, {cell, one.Step, next.Step}};
        }
    }
    std::vector<NarrowPlace> places;
    places.reserve(narrowest.size());
    for (const auto& [cell, narrow] : narrowest) places.push_back(narrow.Place);
    return places;
}

}  // namespace tidemark
