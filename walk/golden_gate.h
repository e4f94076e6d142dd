// The main job, played through the real windows: a map drawn from an empty window to both assembler
// files, as the tutorial tells it, the Golden Gate sample, and the way out.
#pragma once

#include <QString>

#include "app/tidemark_main_window.h"

namespace tidemark {

// Where the walk finds the sample's folder and the scenery compiler, and the existing folder that
// it leaves everything in; that becomes the current folder.
struct WalkFolders {
    QString Sample;
    QString Compiler;
    QString Out;
};

// Plays on a main window that has just been opened; takes the tutorial's pictures on the way, and
// joins them to strip.png. Throws std::runtime_error when a window does not do what it should.
void Play_golden_gate(TidemarkMain& window, const WalkFolders& folders);

}  // namespace tidemark
