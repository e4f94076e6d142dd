// What the Status panel's list of LWM polygons shows, and what deleting from it does.
#pragma once

#include <string>
#include <vector>

#include "model/project.h"
#include "model/session.h"

namespace tidemark {

// Takes the last point from every polygon in which it repeats the first, as every list refresh
// does. A polygon without points stays so.
void Drop_closing_points(Project& project);

// "[ 12, 7 ] Water, conforms" or "[ 3, 30 ] Land @ 150m".
std::string LWM_list_line(const Project& project, int polygon);

// One line to a polygon, in order.
std::vector<std::string> LWM_list_lines(const Project& project);

// The polygons after it move down by one. Does not set DataChanged.
void Delete_LWM_Poly(Project& project, int polygon);

// What is due whenever the polygons have changed: closing points are dropped, the selection stays
// within the list, and once the preferences are set the entry LWMsave follows whether there are
// polygons.
void Refresh_LWM_List(Project& project, Session& session);

}  // namespace tidemark
