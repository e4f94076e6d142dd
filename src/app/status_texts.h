// What the status bar says.
#pragma once

#include <string>

#include "model/project.h"
#include "model/session.h"

namespace tidemark {

// "points 562/999  polygons 23/200  cleared 307/1000"; what has come to nine tenths of its limit is
// followed by "(nearly full)", at its limit by "(full)".
std::string Counts_text(const Project& project);

// Where the cursor is, in degrees and minutes; empty on a map without scale.
std::string Cursor_position_text(const Project& project, const Session& session);

// How far the cursor is from the selected point, and in which direction it lies from there; empty
// when none is selected.
std::string Distance_text(const Project& project, const Session& session);

// What another program has done to the project's file.
std::string File_changed_text(const std::string& path);
std::string File_gone_text(const std::string& path);

// "Undone: delete point 57": what was `said` of a step, and whether the picture it wants is gone.
std::string Travelled_text(const std::string& said, const std::string& step, bool is_picture_gone);

}  // namespace tidemark
