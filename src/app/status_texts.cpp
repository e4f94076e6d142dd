#include "app/status_texts.h"

#include "canvas/map_frame.h"
#include "georef/geo_position.h"

namespace tidemark {

namespace {

std::string Count_text(const std::string& what, int count, int most) {
    const bool is_nearly_full = 10 * count >= 9 * most;
    return what + " " + std::to_string(count) + "/" + std::to_string(most) +
           (count >= most    ? " (full)"
            : is_nearly_full ? " (nearly full)"
                             : "");
}

VTPPlace Cursor_place(const Session& session) {
    return {session.CursorVTPX, session.CursorVTPY};
}

}  // namespace

std::string Counts_text(const Project& project) {
    return Count_text("points", project.VTPCount, MaxVTPCount) + "  " +
           Count_text("polygons", project.LWMCount, MaxLWMCount) + "  " +
           Count_text("cleared", project.KillCount, MaxKillCount);
}

std::string Cursor_position_text(const Project& project, const Session& session) {
    return Has_scale(project) ? Position_text(Position_of(project, Cursor_place(session))) : "";
}

std::string Distance_text(const Project& project, const Session& session) {
    const int point = session.Panel.SelectedPoint + 1;
    if (point < 1 || point > project.VTPCount || !Has_scale(project)) return "";
    const VTPPlace from{project.VTPPoint(point, 0), project.VTPPoint(point, 1)};
    return Leg_text(
        Leg_between(Position_of(project, from), Position_of(project, Cursor_place(session))));
}

std::string File_changed_text(const std::string& path) {
    return path + " has been changed by another program; Save Project would replace it";
}

std::string File_gone_text(const std::string& path) {
    return path + " is gone; Save Project writes it anew";
}

std::string Travelled_text(const std::string& said, const std::string& step, bool is_picture_gone) {
    return said + step +
           (is_picture_gone ? "; its background picture cannot be shown any more" : "");
}

}  // namespace tidemark
