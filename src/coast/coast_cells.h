// Which LOD8 cells of the world a coast runs through.
#pragma once

#include <compare>
#include <cstdint>
#include <vector>

#include "coast/coast_line.h"

namespace tidemark {

// A cell of the world's LOD8 grid: column 0..767 from 180 degrees west, row 0..511 from the north
// pole.
struct WorldCell {
    int Column = 0, Row = 0;
    auto operator<=>(const WorldCell&) const = default;  // NOLINT(modernize-use-nullptr)
};

// The cell that a place within +/-180 and 90 degrees lies in; the eastern and the southern edge of
// the world belong to the last cells.
WorldCell Cell_at(const CoastPosition& place);

// How many segments run through each cell, as they are noted one by one. Takes 1.5 MB, whatever is
// noted.
class CoastCells {
  public:
    struct Touched {
        WorldCell Cell;
        std::uint32_t Segments;  // above 0
    };

    CoastCells();

    // Longitudes may go beyond +/-180. Cells part half a VTP unit west and north of where the grid
    // has their edges, as lines are cut when they are laid.
    void Note(const CoastPosition& from, const CoastPosition& to);

    // By row, then by column.
    std::vector<Touched> All() const;

  private:
    void Count(int column, int row);

    std::vector<std::uint32_t> segments_;
};

}  // namespace tidemark
