// Where on the map the chosen line of a list lies.
#pragma once

#include <optional>

#include "georef/geo_position.h"
#include "model/session.h"

namespace tidemark {

// The place of what was chosen last in a list or on the map: a point, or the middle of the cell of
// a polygon or of a cleared cell. Nothing when nothing is, or when it does not fit 16 bits.
std::optional<VTPPlace> Chosen_place(const Project& project, const Session& session);

}  // namespace tidemark
