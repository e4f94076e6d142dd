// The text of the VTP assembler file: the project's segments and cleared cells for the scenery
// compiler.
#pragma once

#include <string>
#include <vector>

#include "model/project.h"
#include "model/segments.h"

namespace tidemark {

// How many segments there are that the file can carry: those of every mode but the plain edge.
int Written_segment_count(const std::vector<Segment>& segments);

// The whole file. Segments must have two points or more and a drawing mode of the table, and their
// flags must agree (Repair_segments). Throws Overflow for coordinates so far outside the LOD8 cell
// that a step of the conversion leaves 16 bits.
std::string VTP_file_bytes(const Project& project);
// The same where its segments, Segments(project), are known already.
std::string VTP_file_bytes(const Project& project, const std::vector<Segment>& segments);

}  // namespace tidemark
