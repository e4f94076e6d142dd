// Offering lost work, and going on with it.
#pragma once

#include <string>

#include "app/recovery.h"
#include "canvas/background.h"
#include "model/document.h"
#include "platform/platform.h"

namespace tidemark {

inline constexpr std::string_view RecoveryTitle = "Tidemark - Recovery";

// What the user is asked about lost work: which project, of which file, of when, and how much.
std::string Lost_work_text(const LostWork& lost);

// Makes lost work the project, under its path and title, as one step that counts as unsaved. From
// then on its recovery file is that of this editor.
void Recover(LostWork& lost, Recovery& recovery, Document& document, Session& session,
             Platform& platform, const ShowImage& show_image);

}  // namespace tidemark
