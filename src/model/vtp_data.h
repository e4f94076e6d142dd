// When the Output menu can save the VTP file, which carries the points and the cleared cells.
#pragma once

#include "model/project.h"
#include "model/session.h"

namespace tidemark {

// There is something to write.
inline bool Has_VTP_data(const Project& project) {
    return project.VTPCount + project.KillCount > 0;
}

// Due when either table has changed; nothing can be saved before the preferences are confirmed.
inline void Refresh_VTPsave(const Project& project, PanelState& panel) {
    if (project.PrefsSet) panel.VTPsave = Has_VTP_data(project);
}

}  // namespace tidemark
