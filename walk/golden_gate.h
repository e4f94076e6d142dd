// The main job, played through the real windows: the Golden Gate sample.
#pragma once

#include <QString>

#include "app/tidemark_main_window.h"

namespace tidemark {

// Opens a copy of the sample, saves its files through the menu and takes pictures on the way. All
// that it makes goes to `out`, an existing folder, which becomes the current folder. Throws
// std::runtime_error when a window does not do what it should.
void Play_golden_gate(TidemarkMain& window, const QString& sample_folder, const QString& out);

}  // namespace tidemark
