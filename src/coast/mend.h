// Puts right what the coast check has found, where there is one right answer.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "coast/finding.h"
#include "model/project.h"

namespace tidemark {

// An end of a coastline that is at most so many VTP units from its cell's edge belongs on it.
inline constexpr int MaxEndFromEdge = 8;

struct MendResult {
    int Mended = 0;       // findings that are gone
    std::string Refusal;  // why nothing was changed; empty: it was
    int Followed = 0;     // the number that the followed point has now
};

// Mends these findings of the project as it is; those without a remedy are passed over. Only points
// and polygons that one of them names are moved, cut, dropped or built again. When the project has
// no room for the points that are needed, nothing is changed and the result says so. Points may get
// other numbers: the result tells that of the followed one.
MendResult Mend(Project& project, std::span<const Finding> findings, int followed = 0);

// Mends everything that has a remedy, and what only shows itself then, until nothing is left.
MendResult Mend_all(Project& project, int followed = 0);

// Where an end of a coastline goes to be on the nearest edge of its cell; nothing when it is more
// than MaxEndFromEdge away from each, or lies on one.
std::optional<Position> Place_on_edge(const Project& project, int end);

}  // namespace tidemark
