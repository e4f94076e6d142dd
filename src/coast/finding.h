// What the coast check finds, and what mending can do about it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "coast/position.h"

namespace tidemark {

// By which the list of findings is filtered, in this order.
enum class FindingKind {
    SkippedCell,    // a step of a coastline runs through a cell without a point in it
    LooseEnd,       // a coastline ends inside a cell
    TooMuch,        // more in a cell than the polygon builder takes
    SeveralInside,  // coastlines that lie wholly inside a cell
    Segment,        // a segment that cannot be written, points that share a place
    Polygon,        // a polygon that is not what the builder makes there now
    Neighbours,     // cells that disagree along their common edge
    Limits,         // what is outside the map or near what a project can hold
};

inline constexpr std::string_view FindingKindNames[] = {
    "Skipped cells",    "Loose ends", "Too much in a cell", "Several coastlines inside",
    "Segments, points", "Polygons",   "Neighbours",         "Map and limits"};

// The one right answer to a finding.
enum class Remedy {
    None,        // it is for the user to decide
    CutStep,     // points where the step from Point - 1 to Point crosses cell edges
    Widen,       // the steps that end at Point and at Other cross their edge a unit apart
    MoveInside,  // Point goes off the cell edge, into its cell
    MoveToEdge,  // Point, an end, goes to the nearest edge of its cell
    DropPoint,   // Point repeats the one before it and goes
    Rebuild,     // Polygon becomes the piece of the cell that it lies in
};

struct Finding {
    FindingKind Kind = FindingKind::SkippedCell;
    // Something will be wrong in the simulator, or refused; otherwise it is a remark.
    bool IsError = true;
    std::optional<LOD13Cell> Cell = {};  // nothing: of the project as a whole
    std::string Text = {};               // what it is, and what to do about it
    // The entry that it is about; 0: none.
    int Point = 0, Polygon = 0, ClearedCell = 0;
    int Other = 0;  // the second point, of a remedy for two
    Remedy Mending = Remedy::None;

    bool operator==(const Finding&) const = default;
};

// One line: "[ 16, 3 ] Error: the step from point 7 to point 8 skips cell [ 16, 3 ] ...".
std::string Finding_line(const Finding& finding);

using Findings = std::vector<Finding>;

// The findings of one sort only; nothing is for all of them.
Findings Of_kind(const Findings& findings, std::optional<FindingKind> kind);

int Count_errors(const Findings& findings);

// Whether any of them can be mended.
bool Has_remedy(const Findings& findings);

}  // namespace tidemark
