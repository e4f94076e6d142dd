// The parts of the coast check; each appends what it finds.
#pragma once

#include <map>
#include <string>

#include "coast/coast_survey.h"
#include "coast/finding.h"
#include "lwm/cell_text.h"
#include "model/project.h"

namespace tidemark {

// Segments and points by themselves: skipped cells, segments that cannot be written, repeated
// points, points on cell edges where the coastline does not cross.
void Check_points(const Project& project, const CoastSurvey& survey, Findings& findings);

// The coastlines in each cell: loose ends, too much of them, several inside. It comes after the
// other checks of coastlines, because a refusal of the builder that none of them explains is a
// finding of its own.
void Check_cells(const Project& project, const CoastSurvey& survey, Findings& findings);

// Where coastlines cross the common edge of two cells.
void Check_crossings(const Project& project, const CoastSurvey& survey, Findings& findings);

// The polygons that are there.
void Check_polygons(const Project& project, const CoastSurvey& survey, Findings& findings);

// Land against water along the common edge of two cells.
void Check_common_edges(const Project& project, Findings& findings);

// What lies outside, and what is near its limit.
void Check_limits(const Project& project, Findings& findings);

inline std::string Text_of(LOD13Cell cell) {
    return Cell_text(cell.Column, cell.Row);
}

inline std::string Point_text(int point) {
    return "point " + std::to_string(point);
}

inline Position VTP_position(const Project& p, int point) {
    return {p.VTPPoint(point, 0), p.VTPPoint(point, 1)};
}

inline LOD13Cell Cell_of_point(const Project& p, int point) {
    const auto [column, row] = Cell_of(VTP_position(p, point));
    return {column, row};
}

inline LOD13Cell Cell_of_polygon(const Project& p, int polygon) {
    return {p.LWMCell(polygon, 0), p.LWMCell(polygon, 1)};
}

// The numbers of the polygons, by their cells.
inline std::map<LOD13Cell, std::vector<int>> Polygons_by_cell(const Project& p) {
    std::map<LOD13Cell, std::vector<int>> cells;
    for (int polygon = 1; polygon <= p.LWMCount; ++polygon)
        cells[Cell_of_polygon(p, polygon)].push_back(polygon);
    return cells;
}

// In cell units.
inline CellPoint Place_in_cell(const Project& p, int point) {
    const auto [x, y] = VTP_position(p, point);
    return {(x - FirstVTP) & LastCellUnit, (y - FirstVTP) & LastCellUnit};
}

}  // namespace tidemark
