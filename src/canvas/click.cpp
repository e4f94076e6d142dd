#include "canvas/click.h"

#include "canvas/map_frame.h"

namespace tidemark {

std::optional<Adds> Take_left_click(const Project& project, Session& session,
                                    std::string_view mode_item, Messages& messages) {
    session.DataChanged = true;
    const DrawingMode* const mode = Find_mode(mode_item);
    if (!mode) {
        Plain_box(messages, "Unknown drawing mode case encountered.");
        return std::nullopt;
    }
    session.DrawMode = mode->Code;
    // The cursor has never been anywhere on such a map.
    return Has_scale(project) ? std::optional(mode->What) : std::nullopt;
}

}  // namespace tidemark
