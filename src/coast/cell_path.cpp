#include "coast/cell_path.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <stdexcept>

namespace tidemark {

namespace {

// Cell units that a point keeps clear of: 0, 1, 254 and 255.
constexpr int Margin = 2;

int Clear_of_edges(double value, int cell) {
    const int edge = First_unit(cell);
    return std::clamp(static_cast<int>(std::lround(value)), edge + Margin,
                      edge + LastCellUnit - Margin);
}

bool Is_off_edges(int value) {
    const int unit = value - First_unit(Cell_index(value));
    return unit > 0 && unit < LastCellUnit;
}

// Clear of all cell edges, or exactly on the map's own edge.
Position Placed(Position point) {
    for (int& value : point)
        if (value != FirstVTP && value != LastVTP) value = Clear_of_edges(value, Cell_index(value));
    return point;
}

// Where a straight step crosses the line between two columns or two rows of cells.
struct LineCrossing {
    double At;  // part of the step, 0..1
    std::size_t Axis;
    int Edge;  // first VTP unit east or south of the line
};

// The crossings of the lines between columns, or between rows, one after the other.
class AxisCrossings {
  public:
    AxisCrossings(Position from, Position to, std::size_t axis)
        : from_(from[axis]),
          length_(to[axis] - from[axis]),
          left_(Cell_index(to[axis]) - Cell_index(from[axis])),
          next_{0, axis, First_unit(Cell_index(from[axis]) + (length_ > 0 ? 1 : 0))} {
        Reckon();
    }

    bool Are_left() const { return left_ != 0; }
    const LineCrossing& Next() const { return next_; }

    void Go_on() {
        const int ahead = left_ > 0 ? 1 : -1;
        left_ -= ahead;
        next_.Edge += ahead * CellSizeVTP;
        Reckon();
    }

  private:
    void Reckon() {
        if (left_ != 0) next_.At = (next_.Edge - 0.5 - from_) / length_;
    }

