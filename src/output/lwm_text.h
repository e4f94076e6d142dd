// The text of the LWM assembler file: the project's land and water polygons for the scenery
// compiler.
#pragma once

#include <string>

#include "model/project.h"

namespace tidemark {

// The whole file; a project without polygons gives the header and the trailer. Vertices are
// written as they are stored.
std::string LWM_file_bytes(const Project& project);

}  // namespace tidemark
