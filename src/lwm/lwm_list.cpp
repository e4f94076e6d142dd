#include "lwm/lwm_list.h"

#include "lwm/cell_text.h"
#include "model/drawing_modes.h"
#include "model/list_selection.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

void Copy_LWM_Poly(Project& project, int from, int to) {
    const Int16 count = project.LWMPointCount(from);
    for (int k = 1; k <= count; ++k)
        for (const int axis : {0, 1})
            project.LWMPoint(to, k, axis) = project.LWMPoint(from, k, axis);
    project.LWMType(to) = project.LWMType(from);
    project.LWMCell(to, 0) = project.LWMCell(from, 0);
    project.LWMCell(to, 1) = project.LWMCell(from, 1);
    project.LWMHeight(to) = project.LWMHeight(from);
    project.LWMPointCount(to) = count;
}

std::string Height_text(Int16 height) {
    return height == ConformsHeight ? ", conforms" : " @" + Blank_text(height) + "m";
}

}  // namespace

void Drop_closing_points(Project& project) {
    for (int i = 1; i <= project.LWMCount; ++i) {
        const int last = project.LWMPointCount(i);
        if (last > 0 && project.LWMPoint(i, last, 0) == project.LWMPoint(i, 1, 0) &&
            project.LWMPoint(i, last, 1) == project.LWMPoint(i, 1, 1))
            --project.LWMPointCount(i);
    }
}

std::string LWM_list_line(const Project& project, int polygon) {
    const int type = project.LWMType(polygon) == WaterPolygon ? WaterPolygon : LandPolygon;
    return Cell_text(project.LWMCell(polygon, 0), project.LWMCell(polygon, 1)) +
           std::string(Find_mode(type, Adds::Polygon)->ShortName) +
           Height_text(project.LWMHeight(polygon));
}

std::vector<std::string> LWM_list_lines(const Project& project) {
    std::vector<std::string> lines;
    lines.reserve(static_cast<std::size_t>(project.LWMCount));
    for (int i = 1; i <= project.LWMCount; ++i) lines.push_back(LWM_list_line(project, i));
    return lines;
}

void Delete_LWM_Poly(Project& project, int polygon) {
    for (int i = polygon; i < project.LWMCount; ++i) Copy_LWM_Poly(project, i + 1, i);
    if (project.LWMCount == 1) project.LWMPointCount(1) = 0;
    --project.LWMCount;
}

void Refresh_LWM_List(Project& project, Session& session) {
    Drop_closing_points(project);
    PanelState& panel = session.Panel;
    panel.SelectedPolygon = Selected_after_refresh(panel.SelectedPolygon, project.LWMCount);
    if (project.PrefsSet) panel.LWMsave = project.LWMCount > 0;
}

}  // namespace tidemark
