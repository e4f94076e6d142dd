// What the polygon builder makes of all cells that a coastline has a point in.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "coast/position.h"
#include "lwm/cell_edges.h"
#include "model/project.h"
#include "model/segments.h"

namespace tidemark {

// Where a coastline crosses a cell's boundary, as the builder sees it.
struct BoundaryPoint {
    CellPoint Place;
    EdgeType Side;
    int Origin;  // the VTP point that it is, or at which the step ends that crosses here
};

struct SurveyedCell {
    LOD13Cell Cell;
    std::vector<BoundaryPoint> Crossings;
    // VTP points: the ends inside the cell of coastlines that cross its boundary.
    std::vector<int> Ends;
    // The first and the last VTP point of every coastline that lies wholly inside.
    std::vector<std::pair<int, int>> Inner;
    bool PointsLost = false;          // there are more points than the builder takes
    std::vector<Outline> Candidates;  // none when the cell is refused
    std::string Warning;              // the builder's first one, its first line; empty: none
};

class CoastSurvey {
  public:
    // The project stays as it is. A coastline with a point that is too far away for 16 bits hides
    // all cells from the builder, which refuses every one of them then.
    explicit CoastSurvey(const Project& project);

    const std::vector<Segment>& Coastlines() const { return coastlines_; }
    // By column, then by row.
    const std::vector<SurveyedCell>& Cells() const { return cells_; }
    // Null for a cell without a point of a coastline.
    const SurveyedCell* At(LOD13Cell cell) const;
    // What the builder can make in the cell, which may be one without coastlines.
    std::vector<Outline> Candidates(LOD13Cell cell) const;

  private:
    void Find_cells();
    SurveyedCell Look_at(LOD13Cell cell) const;

    std::unique_ptr<Project> project_;  // the builder writes into it
    std::vector<Segment> coastlines_;
    std::vector<SurveyedCell> cells_;
};

// The places of one side, in the direction of growing coordinates along it.
std::vector<BoundaryPoint> Crossings_on(const SurveyedCell& cell, EdgeType side);

// The coordinate along the side on which a boundary point lies.
int Along(const BoundaryPoint& point);

// The cell beyond a side.
LOD13Cell Beyond(LOD13Cell cell, EdgeType side);

// Of Left, Right, Top and Bottom the one across.
EdgeType Opposite(EdgeType side);

// Square units, positive when the outline runs clockwise on the map.
std::int64_t Twice_area(const Outline& outline);

// The same vertices in the same order, wherever they begin.
bool Same_outline(const Outline& a, const Outline& b);

// The pieces that the candidates are, each once: those that a polygon could be made of.
std::vector<Outline> Distinct_pieces(const std::vector<Outline>& candidates);

}  // namespace tidemark
