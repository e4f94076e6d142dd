// A short drawing that is made without the mouse.
#pragma once

#include <functional>

#include "app/tidemark_main_window.h"

namespace tidemark {

// Draws a coastline over three cells with water beside it, clears a cell and saves, all by keys,
// and calls `is_drawn` then; takes everything back, does the same with the mouse, and throws
// std::runtime_error when that makes another project. The window shows a project with a map of the
// whole LOD8 cell.
void Draw_with_keys_only(TidemarkMain& window, const std::function<void()>& is_drawn);

}  // namespace tidemark
