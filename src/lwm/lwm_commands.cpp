#include "lwm/lwm_commands.h"

#include "lwm/cell_text.h"
#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "model/drawing_modes.h"
#include "model/list_selection.h"

namespace tidemark {

namespace {

std::string Cursor_cell_text(const Session& session) {
    return Cell_text(session.CursorCellX, session.CursorCellY);
}

}  // namespace

LWMPolyResult Click_polygon(Document& document, Session& session, HeightChoice choice,
                            const std::string& height_text, Messages& messages) {
    const std::string kind = session.DrawMode == WaterPolygon ? "water" : "land";
    return document.Do(
        "add " + kind + " polygon " + Cursor_cell_text(session), [&](Project& project) {
            auto result = Add_LWM_Poly(project, session, messages, choice, height_text);
            Refresh_LWM_List(project, session);
            return result;
        });
}

void Delete_selected_polygon(Document& document, Session& session) {
    int& selected = session.Panel.SelectedPolygon;
    if (selected < 0) return;
    document.Do("delete polygon " + std::to_string(selected + 1), [&](Project& project) {
        Delete_selected(selected, project.LWMCount,
                        [&](int polygon) { Delete_LWM_Poly(project, polygon); });
        Refresh_LWM_List(project, session);
    });
}

void Click_cleared_cell(Document& document, Session& session, Messages& messages) {
    document.Do("clear cell " + Cursor_cell_text(session), [&](Project& project) {
        Add_Kill_Cell(project, session, messages);
        Refresh_Kill_List(project, session);
    });
}

void Delete_selected_cleared_cell(Document& document, Session& session) {
    int& selected = session.Panel.SelectedCell;
    if (selected < 0) return;
    document.Do("delete cleared cell " + std::to_string(selected + 1), [&](Project& project) {
        Delete_selected(selected, project.KillCount,
                        [&](int entry) { Delete_Kill_Cell(project, entry); });
        Refresh_Kill_List(project, session);
    });
}

}  // namespace tidemark
