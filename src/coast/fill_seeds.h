// Where filling begins: a cell of which it is known which of its pieces are water and which land.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "coast/fill_ground.h"

namespace tidemark {

struct FillSeed {
    std::string Refusal;  // why filling cannot begin in the cell; empty: it can
    CellPieces Pieces;
    std::size_t Piece = 0;
    bool IsWater = false;  // the piece; in a cell with a coastline inside, what is around it
};

// The cell of a polygon of the project, and the piece that the polygon is; the refusal is a
// sentence.
FillSeed Seed_of_polygon(const FillGround& ground, int polygon);

// A cell through which one of these coastlines runs; nothing for any other cell.
std::optional<FillSeed> Seed_of_shores(const FillGround& ground, const SurveyedCell& cell,
                                       std::span<const KnownShore> shores);

inline constexpr const char* CrossingCoastlinesText = "coastlines cross one another";

}  // namespace tidemark
