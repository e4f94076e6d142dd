// The coast check: everything about the coastlines, polygons and cleared cells of a project that
// the polygon builder, the assembler files or the simulator would stumble over.
#pragma once

#include "coast/finding.h"
#include "model/project.h"

namespace tidemark {

// All findings, by cell (column, then row), those of the project as a whole first. The segment
// flags are taken to be right, as every list refresh leaves them.
Findings Check_coast(const Project& project);

}  // namespace tidemark
