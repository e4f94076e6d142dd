#include "model/segments.h"

namespace tidemark {

std::vector<Segment> Segments(const Project& project) {
    std::vector<Segment> segments;
    for (int i = 1; i <= project.VTPCount; ++i) {
        if (project.VTPSegStart(i))
            segments.push_back({i, i, project.VTPMode(i), project.VTPWidth(i)});
        else if (!segments.empty())
            segments.back().Last = i;
    }
    return segments;
}

int Segment_first(const Project& project, int point) {
    while (point > 1 && !project.VTPSegStart(point)) --point;
    return point;
}

int Segment_last(const Project& project, int point) {
    while (point < project.VTPCount && !project.VTPSegEnd(point)) ++point;
    return point;
}

void Repair_segments(Project& project) {
    const int count = project.VTPCount;
    if (count == 0) return;
    project.VTPSegStart(1) = true;
    project.VTPSegStart(count + 1) = false;
    for (int i = 1; i < count; ++i) project.VTPSegEnd(i) = project.VTPSegStart(i + 1);
    project.VTPSegEnd(count) = true;
}

}  // namespace tidemark
