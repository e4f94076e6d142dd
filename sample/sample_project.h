// The sample as a project: the coastlines cut so that all 1024 cells can be built, roads and
// streams, and cleared cells where something new is drawn.
#pragma once

#include <memory>

#include "geography.h"
#include "model/project.h"

namespace tidemark {

// `coast` holds the mainland's coastlines, each running from the map's edge to the map's edge.
// Throws std::runtime_error for one that does not, and std::out_of_range when the project's tables
// are too small for the whole.
std::unique_ptr<Project> Sample_project(const std::vector<GeoLine>& coast);

}  // namespace tidemark
