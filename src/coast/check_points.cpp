#include <algorithm>

#include "coast/cell_path.h"
#include "coast/check_parts.h"
#include "model/drawing_modes.h"

namespace tidemark {

namespace {

void Check_step(const Project& p, int point, Findings& findings) {
    const Position from = VTP_position(p, point - 1), to = VTP_position(p, point);
    for (const LOD13Cell& cell : Cells_between(from, to))
        if (Is_in_LOD8_cell(cell))
            findings.push_back({.Kind = FindingKind::SkippedCell,
                                .Cell = cell,
                                .Text = "the step from " + Point_text(point - 1) + " to " +
                                        Point_text(point) + " skips cell " + Text_of(cell) +
                                        ", which is built without it; Mend puts points "
                                        "on both sides of the edges that it crosses",
                                .Point = point,
                                .Mending = Remedy::CutStep});
}

// Whether the place is on the edge of its cell towards a neighbour.
bool Is_towards(CellPoint place, LOD13Cell cell, LOD13Cell other) {
    if (other == Beyond(cell, EdgeType::Left)) return place.X == 0;
    if (other == Beyond(cell, EdgeType::Right)) return place.X == LastCellUnit;
    if (other == Beyond(cell, EdgeType::Top)) return place.Y == 0;
    return other == Beyond(cell, EdgeType::Bottom) && place.Y == LastCellUnit;
}

bool Is_corner(CellPoint place) {
    return (place.X == 0 || place.X == LastCellUnit) && (place.Y == 0 || place.Y == LastCellUnit);
}

// A point on a cell's edge is for the builder the place where the coastline leaves or enters the
// cell. That is right when it comes from inside and goes on straight across this edge, or the other
// way round.
bool Crosses_at(const Project& p, const Segment& coastline, int point) {
    const CellPoint place = Place_in_cell(p, point);
    const LOD13Cell cell = Cell_of_point(p, point);
    const auto lies_inside = [&](int other, int end) {
        return Cell_of_point(p, other) == cell &&
               (other == end || !Is_on_boundary(Place_in_cell(p, other)));
    };
    const auto lies_across = [&](int other) {
        return Is_towards(place, cell, Cell_of_point(p, other));
    };
    if (Is_corner(place)) return false;
    return (lies_inside(point - 1, coastline.First) && lies_across(point + 1)) ||
           (lies_across(point - 1) && lies_inside(point + 1, coastline.Last));
}

void Check_edge_point(const Project& p, const Segment& coastline, int point, Findings& findings) {
    const LOD13Cell cell = Cell_of_point(p, point);
    if (!Is_in_LOD8_cell(cell) || !Is_on_boundary(Place_in_cell(p, point)) ||
        Crosses_at(p, coastline, point))
        return;
    findings.push_back(
        {.Kind = FindingKind::Neighbours,
         .Cell = cell,
         .Text = Point_text(point) + " lies on the cell's edge, but the " +
                 "coastline does not cross it there; Mend moves the point into the cell",
         .Point = point,
         .Mending = Remedy::MoveInside});
}

// In a corner of its cell on the map's own edge: there an end belongs further along the edge.
bool Is_in_corner_of_map(const Project& p, int point) {
    const auto [x, y] = VTP_position(p, point);
    return Is_corner(Place_in_cell(p, point)) &&
           (x == FirstVTP || x == LastVTP || y == FirstVTP || y == LastVTP);
}

// Whether a coastline ends at the place, coming from inside the cell.
bool Ends_from_inside(const Project& p, const CoastSurvey& survey, Position place) {
    return std::any_of(
        survey.Coastlines().begin(), survey.Coastlines().end(), [&](const Segment& coastline) {
            return VTP_position(p, coastline.Last) == place &&
                   Cell_of(VTP_position(p, std::max(coastline.Last - 1, 1))) == Cell_of(place);
        });
}

// Where a coastline begins on a cell's edge and the builder would have it cross the edge more than
// once there, or without the neighbour.
std::vector<Position> Bad_starts(const Project& p, const CoastSurvey& survey) {
    std::vector<Position> places;
    for (const Segment& coastline : survey.Coastlines()) {
        const int first = coastline.First;
        const CellPoint place = Place_in_cell(p, first);
        if (!Is_on_boundary(place) || first == coastline.Last) continue;
        if (Is_in_corner_of_map(p, first) || Ends_from_inside(p, survey, VTP_position(p, first)))
            places.push_back(VTP_position(p, first));
    }
    return places;
}

// A coastline that comes into its last cell over one edge and ends on another leaves no trace there
// unless it has one more point.
void Check_last_step(const Project& p, const Segment& coastline, Findings& findings) {
    const int last = coastline.Last;
    const LOD13Cell cell = Cell_of_point(p, last);
    const CellPoint place = Place_in_cell(p, last);
    if (coastline.First == last || !Is_in_LOD8_cell(cell) || !Is_on_boundary(place)) return;
    const LOD13Cell before = Cell_of_point(p, last - 1);
    if (before == cell || Is_towards(place, cell, before)) return;
    findings.push_back({.Kind = FindingKind::SkippedCell,
                        .Cell = cell,
                        .Text = "the coastline that ends on the edge of this cell at " +
                                Point_text(last) +
                                " has no point inside, and the cell is built without it; Mend "
                                "puts one there",
                        .Point = last,
                        .Mending = Remedy::CutStep});
}

// Ends that share a place belong together, and move together.
void Check_ends_on_edges(const Project& p, const CoastSurvey& survey, Findings& findings) {
    const std::vector<Position> bad_starts = Bad_starts(p, survey);
    for (const Segment& coastline : survey.Coastlines())
        for (const int end : {coastline.First, coastline.Last}) {
            const LOD13Cell cell = Cell_of_point(p, end);
            const auto found =
                std::find(bad_starts.begin(), bad_starts.end(), VTP_position(p, end));
            const bool is_bad = found != bad_starts.end() || Is_in_corner_of_map(p, end);
            if (!is_bad || !Is_in_LOD8_cell(cell)) continue;
            findings.push_back({.Kind = FindingKind::Neighbours,
                                .Cell = cell,
                                .Text = Point_text(end) +
                                        " lies on the cell's edge, where another end or a corner "
                                        "is in the way; Mend moves the point into the cell",
                                .Point = end,
                                .Mending = Remedy::MoveInside});
        }
}

void Check_segment(const Project& p, const Segment& segment, Findings& findings) {
    const LOD13Cell cell = Cell_of_point(p, segment.First);
    if (segment.First == segment.Last)
        findings.push_back({.Kind = FindingKind::Segment,
                            .Cell = cell,
                            .Text = "the segment at " + Point_text(segment.First) +
                                    " has no other point, and no VTP file can be saved; delete it "
                                    "or add a point to it",
                            .Point = segment.First});
    if (!Find_mode(segment.Mode, Adds::Point))
        findings.push_back({.Kind = FindingKind::Segment,
                            .Cell = cell,
                            .Text = "the segment at " + Point_text(segment.First) +
                                    " has the unknown drawing mode " +
                                    std::to_string(segment.Mode) +
                                    ", and no VTP file can be saved; delete it and draw it again",
                            .Point = segment.First});
}

void Check_repeated_point(const Project& p, const Segment& segment, int point, Findings& findings) {
    const auto is_here = [&](int other) {
        return VTP_position(p, other) == VTP_position(p, point);
    };
    if (!is_here(point - 1)) return;
    bool is_whole_segment = true;  // of which one point would be left
    for (int i = segment.First; i <= segment.Last; ++i) is_whole_segment &= is_here(i);
    findings.push_back(
        {.Kind = FindingKind::Segment,
         .IsError = Is_coastline(segment.Mode),
         .Cell = Cell_of_point(p, point),
         .Text = "points " + std::to_string(point - 1) + " and " + std::to_string(point) +
                 " are at the same place; " +
                 (is_whole_segment ? "move one of them" : "Mend deletes one of them"),
         .Point = point,
         .Mending = is_whole_segment ? Remedy::None : Remedy::DropPoint});
}

}  // namespace

void Check_points(const Project& p, const CoastSurvey& survey, Findings& findings) {
    for (const Segment& segment : Segments(p)) {
        Check_segment(p, segment, findings);
        for (int i = segment.First + 1; i <= segment.Last; ++i)
            Check_repeated_point(p, segment, i, findings);
    }
    for (const Segment& coastline : survey.Coastlines()) {
        for (int i = coastline.First + 1; i <= coastline.Last; ++i) Check_step(p, i, findings);
        for (int i = coastline.First + 1; i < coastline.Last; ++i)
            Check_edge_point(p, coastline, i, findings);
        Check_last_step(p, coastline, findings);
    }
    Check_ends_on_edges(p, survey, findings);
}

}  // namespace tidemark
