// The pieces of one cell and which part of its boundary each of them has.
#pragma once

#include <utility>
#include <vector>

#include "coast/coast_survey.h"

namespace tidemark {

// The coastlines that cross a cell cut its boundary into stretches, which are water and land by
// turns. Every stretch belongs to one piece.
class CellPieces {
  public:
    // A cell without coastlines, or with ones that do not cross its boundary.
    explicit CellPieces(std::vector<Outline> pieces) : pieces_(std::move(pieces)) {}
    explicit CellPieces(const SurveyedCell& cell);

    const std::vector<Outline>& Pieces() const { return pieces_; }

    // Whether the pieces fit together: each stretch has one, and none has both water and land.
    // Otherwise coastlines cross one another.
    bool Fit() const { return fit_; }

    // The piece that has the boundary at this place of a side, coordinates in half units, 0..510;
    // there must be no crossing at it.
    std::size_t Piece_at(EdgeType side, int half_units) const;

    // The piece that has the boundary from a crossing on, clockwise.
    std::size_t Piece_after(CellPoint crossing) const;

    // Pieces of the same parity are all water or all land.
    bool Parity(std::size_t piece) const { return !parities_.empty() && parities_[piece]; }

  private:
    struct Stretch {
        int Start;  // half units along the boundary, clockwise from the north-west corner
        std::size_t Piece;
    };

    bool Assign(std::vector<CellPoint> crossings);

    std::vector<Outline> pieces_;
    std::vector<Stretch> stretches_;  // by their starts
    std::vector<bool> parities_;      // of the pieces
    bool fit_ = true;
};

}  // namespace tidemark
