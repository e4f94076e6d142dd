// Segments: runs of consecutive VTP points, marked by flags on the points themselves.
#pragma once

#include <vector>

#include "model/project.h"

namespace tidemark {

// Points First..Last (numbered from 1); the mode and the width are those of the first point.
struct Segment {
    int First;
    int Last;
    Int16 Mode;
    Int16 Width;

    bool operator==(const Segment&) const = default;
};

// All segments in point order: each runs from a point whose start flag is set to the point before
// the next one. Points before the first start flag belong to none.
std::vector<Segment> Segments(const Project& project);

// The nearest point at or before `point` that starts a segment; 1 when none does.
int Segment_first(const Project& project, int point);

// The nearest point at or after `point` that ends a segment; the last point when none does.
int Segment_last(const Project& project, int point);

// Makes the flags agree with one another, as every list refresh does: point 1 starts a segment, a
// point ends one where the next point starts one, the last point ends one, and the slot after it
// starts none. Does nothing to a project without points.
void Repair_segments(Project& project);

}  // namespace tidemark