    int from_, length_, left_;  // VTP units; cells
    LineCrossing next_;
};

// In their order along the step; at a corner that of the columns first.
template <class Take>  // take(crossing)
void For_each_line_crossing(Position from, Position to, const Take& take) {
    AxisCrossings across(from, to, 0), down(from, to, 1);
    while (across.Are_left() || down.Are_left()) {
        const bool is_across =
            !down.Are_left() || (across.Are_left() && across.Next().At <= down.Next().At);
        AxisCrossings& next = is_across ? across : down;
        take(next.Next());
        next.Go_on();
    }
}

double Along(Position from, Position to, const LineCrossing& crossing) {
    const std::size_t other = 1 - crossing.Axis;
    return from[other] + crossing.At * (to[other] - from[other]);
}

// The places on both sides of a crossing, straight across the line at `along`.
struct Cut {
    Position Leaving, Boundary, Entering;
};

Cut Cut_at(const LineCrossing& crossing, bool ahead, int along) {
    Cut cut;
    const std::size_t other = 1 - crossing.Axis;
    cut.Leaving[other] = cut.Boundary[other] = cut.Entering[other] = along;
    cut.Leaving[crossing.Axis] = ahead ? crossing.Edge - 2 : crossing.Edge + 1;
    cut.Boundary[crossing.Axis] = ahead ? crossing.Edge : crossing.Edge - 1;
    cut.Entering[crossing.Axis] = ahead ? crossing.Edge + 1 : crossing.Edge - 2;
    return cut;
}

// The crossings of a step in their order; `take` gets each with its direction, and where along the
// line it is, clear of the edges of the cell that is left.
template <class Take>  // take(crossing, ahead, along)
void For_each_crossing(Position from, Position to, int aside, const Take& take) {
    Position cell = Cell_of(from);
    For_each_line_crossing(from, to, [&](const LineCrossing& crossing) {
        const std::size_t axis = crossing.Axis, other = 1 - axis;
        const bool ahead = to[axis] > from[axis];
        const double along = Along(from, to, crossing);
        take(crossing, ahead, Clear_of_edges(along + aside, cell[other]));
        cell[axis] += ahead ? 1 : -1;
    });
}

void Cut_step(CellPath& path, Position from, Position to) {
    For_each_crossing(from, to, 0, [&](const LineCrossing& crossing, bool ahead, int along) {
        const Cut cut = Cut_at(crossing, ahead, along);
        path.Points.push_back(cut.Leaving);
        path.Crossings.push_back({path.Points.size() - 1, cut.Boundary});
        path.Points.push_back(cut.Entering);
    });
}

}  // namespace

std::vector<Position> Placed(const std::vector<Position>& line) {
    std::vector<Position> placed;
    placed.reserve(line.size());
    for (const Position& point : line) placed.push_back(Placed(point));
    return placed;
}

Position Off_cell_edges(Position place) {
    for (int& value : place) value = Clear_of_edges(value, Cell_index(value));
    return place;
}

void Append_cut(std::vector<Position>& points, Position from, Position to) {
    For_each_crossing(from, to, 0, [&](const LineCrossing& crossing, bool ahead, int along) {
        const Cut cut = Cut_at(crossing, ahead, along);
        points.push_back(cut.Leaving);
        points.push_back(cut.Entering);
    });
    points.push_back(to);
}

CellPath Cut_at_cell_edges(const std::vector<Position>& placed) {
    CellPath path;
    for (const Position& to : placed) {
        if (!path.Points.empty()) Cut_step(path, path.Points.back(), to);
        path.Points.push_back(to);
    }
    return path;
}

std::vector<Position> Cut_ring(const std::vector<Position>& placed) {
    CellPath path = Cut_at_cell_edges(placed);
    if (path.Crossings.empty()) throw std::runtime_error("An island lies inside one LOD13 cell.");
    path.Points.pop_back();  // the first point again

    const auto [before, edge] = path.Crossings.front();
    const auto entering = path.Points.begin() + static_cast<std::ptrdiff_t>(before) + 1;
    std::rotate(path.Points.begin(), entering, path.Points.end());
    path.Points.insert(path.Points.begin(), edge);
    path.Points.push_back(edge);
    return path.Points;
}

std::vector<Position> Cut_of_step(Position from, Position to, int aside) {
    std::vector<Position> points{from};
    For_each_crossing(from, to, aside, [&](const LineCrossing& crossing, bool ahead, int along) {
        const std::size_t other = 1 - crossing.Axis;
        const int near = crossing.Edge - (ahead ? 1 : 0), far = crossing.Edge - (ahead ? 0 : 1);
        // From a corner the way straight across would lead along the other edge.
        const bool from_is_on_edge =
            points.size() == 1 && from[crossing.Axis] == near && Is_off_edges(from[other]);
        const bool to_is_on_edge = to[crossing.Axis] == far && Is_off_edges(to[other]) &&
                                   (!from_is_on_edge || from[other] == to[other]);
        if (from_is_on_edge) along = from[other];
        if (to_is_on_edge) along = to[other];
        const Cut cut = Cut_at(crossing, ahead, along);
        if (!from_is_on_edge && points.back() != cut.Leaving) points.push_back(cut.Leaving);
        if (!to_is_on_edge) points.push_back(cut.Entering);
    });
    points.erase(points.begin());
    if (!points.empty() && points.back() == to) points.pop_back();
    return points;
}

double First_crossing(Position from, Position to) {
    std::optional<double> along;
    For_each_line_crossing(from, to, [&](const LineCrossing& crossing) {
        if (!along) along = Along(from, to, crossing);
    });
    return along.value_or(0);
}

std::vector<LOD13Cell> Cells_between(Position from, Position to) {
    std::vector<LOD13Cell> cells;
    Position cell = Cell_of(from);
    For_each_line_crossing(from, to, [&](const LineCrossing& crossing) {
        cell[crossing.Axis] += to[crossing.Axis] > from[crossing.Axis] ? 1 : -1;
        cells.push_back({cell[0], cell[1]});
    });
    if (!cells.empty()) cells.pop_back();  // the cell of the end
    return cells;
}

}  // namespace tidemark
