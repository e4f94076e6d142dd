// An editor that is killed in the middle of its work, and what the next one does about it.
#pragma once

#include <string_view>

#include "app/tidemark_main_window.h"
#include "walk/mended_coast.h"

namespace tidemark {

// The walk's second argument in the process that is killed.
inline constexpr std::string_view UntilKilled = "--until-killed";

// In that process: opens the project that the walk has saved in the folder `out`, draws on it
// without saving, and waits for its end.
int Work_until_killed(TidemarkMain& window, const QString& out);

// Starts that process on the current folder, kills it as soon as its work is kept, and recovers
// that in a new window as the next start does. Throws std::runtime_error when anything is missing.
void Kill_and_recover(const TakePicture& take_picture);

}  // namespace tidemark
