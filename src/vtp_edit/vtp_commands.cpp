#include "vtp_edit/vtp_commands.h"

#include "model/list_selection.h"
#include "vtp_edit/vtp_list.h"
#include "vtp_edit/vtp_points.h"

namespace tidemark {

namespace {

// A step on one point, with what is due after it.
template <class Change>  // change(project)
void Do_on_point(Document& document, Session& session, const char* what, int point,
                 const Change& change) {
    document.Do(std::string(what) + " " + std::to_string(point), [&](Project& project) {
        change(project);
        Refresh_VTP_List(project, session);
    });
}

}  // namespace

void Click_point(Document& document, Session& session, Int16 width, Messages& messages) {
    Do_on_point(document, session, "add point", Next_point(document.Now(), session.Panel),
                [&](Project& project) { Add_VTP_Point(project, session, width, messages); });
}

void Delete_selected_point(Document& document, Session& session) {
    int& selected = session.Panel.SelectedPoint;
    if (selected < 0) return;
    Do_on_point(document, session, "delete point", selected + 1, [&](Project& project) {
        Delete_selected(selected, project.VTPCount,
                        [&](int point) { Delete_VTP_Point(project, point); });
    });
}

void Change_selected_width(Document& document, Session& session, Int16 width) {
    const int point = session.Panel.SelectedPoint + 1;
    if (point < 1) return;
    Do_on_point(document, session, "change the segment width at point", point,
                [&](Project& project) { Change_segment_width(project, point, width); });
}

void Reverse_selected_segment(Document& document, Session& session) {
    const int point = session.Panel.SelectedPoint + 1;
    if (point < 1) return;
    Do_on_point(document, session, "reverse the segment at point", point, [&](Project& project) {
        Reverse_segment(project, point);
        session.DataChanged = true;
    });
}

void Move_point(Document& document, Session& session, int point, const EditPointTexts& texts) {
    Do_on_point(document, session, "edit point", point,
                [&](Project& project) { Store_edit_point(project, session, point, texts); });
}

}  // namespace tidemark
