// What a list of findings shows and chooses.
#pragma once

#include <optional>

#include "coast/finding.h"
#include "model/project.h"

namespace tidemark {

// "2 errors, 1 remark"; "No findings".
std::string Findings_summary(const Findings& findings);

// The lines of the filter with their counts, all findings first: "Loose ends (3)".
std::vector<std::string> Filter_lines(const Findings& findings);

// Which finding is chosen once the list has changed, by its position; -1 is none. It is the same
// one; when that is gone it is the next of its cell, or else of the cells after it, or else the
// last.
int Chosen_after(const Findings& before, int chosen, const Findings& after);

// Where a finding is to be seen, in VTP units: its point, when that lies in its cell, or else the
// middle of the cell. Nothing for a finding of the project as a whole.
std::optional<Position> Place_of_finding(const Project& project, const Finding& finding);

// The finding that explains best why no polygon, or the wrong one, was built at a place (VTP
// units): the first error of a coastline in its cell, or else in the nearest of the eight cells
// around it. Null when there is none.
const Finding* Explaining_finding(const Findings& findings, Position place);

}  // namespace tidemark
