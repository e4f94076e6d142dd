#include "fakes/valid_project.h"

#include "model/drawing_modes.h"

namespace tidemark {

namespace {

bool Is_within(int value, int lowest, int highest) {
    return lowest <= value && value <= highest;
}

bool Is_cell(Int16 column, Int16 row) {
    return Is_within(column, 0, LastLOD13 + 1) && Is_within(row, 0, LastLOD13 + 1);
}

bool Is_place(Int16 coordinate) {
    constexpr int beyond = FirstVTP + (LastLOD13 + 2) * CellSizeVTP;
    return Is_within(coordinate, FirstVTP, beyond - 1);
}

std::string Point_fault(const Project& p, int i) {
    if (!Is_place(p.VTPPoint(i, 0)) || !Is_place(p.VTPPoint(i, 1))) return "place";
    if (!Find_mode(p.VTPMode(i), Adds::Point)) return "mode";
    if (!Is_within(p.VTPWidth(i), 0, MaxVTPWidth)) return "width";
    const bool ends = i == p.VTPCount || p.VTPSegStart(i + 1);
    if (p.VTPSegEnd(i) != ends) return "end flag";
    if (i == 1 && !p.VTPSegStart(i)) return "start flag";
    return "";
}

std::string Cleared_cell_fault(const Project& p, int k) {
    if (!Is_cell(p.KillCell(k, 0), p.KillCell(k, 1))) return "cell";
    return Find_mode(p.KillType(k), Adds::ClearedCell) ? "" : "clear code";
}

std::string Polygon_fault(const Project& p, int i) {
    if (!Is_cell(p.LWMCell(i, 0), p.LWMCell(i, 1))) return "cell";
    if (!Find_mode(p.LWMType(i), Adds::Polygon)) return "type";
    const Int16 height = p.LWMHeight(i);
    if (height != ConformsHeight && !Is_within(height, 0, MaxLWMHeight)) return "height";
    if (!Is_within(p.LWMPointCount(i), 0, MaxLWMPointCount)) return "number of points";
    for (int j = 1; j <= p.LWMPointCount(i); ++j)
        for (const int axis : {0, 1})
            if (!Is_within(p.LWMPoint(i, j, axis), 0, LastCellUnit))
                return "point " + std::to_string(j);
    return "";
}

struct Entries {
    const char* What;
    int Count;
    int Most;
    std::string (*Fault)(const Project&, int);
};

}  // namespace

std::string Fault_in(const Project& p) {
    for (const Entries& all : {Entries{"point", p.VTPCount, MaxVTPCount, Point_fault},
                               {"cleared cell", p.KillCount, MaxKillCount, Cleared_cell_fault},
                               {"polygon", p.LWMCount, MaxLWMCount, Polygon_fault}}) {
        const std::string what = all.What;
        if (!Is_within(all.Count, 0, all.Most))
            return what + " count: " + std::to_string(all.Count);
        for (int i = 1; i <= all.Count; ++i)
            if (const std::string fault = all.Fault(p, i); !fault.empty())
                return what + " " + std::to_string(i) + ": " + fault;
    }
    if (p.VTPCount > 0 && p.VTPSegStart(p.VTPCount + 1)) return "start flag after the last point";
    return "";
}

}  // namespace tidemark
