#include "vtp_edit/vtp_list.h"

#include "model/drawing_modes.h"
#include "model/list_selection.h"
#include "model/segments.h"
#include "model/text_forms.h"
#include "model/vtp_data.h"

namespace tidemark {

namespace {

std::string Mode_text(Int16 code) {
    const DrawingMode* const mode = Find_mode(code, Adds::Point);
    return mode ? std::string(mode->ShortName) : Int_text(code);
}

}  // namespace

std::vector<std::string> VTP_list_lines(const Project& project) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(project.VTPCount));
    Int16 segment_width;
    for (int i = 1; i <= project.VTPCount; ++i) {
        const std::string place =
            Int_text(project.VTPPoint(i, 0)) + ", " + Int_text(project.VTPPoint(i, 1));
        if (project.VTPSegStart(i)) {
            segment_width = project.VTPWidth(i);
            lines.push_back("[ " + place + " " + Mode_text(project.VTPMode(i)));
        } else {
            lines.push_back("  " + place);
        }
        if (project.VTPSegEnd(i)) lines.back() += " ] W=" + Int_text(segment_width);
    }
    return lines;
}

void Refresh_VTP_List(Project& project, Session& session) {
    Repair_segments(project);
    PanelState& panel = session.Panel;
    panel.SelectedPoint = Selected_after_refresh(panel.SelectedPoint, project.VTPCount);
    Refresh_VTPsave(project, panel);
}

}  // namespace tidemark
