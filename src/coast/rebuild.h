// What becomes of a polygon when the coastlines of its cell have changed.
#pragma once

#include <optional>
#include <vector>

#include "lwm/cell_edges.h"

namespace tidemark {

// Whether the polygon is what the builder would store of the piece. A list refresh takes a closing
// vertex that repeats the first from what is stored.
bool Is_built_as(const Outline& polygon, const Outline& piece);

// The piece that the polygon should be now: the only one of the cell, or of those with a good
// part in common with it. Nothing when no piece has, or more than one: then it is for the user to
// say.
std::optional<Outline> Rebuilt(const Outline& polygon, const std::vector<Outline>& candidates);

// The same for all polygons of one cell, in their order. No piece is given to two of them: a
// polygon that is built as it keeps it, and of several that are not, none gets it.
std::vector<std::optional<Outline>> Rebuilt_together(const std::vector<Outline>& polygons,
                                                     const std::vector<Outline>& candidates);

}  // namespace tidemark
