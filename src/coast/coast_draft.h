// Lines on their way into the map at one tolerance: which of their points are kept, and where those
// come to lie.
#pragma once

#include <string>
#include <vector>

#include "coast/draft_line.h"
#include "coast/map_line.h"
#include "coast/position.h"
#include "coast/touching_steps.h"

namespace tidemark {

// VTP units: a point that is nearer to the line without it changes nothing on the map.
inline constexpr double LeastGain = 0.5;

// The map, in VTP units of its first and its last column and row.
struct MapUnits {
    Position First, Last;

    // Up to half a unit beyond the outermost ones: there the next map begins.
    MapRectangle Rectangle() const;

    bool Is_on_edge(Position place) const;
};

class CoastDraft {
  public:
    CoastDraft(std::vector<DraftLine> lines, const MapUnits& map, double tolerance);

    double Tolerance() const { return tolerance_; }

    const std::vector<DraftLine>& Lines() const { return lines_; }
    // The numbers of the points that are kept.
    const std::vector<std::size_t>& Kept(std::size_t line) const { return kept_[line]; }
    // Where they lie in VTP units, none on a cell edge but the ends on the map's edge; of a ring
    // the first one is repeated at the end. Its chords are numbered from 0 by their first points.
    const std::vector<Position>& Placed(std::size_t line) const { return placed_[line]; }

    // All lines, cut at the cell edges.
    std::vector<CoastStep> Steps() const;

    // The ends of lines that end on the edge of the map.
    std::vector<Position> Ends_on_map_edge() const;

    // A line that is changed, or added, has to be placed again.
    DraftLine& Line(std::size_t line) { return lines_[line]; }
    void Add(DraftLine line);
    void Place(std::size_t line);

    // The greatest distance of a point of the line from what was placed instead, VTP units.
    double Deviation(std::size_t line) const;

    // What could not be kept, and why; one line each.
    std::vector<std::string> Dropped;

  private:
    Position Place_of(const DraftLine& line, std::size_t point) const;

    MapUnits map_;
    double tolerance_;
    std::vector<DraftLine> lines_;
    // Of each line: the points that are kept, by number, and where they lie.
    std::vector<std::vector<std::size_t>> kept_;
    std::vector<std::vector<Position>> placed_;
};

}  // namespace tidemark
