#include "coast/coast_cells.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "coast/position.h"

namespace tidemark {

namespace {

constexpr int Columns = LastLOD8Column + 1, Rows = LastLOD8Row + 1;
constexpr double HalfUnit = 0.5 / SizeVTP;  // in LOD8 cells

// In LOD8 cells, from 180 degrees west and from the north pole.
double Across(double longitude) {
    return (longitude + 180) / LOD8DegreesEast;
}

double Down(double latitude) {
    return (90 - latitude) / LOD8DegreesSouth;
}

int Index(double cells) {
    return static_cast<int>(std::floor(cells));
}

std::size_t Place_of(int column, int row) {
    return static_cast<std::size_t>(row) * std::size_t{Columns} + static_cast<std::size_t>(column);
}

}  // namespace

WorldCell Cell_at(const CoastPosition& place) {
    return {std::clamp(Index(Across(place.Longitude)), 0, LastLOD8Column),
            std::clamp(Index(Down(place.Latitude)), 0, LastLOD8Row)};
}

CoastCells::CoastCells() : segments_(std::size_t{Columns} * Rows) {}

void CoastCells::Count(int column, int row) {
    const int turned = (column % Columns + Columns) % Columns;
    ++segments_[Place_of(turned, std::clamp(row, 0, LastLOD8Row))];
}

// Column by column: the rows of the part of the segment that lies in it.
void CoastCells::Note(const CoastPosition& from, const CoastPosition& to) {
    double west = Across(from.Longitude) + HalfUnit, east = Across(to.Longitude) + HalfUnit;
    double start = Down(from.Latitude) + HalfUnit, end = Down(to.Latitude) + HalfUnit;
    if (west > east) {
        std::swap(west, east);
        std::swap(start, end);
    }
    const int first = Index(west), last = Index(east);
    const auto row_at = [&](double x) {
        return west < east ? std::lerp(start, end, (x - west) / (east - west)) : start;
    };
    for (int column = first; column <= last; ++column) {
        const double enter = column == first ? start : row_at(column);
        const double leave = column == last ? end : row_at(column + 1);
        const int north = Index(std::min(enter, leave)), south = Index(std::max(enter, leave));
        for (int row = north; row <= south; ++row) Count(column, row);
    }
}

std::vector<CoastCells::Touched> CoastCells::All() const {
    std::vector<Touched> cells;
    for (int row = 0; row < Rows; ++row)
        for (int column = 0; column < Columns; ++column)
            if (const auto count = segments_[Place_of(column, row)])
                cells.push_back({{column, row}, count});
    return cells;
}

}  // namespace tidemark
