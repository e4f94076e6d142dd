// The parts of the coast check; each appends what it finds.
#pragma once

#include <string>

#include "coast/coast_survey.h"
#include "coast/finding.h"
#include "coast/project_places.h"
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

}  // namespace tidemark
