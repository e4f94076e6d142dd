#include "lwm/kill_list.h"

#include "lwm/cell_text.h"
#include "model/drawing_modes.h"
#include "model/list_selection.h"
#include "model/text_forms.h"
#include "model/vtp_data.h"

namespace tidemark {

bool Add_Kill_Cell(Project& project, const Session& session, Messages& messages) {
    if (project.KillCount >= MaxKillCount) {
        Warn(messages, "The cell has not been cleared: a project holds at most " +
                           Int_text(MaxKillCount) + " cleared cells.");
        return false;
    }
    const int entry = ++project.KillCount;
    project.KillCell(entry, 0) = session.CursorCellX;
    project.KillCell(entry, 1) = session.CursorCellY;
    project.KillType(entry) = session.DrawMode;
    return true;
}

std::vector<std::string> Kill_list_lines(const Project& project) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(project.KillCount));
    for (int k = 1; k <= project.KillCount; ++k) {
        lines.push_back(Cell_text(project.KillCell(k, 0), project.KillCell(k, 1)));
        if (const DrawingMode* const mode = Find_mode(project.KillType(k), Adds::ClearedCell))
            lines.back() += mode->ShortName;
    }
    return lines;
}

void Delete_Kill_Cell(Project& project, int entry) {
    for (int k = entry; k < project.KillCount; ++k) {
        project.KillCell(k, 0) = project.KillCell(k + 1, 0);
        project.KillCell(k, 1) = project.KillCell(k + 1, 1);
        project.KillType(k) = project.KillType(k + 1);
    }
    --project.KillCount;
}

void Refresh_Kill_List(const Project& project, Session& session) {
    PanelState& panel = session.Panel;
    panel.SelectedCell = Selected_after_refresh(panel.SelectedCell, project.KillCount);
    Refresh_VTPsave(project, panel);
}

}  // namespace tidemark
