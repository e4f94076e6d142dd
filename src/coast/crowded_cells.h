// Cells that coastlines cross more often than the polygon builder takes.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "coast/position.h"
#include "coast/touching_steps.h"

namespace tidemark {

// Where two coastlines that can be joined go over one edge of a crowded cell in opposite
// directions, with no other between them: of all such places of the cell the narrowest.
struct NarrowPlace {
    LOD13Cell Crowded;
    std::size_t Step, Other;  // of the list of steps; both go over the edge
};

// One for each crowded cell that has any. `ends` are those of the lines that end on the edge of the
// map.
std::vector<NarrowPlace> Narrow_places(
    const std::vector<CoastStep>& steps, std::span<const Position> ends,
    const std::function<bool(const CoastStep&, const CoastStep&)>& can_join);

}  // namespace tidemark
