// The cells as filling finds them: what coastlines and polygons have made of each, and which of
// them are closed to it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "coast/cell_pieces.h"
#include "coast/coast_survey.h"
#include "coast/fill.h"
#include "coast/position.h"
#include "model/project.h"

namespace tidemark {

class FillGround {
  public:
    // Both stay the caller's, as long as this is used.
    FillGround(const Project& project, const FillOptions& options);

    const Project& Of() const { return p_; }
    const FillOptions& Options() const { return options_; }

    // The cells that a coastline has a point in.
    const std::vector<SurveyedCell>& Coast_cells() const { return survey_.Cells(); }

    // On the map, and where the options ask for it.
    bool Is_wanted(LOD13Cell cell) const;

    // The error of the coast check because of which filling keeps out of the cell; null: none.
    const std::string* Error_in(LOD13Cell cell) const;

    // A coastline cuts the cell's boundary.
    bool Is_crossed(LOD13Cell cell) const;

    // The builder makes the outline of a coastline inside, and nothing around it.
    bool Has_inner(LOD13Cell cell) const;

    CellPieces Pieces_of(LOD13Cell cell) const;

    // The ends of the parts that coastlines cut a side into, cell units along it; the cell's
    // corners among them.
    std::vector<int> Cuts(LOD13Cell cell, EdgeType side) const;

    // The numbers of the polygons that are there already.
    const std::vector<int>& Polygons_in(LOD13Cell cell) const;

  private:
    const Project& p_;
    const FillOptions& options_;
    const CoastSurvey survey_;
    std::map<LOD13Cell, std::string> errors_;
    std::map<LOD13Cell, std::vector<int>> polygons_;
    const std::vector<int> none_;
};

}  // namespace tidemark
