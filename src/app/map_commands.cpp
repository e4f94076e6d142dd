#include "app/map_commands.h"

#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "vtp_edit/vtp_list.h"

namespace tidemark {

namespace {

void Ask_georeference(Project& project, Messages& messages, const MapScreen& screen) {
    const ViewSize canvas = screen.Canvas_size();
    Ask_background_properties(project, screen.Ask_georeference, canvas.Width, canvas.Height,
                              messages);
}

}  // namespace

void Refresh_lists(Project& project, Session& session) {
    Refresh_VTP_List(project, session);
    Refresh_LWM_List(project, session);
    Refresh_Kill_List(project, session);
}

void Load_background(Document& document, Session& session, Platform& platform,
                     const MapScreen& screen) {
    document.Do("load background image", [&](Project& project) {
        if (Choose_background(project, session, platform)) {
            Load_background_file(project, session, platform.messages, screen.Show_image);
            Ask_georeference(project, platform.messages, screen);
        }
        Refresh_lists(project, session);
    });
}

void Change_background_properties(Document& document, Messages& messages, const MapScreen& screen) {
    document.Do("change background properties",
                [&](Project& project) { Ask_georeference(project, messages, screen); });
}

void Reload_background(Document& document, Session& session, Messages& messages,
                       const ShowImage& show_image) {
    document.Settle(
        [&](Project& project) { Load_background_file(project, session, messages, show_image); });
}

}  // namespace tidemark
