// The user's commands on LWM polygons and cleared cells, each one step of the document. Deleting
// does nothing when nothing is selected, and does not set DataChanged.
#pragma once

#include <string>

#include "lwm/polygon_builder.h"
#include "model/document.h"
#include "platform/messages.h"

namespace tidemark {

// Builds the polygon of the cursor's cell around the click (Add_LWM_Poly).
LWMPolyResult Click_polygon(Document& document, Session& session, HeightChoice choice,
                            const std::string& height_text, Messages& messages);

void Delete_selected_polygon(Document& document, Session& session);

// Adds an entry for the cursor's cell (Add_Kill_Cell).
void Click_cleared_cell(Document& document, Session& session, Messages& messages);

void Delete_selected_cleared_cell(Document& document, Session& session);

}  // namespace tidemark
