// The lines and polygons of GeoJSON text (RFC 7946).
#pragma once

#include "coast/coast_input.h"
#include "coast/coast_runs.h"

namespace tidemark {

// Adds every line and polygon to `runs`, wherever it stands in the text; points are passed over.
// Throws CoastRefusal and CoastCancelled.
void Read_geojson(CoastInput& input, CoastRuns& runs);

}  // namespace tidemark
