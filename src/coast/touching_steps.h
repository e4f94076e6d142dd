// Steps of coastlines that touch or cross one another.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "coast/position.h"

namespace tidemark {

// A straight step, VTP units of one cell or of two that have an edge in common.
struct CoastStep {
    Position From, To;
    std::uint32_t Line, Chord;  // that it is a part of
    // In the list of steps the one after it goes on where it ends, or of the last one of a ring the
    // ring's first does.
    bool GoesOn, BeginsRing, EndsRing;
};

class TouchingSteps {
  public:
    struct Pair {
        std::size_t First, Second;  // in the list of steps, First before Second
    };

    // Steps that follow one another touch when the line turns straight back. In the order of the
    // cells, column by column; a pair that two cells have in common comes twice. What a cell had in
    // the call before is not searched again when all its steps are the same.
    std::vector<Pair> Among(const std::vector<CoastStep>& steps);

  private:
    static constexpr int CellsAcross = LastLOD13 + 1;
    static constexpr std::size_t Cells = std::size_t{CellsAcross} * CellsAcross;

    // A step as it is told from another one, whatever its number.
    struct Known {
        Position From, To;
        std::uint32_t Line;
        bool FollowsOneBefore, BeginsRing, EndsRing;
        bool operator==(const Known&) const = default;
    };
    struct Cell {
        std::vector<Known> Steps;
        std::vector<std::array<std::uint32_t, 2>> Touching;  // numbers in Steps, by the first
    };

    void Share_out(const std::vector<CoastStep>& steps);
    void Look_at(Cell& cell);

    std::array<Cell, Cells> cells_;
    std::array<std::size_t, Cells + 1> starts_{};  // of each cell in here_
    std::vector<std::uint32_t> here_;              // numbers of steps, cell by cell
    std::vector<Known> known_;
    std::vector<std::uint32_t> by_west_;
};

}  // namespace tidemark
