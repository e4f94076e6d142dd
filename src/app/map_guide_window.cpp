#include "app/map_guide_window.h"

#include "app/chosen_place.h"
#include "canvas/map_frame.h"

namespace tidemark {

MapGuide::MapGuide(MapView& map, QAction& draw_by_keys, const Document& document,
                   const Session& session, QWidget& owner)
    : map_(map),
      document_(document),
      session_(session),
      owner_(owner),
      key_drawing_(map, draw_by_keys, document, session) {}

void MapGuide::Go_to() {
    if (!go_to_) go_to_ = new GoTo(&owner_);
    const VTPPlace middle{session_.CursorVTPX, session_.CursorVTPY};
    if (const auto place = go_to_->Ask(document_.Now(), middle)) Show(*place);
}

void MapGuide::Show_chosen() {
    if (const auto place = Chosen_place(document_.Now(), session_)) Show(*place);
}

void MapGuide::Show(VTPPlace place) {
    map_.Center_on(VTP_to_canvas(document_.Now(), place.X, place.Y));
    key_drawing_.Go_to(place);
}

}  // namespace tidemark
