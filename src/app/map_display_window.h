// What is seen of the project on the map: its picture, the drawing, and the marks above it.
#pragma once

#include "app/tool_bar_window.h"
#include "canvas/map_view_window.h"
#include "model/document.h"
#include "platform/messages.h"

namespace tidemark {

class MapDisplay {
  public:
    // All that is handed over lives as long as this does.
    MapDisplay(MapView& map, const ToolBar& tool_bar, const Document& document, Session& session,
               Messages& messages);

    // Shows the session's picture where undoing or redoing has left another one on the screen.
    // False when it is gone meanwhile; the one on the screen then stays, and is the session's.
    bool Show_picture();

    // Draws the project anew, with its marks.
    void Redraw();
    void Show_marks();
    // The frame of the cell under the pointer, if it is wanted.
    void Show_pointer();

    // Shows what an import would add with the marks, until it is given nothing. A preview of which
    // nothing is in view is brought into it.
    void Show_preview(const MapMarks& preview);

  private:
    MapView& map_;
    const ToolBar& tool_bar_;
    const Document& document_;
    Session& session_;
    Messages& messages_;
    MapMarks preview_;
    bool redrawing_ = false;
};

}  // namespace tidemark
