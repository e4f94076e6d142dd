// The user's commands on the VTP points, each one step of the document. Those on the selected point
// do nothing when none is selected.
#pragma once

#include "model/document.h"
#include "platform/messages.h"
#include "vtp_edit/edit_point.h"

namespace tidemark {

// Adds a point of this width at the cursor (Add_VTP_Point).
void Click_point(Document& document, Session& session, Int16 width, Messages& messages);

// Does not set DataChanged.
void Delete_selected_point(Document& document, Session& session);

// The width of the selected point's segment. Does not set DataChanged.
void Change_selected_width(Document& document, Session& session, Int16 width);

// Turns the selected point's segment round. Sets DataChanged.
void Reverse_selected_segment(Document& document, Session& session);

// Gives a point the place that was entered for it (Store_edit_point).
void Move_point(Document& document, Session& session, int point, const EditPointTexts& texts);

}  // namespace tidemark
