// What the Edit Point dialog says about a point, and what it makes of the answer.
#pragma once

#include <string>

#include "model/project.h"
#include "model/session.h"
#include "platform/messages.h"

namespace tidemark {

// A point's place in two forms, as texts: in VTP units and as a position inside its LOD13 cell.
struct EditPointTexts {
    std::string VTPX, VTPY;      // VTP units
    std::string LOD13X, LOD13Y;  // cell units
    bool InCell = false;         // the user edits the position in the cell
};

// The texts of a point. Its position in the cell also goes to CursorInCellX and CursorInCellY,
// where it stays until the next mouse move.
EditPointTexts Edit_point_texts(const Project& project, Session& session, int point);

// "Current LOD13 cell is [ column, row ]".
std::string Edit_point_cell_text(const Project& project, int point);

// Whether the two numbers of the chosen form are in their ranges: the area, its east and south edge
// included, or 0..255. Warns of the first that is not.
bool Check_edit_point(const Project& project, const EditPointTexts& texts, Messages& messages);

// Gives the point the place of the chosen form, each number rounded with halves to the even
// neighbour; a position in the cell counts in the cell that the point lies in. Sets DataChanged.
void Store_edit_point(Project& project, Session& session, int point, const EditPointTexts& texts);

}  // namespace tidemark
