// The lines of the Status panel's list of VTP points.
#pragma once

#include <string>
#include <vector>

#include "model/project.h"
#include "model/session.h"

namespace tidemark {

// One line to a point, in point order; a segment stands between "[" and "]", with the short name of
// its mode (or the code of a mode that has none) on its first line and its width on its last:
//     [ 5000, 6000 Coast (waves)
//       5010, 6005 ] W=80
// The segment flags have to agree with one another (Repair_segments).
std::vector<std::string> VTP_list_lines(const Project& project);

// What is due whenever the points have changed: the segment flags are put right, the selection
// stays within the list, and once the preferences are set the entry VTPsave follows whether there
// is anything to save.
void Refresh_VTP_List(Project& project, Session& session);

}  // namespace tidemark
