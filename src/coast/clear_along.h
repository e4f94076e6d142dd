// Clearing along a segment: the old scenery of its kind goes from every cell that it runs through.
#pragma once

#include <vector>

#include "coast/position.h"
#include "model/project.h"

namespace tidemark {

// The clear code of what is drawn in a mode: it replaces what the simulator has there.
int Clear_code(int mode);

// The cells, by column and row, in which the segment that holds the point (numbered from 1) has a
// point or a part of a step, and that have no entry of its clear code yet. Cells outside 0..31 are
// left out.
std::vector<LOD13Cell> Cells_to_clear(const Project& project, int point);

// Appends an entry for each of them; there has to be room.
void Clear_cells(Project& project, int point, const std::vector<LOD13Cell>& cells);

}  // namespace tidemark
