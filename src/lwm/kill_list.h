// Cleared cells: adding one, and what the Status panel's list of them shows and deletes.
#pragma once

#include <string>
#include <vector>

#include "model/project.h"
#include "model/session.h"
#include "platform/messages.h"

namespace tidemark {

// Adds an entry for the cursor's cell, of the clear code in DrawMode; the same one may be there
// already. In a full project it warns, changes nothing and returns false.
bool Add_Kill_Cell(Project& project, const Session& session, Messages& messages);

// One line to an entry, in order: "[ 5, 17 ] Coast"; the cell alone for a code that is no clear
// code.
std::vector<std::string> Kill_list_lines(const Project& project);

// The entries after it move down by one. Does not set DataChanged.
void Delete_Kill_Cell(Project& project, int entry);

// What is due whenever the cleared cells have changed: the selection stays within the list, and
// once the preferences are set the entry VTPsave follows whether there is anything to save.
void Refresh_Kill_List(const Project& project, Session& session);

}  // namespace tidemark
