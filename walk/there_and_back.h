// All that a session has done, undone and done again.
#pragma once

#include <functional>

#include <QByteArrayList>

#include "app/tidemark_main_window.h"

namespace tidemark {

// Redoes what there is, undoes everything down to the empty project, does it all again, and goes
// back to where the window was. `saved` saves the project and gives the contents of its files.
// Throws std::runtime_error when the project or its files are not what they were before.
void Undo_and_redo_everything(TidemarkMain& window, const std::function<QByteArrayList()>& saved);

}  // namespace tidemark
