// The main job, played through the real windows: a map drawn from an empty window to both assembler
// files, as the tutorial tells it, and the Golden Gate sample.
#pragma once

#include <QString>

#include "app/tidemark_main_window.h"

namespace tidemark {

// Where the walk finds the sample, and the existing folder that it leaves everything in; that
// becomes the current folder.
struct WalkFolders {
    QString Sample;
    QString Out;
};

// Plays on a main window that has just been opened; takes the tutorial's pictures on the way.
// Throws std::runtime_error when a window does not do what it should.
void Play_golden_gate(TidemarkMain& window, const WalkFolders& folders);

}  // namespace tidemark
