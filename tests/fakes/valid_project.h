// What holds for every project that was made by editing alone.
#pragma once

#include <string>

#include "model/project.h"

namespace tidemark {

// The first thing that is wrong with the counts, the points and their flags, the cleared cells or
// the polygons of a project, in words; empty when all is well. Columns and rows run to 32: the
// map's last pixel can lie just beyond its area.
std::string Fault_in(const Project& project);

}  // namespace tidemark
