#include "cell_path.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>

#include "model/cell_frame.h"

namespace tidemark {

namespace {

// Cell units that a point keeps clear of: 0, 1, 254 and 255.
constexpr int Margin = 2;

int Clear_of_edges(double value, int cell) {
    const int edge = Cell_edge_VTP(cell);
    return std::clamp(static_cast<int>(std::lround(value)), edge + Margin,
                      edge + LastCellUnit - Margin);
}

int Cell_index(int value) {
    return Cell_offset(value - FirstVTP);
}

// A point of the line: clear of all cell edges, or exactly on the map's own edge.
Position Placed(GeoPoint point) {
    Position placed = VTP_position(point);
    for (int& value : placed)
        if (value != FirstVTP && value != LastVTP) value = Clear_of_edges(value, Cell_index(value));
    return placed;
}

// Where a straight step crosses the line between two columns or two rows of cells.
struct LineCrossing {
    double At;  // part of the step, 0..1
    std::size_t Axis;
    int Edge;  // first VTP unit east or south of the line

    bool operator<(const LineCrossing& other) const {
        return At != other.At ? At < other.At : Axis < other.Axis;
    }
};

std::vector<LineCrossing> Line_crossings(Position from, Position to) {
    std::vector<LineCrossing> crossings;
    for (std::size_t axis : {0U, 1U}) {
        const auto [low, high] = std::minmax({Cell_index(from[axis]), Cell_index(to[axis])});
        for (int cell = low + 1; cell <= high; ++cell) {
            const int edge = Cell_edge_VTP(cell);
            const double at = (edge - 0.5 - from[axis]) / (to[axis] - from[axis]);
            crossings.push_back({at, axis, edge});
        }
    }
    std::sort(crossings.begin(), crossings.end());
    return crossings;
}

void Cut_step(CellPath& path, Position from, Position to) {
    Position cell = Cell_of(from);
    for (const auto& [at, axis, edge] : Line_crossings(from, to)) {
        const std::size_t other = 1 - axis;
        const bool ahead = to[axis] > from[axis];
        const double along = from[other] + at * (to[other] - from[other]);

        Position leaving, entering, boundary;
        leaving[other] = entering[other] = boundary[other] = Clear_of_edges(along, cell[other]);
        leaving[axis] = ahead ? edge - 2 : edge + 1;
        entering[axis] = ahead ? edge + 1 : edge - 2;
        boundary[axis] = ahead ? edge : edge - 1;

        path.Points.push_back(leaving);
        path.Crossings.push_back({path.Points.size() - 1, boundary});
        path.Points.push_back(entering);
        cell[axis] += ahead ? 1 : -1;
    }
}

}  // namespace

std::vector<Position> Placed(const GeoLine& line) {
    std::vector<Position> placed;
    for (const GeoPoint& point : line) placed.push_back(Placed(point));
    return placed;
}

CellPath Cut_at_cell_edges(const GeoLine& line) {
    CellPath path;
    for (const Position& to : Placed(line)) {
        if (!path.Points.empty()) Cut_step(path, path.Points.back(), to);
        path.Points.push_back(to);
    }
    return path;
}

std::vector<Position> Cut_ring(const GeoLine& ring) {
    CellPath path = Cut_at_cell_edges(ring);
    if (path.Crossings.empty()) throw std::runtime_error("An island lies inside one LOD13 cell.");
    path.Points.pop_back();  // the first point again

    const auto [before, edge] = path.Crossings.front();
    const auto entering = path.Points.begin() + static_cast<std::ptrdiff_t>(before) + 1;
    std::rotate(path.Points.begin(), entering, path.Points.end());
    path.Points.insert(path.Points.begin(), edge);
    path.Points.push_back(edge);
    return path.Points;
}

Position Cell_of(Position position) {
    return {Cell_index(position[0]), Cell_index(position[1])};
}

}  // namespace tidemark
