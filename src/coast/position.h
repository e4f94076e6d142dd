// Positions on the map for the coast rules to compute with: whole numbers by axis, so that one rule
// serves both.
#pragma once

#include <array>
#include <compare>

#include "model/limits.h"

namespace tidemark {

// VTP units or LOD13 cells: 0 is X or column, 1 is Y or row.
using Position = std::array<int, 2>;

// VTP units of the LOD8 cell; the first one is FirstVTP.
inline constexpr int SizeVTP = (LastLOD13 + 1) * CellSizeVTP;
inline constexpr int LastVTP = FirstVTP + SizeVTP - 1;

// The column or row of a VTP coordinate, whatever its size: -1 just west or north of the LOD8 cell.
constexpr int Cell_index(int value) {
    return (value - FirstVTP) >> 8;
}
static_assert(CellSizeVTP == 1 << 8);

// The first VTP unit of a column or row.
constexpr int First_unit(int cell) {
    return FirstVTP + cell * CellSizeVTP;
}

constexpr Position Cell_of(Position position) {
    return {Cell_index(position[0]), Cell_index(position[1])};
}

// An LOD13 cell of the world's grid.
struct LOD13Cell {
    int Column = 0, Row = 0;                             // 0..31
    auto operator<=>(const LOD13Cell&) const = default;  // NOLINT(modernize-use-nullptr)
};

constexpr bool Is_in_LOD8_cell(LOD13Cell cell) {
    return cell.Column >= 0 && cell.Column <= LastLOD13 && cell.Row >= 0 && cell.Row <= LastLOD13;
}

}  // namespace tidemark
