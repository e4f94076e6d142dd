// Which of a cell's 255 x 255 unit squares an outline covers, by their centres.
#pragma once

#include <array>
#include <cstdint>

#include "lwm/cell_edges.h"

namespace tidemark {

// Unit squares to a side of the cell; the vertices of outlines are their corners.
inline constexpr int MaskSize = LastCellUnit;

// The centres inside the outline. A centre on an edge counts for one of its two sides, whichever
// outline the edge belongs to: the pieces of a cell never share a square and leave none out.
class CellMask {
  public:
    CellMask() = default;
    // What of the outline lies outside the cell counts for nothing.
    explicit CellMask(const Outline& outline);

    int Area() const;  // squares
    int Common_area(const CellMask& other) const;
    CellMask& operator|=(const CellMask& other);

  private:
    static constexpr int Words = (MaskSize + 63) / 64;
    using Row = std::array<std::uint64_t, Words>;

    void Toggle_right_of(CellPoint a, CellPoint b);

    std::array<Row, MaskSize> rows_{};  // from north to south; the lowest bit is the west
};

}  // namespace tidemark
