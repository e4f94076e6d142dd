// Parts lines that would touch, and thins out what the polygon builder could not take.
#pragma once

#include <functional>

namespace tidemark {

class CoastDraft;
class TouchingSteps;

// False: what was begun is not wanted any more. An empty one is never asked.
using GoOn = std::function<bool()>;

// Keeps more points where the kept ones let lines touch or cross one another. Where that does not
// help, what is narrower than a unit is closed: a loop becomes a ring of its own, two lines that
// end on the edge of the map go on with each other's ends, and of a ring and what it touches the
// smaller ring goes. In a cell that lines cross too often, the narrowest places are closed in the
// same way.
//
// `touching` may have searched other drafts before, and is quick where they were alike. Throws
// CoastCancelled when `go_on` says so.
void Part_lines(CoastDraft& draft, TouchingSteps& touching, const GoOn& go_on);

}  // namespace tidemark
