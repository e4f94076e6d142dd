// Lines on their way into the map at one tolerance: which of their points are kept, where those
// come to lie, and what is done where lines would touch.
#pragma once

#include <string>
#include <vector>

#include "coast/cell_path.h"
#include "coast/map_line.h"
#include "coast/position.h"

namespace tidemark {

// A line with the significance of each of its points (simplify.h). What is kept whatever the
// tolerance has an infinite one.
struct DraftLine {
    MapLine Line;
    std::vector<double> Significances;
    bool LeftOut = false;  // points of less significance than LeastGain are no more there
};

// VTP units: a point that is nearer to the line without it changes nothing on the map.
inline constexpr double LeastGain = 0.5;

// The map, in VTP units of its first and its last column and row.
struct MapUnits {
    Position First, Last;

    // Up to half a unit beyond the outermost ones: there the next map begins.
    MapRectangle Rectangle() const;
};

class CoastDraft {
  public:
    CoastDraft(std::vector<DraftLine> lines, const MapUnits& map, double tolerance);

    // Keeps more points where the kept ones let lines touch or cross one another, and where that
    // does not help cuts off what is narrower than a unit: a loop becomes a ring of its own, of two
    // rings that touch the smaller one goes.
    void Part_lines();

    // The kept points of a line in VTP units, none on a cell edge but the ends on the map's edge;
    // of a ring the first one is repeated at the end.
    const std::vector<DraftLine>& Lines() const { return lines_; }
    const std::vector<Position>& Placed(std::size_t line) const { return placed_[line]; }

    // The greatest distance of a point of the line from what was placed instead, VTP units.
    double Deviation(std::size_t line) const;

    const std::vector<std::string>& Dropped() const { return dropped_; }

  private:
    struct Step;      // between two points of the cut line
    struct Conflict;  // of two steps

    void Place(std::size_t line);
    Position Place_of(const DraftLine& line, std::size_t point) const;
    std::vector<Step> Steps() const;
    std::vector<Conflict> Conflicts() const;
    bool Keep_more(std::size_t line, std::size_t chord);
    // Both say whether anything has changed.
    bool Separate(const Conflict& conflict);
    bool Cut_off_loop(std::size_t line, std::size_t first_chord, std::size_t last_chord);
    void Drop(std::size_t line, const std::string& why);

    MapUnits map_;
    double tolerance_;
    std::vector<DraftLine> lines_;
    // Of each line: the points that are kept, by number, and where they lie.
    std::vector<std::vector<std::size_t>> kept_;
    std::vector<std::vector<Position>> placed_;
    std::vector<std::string> dropped_;
};

// Twice the area that the points go round, positive when clockwise on the map.
double Twice_area(const std::vector<MapPoint>& points);

}  // namespace tidemark
