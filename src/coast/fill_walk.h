// Filling on its way: from where it begins over the common edges of cells to all that can be
// reached.
#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <set>
#include <string>

#include "coast/fill_ground.h"
#include "coast/fill_seeds.h"

namespace tidemark {

class FillWalk {
  public:
    // Polygons of the first one's kind have its height. Pieces of that kind are taken only where
    // the walk comes to them, unless `takes_all_pieces`; those of the other kind, when it is
    // wanted, in every cell that is reached.
    FillWalk(const FillGround& ground, PolygonKind first, bool takes_all_pieces);

    // From a polygon's piece.
    void Begin_at_polygon(LOD13Cell cell, FillSeed seed);

    // From all wanted pieces of a cell, or not at all when the seed says why.
    void Begin(LOD13Cell cell, FillSeed seed);

    bool Has_reached(LOD13Cell cell) const { return reached_.contains(cell); }

    FillPlan Planned();

  private:
    struct Place {
        LOD13Cell Cell;
        std::size_t Piece;
        auto operator<=>(const Place&) const = default;  // NOLINT(modernize-use-nullptr)
    };

    struct ReachedCell {
        CellPieces Pieces;
        bool EvenIsWater;  // of the pieces with an even parity
        bool HasInner;     // its one piece is a coastline inside, on the other side of it

        bool Is_water(std::size_t piece) const {
            return EvenIsWater != (Pieces.Parity(piece) != HasInner);
        }
    };

    bool Wants(bool is_water) const;
    PolygonKind Kind_of(bool is_water) const;
    ReachedCell& Reach(LOD13Cell cell, FillSeed seed);
    void Add(Place place);
    void Go_on();
    void Visit(Place place);
    bool Take(Place place, const ReachedCell& cell);
    void Go_on_from(LOD13Cell cell, std::size_t piece, const ReachedCell& from);
    void Go_over(LOD13Cell cell, std::size_t piece, const ReachedCell& from, EdgeType side);
    bool Can_enter(LOD13Cell cell);
    void Enter(LOD13Cell cell, EdgeType side, int half_units, bool is_water);

    const FillGround& ground_;
    const PolygonKind first_;
    const bool takes_all_pieces_;
    std::map<LOD13Cell, ReachedCell> reached_;
    std::set<Place> seen_;
    std::deque<Place> ahead_;
    std::map<LOD13Cell, std::string> stops_;
    FillPlan plan_;
};

}  // namespace tidemark
