// Where a VTP coordinate lies in the grid of LOD13 cells. The same rule serves both axes.
#pragma once

#include "model/int16.h"
#include "model/limits.h"
#include "model/rounding.h"

namespace tidemark {

// Whole cells from the area's west (north) edge to the cell that holds a point `distance` VTP units
// from that edge, rounded down: -1 just outside it. Throws Overflow beyond 16 bits.
inline Int16 Cell_offset(Int16 distance) {
    const float cells = static_cast<float>(distance + CellSizeVTP / 2) / CellSizeVTP;
    return Round_half_up(cells) - 1;
}

// The position inside that cell, in cell units, limited to 0..255.
inline Int16 In_cell(Int16 distance, Int16 cell_offset) {
    return Min_int(Max_int(distance - cell_offset * CellSizeVTP, 0), LastCellUnit);
}

// VTP coordinate of the west (north) edge of an LOD13 column (row).
constexpr Int16 Cell_edge_VTP(Int16 cell) {
    return cell * CellSizeVTP + FirstVTP;
}

}  // namespace tidemark
