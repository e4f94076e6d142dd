// The lines and polygons of KML (2.x), and the tracks and routes of GPX (1.x), in any encoding that
// XML text may have.
#pragma once

#include "coast/coast_input.h"
#include "coast/coast_runs.h"

namespace tidemark {

// LineString, LinearRing and Polygon, wherever they stand.
void Read_kml(CoastInput& input, CoastRuns& runs);

// Each segment of a track and each route is a line.
void Read_gpx(CoastInput& input, CoastRuns& runs);

}  // namespace tidemark
