// What a left click on the map does.
#pragma once

#include <optional>
#include <string_view>

#include "model/drawing_modes.h"
#include "model/project.h"
#include "model/session.h"
#include "platform/messages.h"

namespace tidemark {

// Takes a left click in the drawing mode of this item text: sets DataChanged, whatever comes of the
// click, and DrawMode. Returns what is to be added at the cursor: nothing in a mode that does not
// exist, which the plain box reports, and nothing on a map without scale.
std::optional<Adds> Take_left_click(const Project& project, Session& session,
                                    std::string_view mode_item, Messages& messages);

}  // namespace tidemark
