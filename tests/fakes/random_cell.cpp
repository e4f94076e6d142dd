#include "fakes/random_cell.h"

#include <algorithm>
#include <cmath>

namespace tidemark {

namespace {

constexpr double Clearance = 4;  // cell units between any two lines

// The square of the distance of a point from a line between two points.
double Distance2(CellPoint p, CellPoint a, CellPoint b) {
    const double ax = int{a.X}, ay = int{a.Y};
    const double dx = int{b.X} - ax, dy = int{b.Y} - ay;
    const double px = int{p.X} - ax, py = int{p.Y} - ay;
    const double length2 = dx * dx + dy * dy;
    const double t = length2 == 0 ? 0 : std::clamp((px * dx + py * dy) / length2, 0.0, 1.0);
    const double x = px - t * dx, y = py - t * dy;
    return x * x + y * y;
}

int Side(CellPoint a, CellPoint b, CellPoint p) {
    const int turn = (int{b.X} - int{a.X}) * (int{p.Y} - int{a.Y}) -
                     (int{b.Y} - int{a.Y}) * (int{p.X} - int{a.X});
    return (turn > 0) - (turn < 0);
}

bool Are_clear(CellPoint a, CellPoint b, CellPoint c, CellPoint d) {
    const bool cross = Side(a, b, c) != Side(a, b, d) && Side(c, d, a) != Side(c, d, b);
    const double nearest =
        std::min({Distance2(a, c, d), Distance2(b, c, d), Distance2(c, a, b), Distance2(d, a, b)});
    return !cross && nearest >= Clearance * Clearance;
}

// A line with itself: its steps are clear of all but their neighbours, and do not turn back.
bool Is_clear(const Coastline& line) {
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (i >= 2 && Distance2(line[i], line[i - 2], line[i - 1]) < Clearance * Clearance)
            return false;
        for (std::size_t j = i + 2; j < line.size(); ++j)
            if (!Are_clear(line[i - 1], line[i], line[j - 1], line[j])) return false;
    }
    return true;
}

bool Are_clear(const Coastline& one, const Coastline& other) {
    for (std::size_t i = 1; i < one.size(); ++i)
        for (std::size_t j = 1; j < other.size(); ++j)
            if (!Are_clear(one[i - 1], one[i], other[j - 1], other[j])) return false;
    return true;
}

// The place `along` an edge of the cell (0 top, 1 right, 2 bottom, 3 left), `out` units beyond it.
CellPoint Beyond(int edge, int along, int out) {
    switch (edge) {
        case 0:
            return {along, -out};
        case 1:
            return {LastCellUnit + out, along};
        case 2:
            return {along, LastCellUnit + out};
        default:
            return {-out, along};
    }
}

}  // namespace

int RandomCells::Number(int lowest, int highest) {
    return std::uniform_int_distribution(lowest, highest)(random_);
}

CellPoint RandomCells::Outside_of(int edge, int along) {
    return Beyond(edge, std::clamp(along + Number(-15, 15), 8, 247), Number(1, 40));
}

// From one edge to another or back to it, through points near the straight way. An end is a point
// beyond the edge, a point on it, or both.
Coastline RandomCells::Some_coastline() {
    const int edges[] = {Number(0, 3), Number(0, 3)};
    const int along[] = {Number(8, 247), Number(8, 247)};
    const CellPoint from = Beyond(edges[0], along[0], 0);
    const CellPoint to = Beyond(edges[1], along[1], 0);
    Coastline line;
    const auto add_end = [&](int end, bool first) {
        const CellPoint on_edge = end == 0 ? from : to;
        const CellPoint outside = Outside_of(edges[end], along[end]);
        const int kind = Number(0, 3);
        if (kind == 0)
            line.push_back(on_edge);
        else if (kind == 1)
            line.insert(line.end(), {first ? outside : on_edge, first ? on_edge : outside});
        else
            line.push_back(outside);
    };
    add_end(0, true);
    const int inner = Number(2, 5);
    for (int k = 1; k <= inner; ++k) {
        const auto between = [&](int a, int b) {
            return std::clamp(a + (b - a) * k / (inner + 1) + Number(-40, 40), 5, 250);
        };
        line.push_back({between(from.X, to.X), between(from.Y, to.Y)});
    }
    add_end(1, false);
    return line;
}

std::vector<Coastline> RandomCells::Next(int most) {
    std::vector<Coastline> lines;
    const auto wanted = static_cast<std::size_t>(Number(1, most));
    for (int tries = 0; lines.empty() || (lines.size() < wanted && tries < 60); ++tries) {
        const Coastline line = Some_coastline();
        if (Is_clear(line) && std::all_of(lines.begin(), lines.end(), [&](const Coastline& other) {
                return Are_clear(line, other);
            }))
            lines.push_back(line);
    }
    return lines;
}

}  // namespace tidemark
