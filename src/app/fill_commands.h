// Filling and clearing along the coast, each one step of the document.
#pragma once

#include <optional>
#include <string>

#include "coast/fill.h"
#include "model/document.h"
#include "model/session.h"
#include "platform/drawing_surface.h"

namespace tidemark {

// Adds the polygons of a plan that fits, and says so in one line for the status bar.
std::string Fill_along_coast(Document& document, Session& session, const FillPlan& plan);

// Clears the cells of the segment that the selected point is in, where they are not cleared for its
// kind yet. What was done, or why it was not: one line for the status bar.
std::string Clear_along_coast(Document& document, Session& session);

// The cells of the map that lie at least in part between two canvas pixels, the north-west and the
// south-east corner of what is in view. Nothing on a map without scale.
std::optional<CellRange> Cells_in_view(const Project& project, CanvasPoint from, CanvasPoint to);

}  // namespace tidemark
