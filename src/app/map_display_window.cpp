#include "app/map_display_window.h"

#include <algorithm>
#include <utility>

#include <QScopeGuard>

#include "canvas/map_marks.h"
#include "canvas/refresh_graphics.h"

namespace tidemark {

MapDisplay::MapDisplay(MapView& map, const ToolBar& tool_bar, const Document& document,
                       Session& session, Messages& messages)
    : map_(map), tool_bar_(tool_bar), document_(document), session_(session), messages_(messages) {}

bool MapDisplay::Show_picture() {
    std::string& picture = session_.Opened.Picture;
    if (picture == map_.Shown_file()) return true;
    if (picture.empty()) {
        map_.Show_nothing();
        return true;
    }
    const bool is_shown = map_.Show_image(picture);
    if (!is_shown) picture = map_.Shown_file();
    return is_shown;
}

// A box that comes up in the middle of a redraw lets other events through, which may ask for
// another one; the redraw that waits for the box shows all there is then.
void MapDisplay::Redraw() {
    if (redrawing_) return;
    redrawing_ = true;
    const auto done = qScopeGuard([this] { redrawing_ = false; });
    Refresh_Graphics(document_.Now(), session_.Panel.SelectedPoint, map_.Canvas().Surface(),
                     messages_);
    Show_marks();
}

void MapDisplay::Show_marks() {
    const MarkKinds kinds = tool_bar_.Wanted_marks();
    MapMarks marks = Marks_of(document_.Now(), session_, kinds);
    marks.Areas.insert(marks.Areas.end(), preview_.Areas.begin(), preview_.Areas.end());
    marks.Lines.insert(marks.Lines.end(), preview_.Lines.begin(), preview_.Lines.end());
    map_.Canvas().Show_marks(std::move(marks));
    if (!kinds.Pointer) map_.Canvas().Show_pointer_frame({});
}

void MapDisplay::Show_pointer() {
    if (tool_bar_.Wanted_marks().Pointer)
        map_.Canvas().Show_pointer_frame(Pointer_frame(document_.Now(), session_));
}

void MapDisplay::Show_preview(const MapMarks& preview) {
    preview_ = preview;
    Show_marks();
    const auto [from, to] = map_.Canvas_in_view();
    const auto is_in_view = [from = from, to = to](const MarkLine& line) {
        return line.From.X >= from.X && line.From.X <= to.X && line.From.Y >= from.Y &&
               line.From.Y <= to.Y;
    };
    const std::vector<MarkLine>& lines = preview.Lines;
    if (!lines.empty() && std::none_of(lines.begin(), lines.end(), is_in_view))
        map_.Center_on(lines.front().To);
}

}  // namespace tidemark
