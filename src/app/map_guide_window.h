// Leads to places on the map: Go To, Show chosen, and the cross of drawing by keys.
#pragma once

#include "app/key_drawing_window.h"
#include "canvas/map_view_window.h"
#include "georef/go_to_window.h"
#include "model/document.h"

namespace tidemark {

class MapGuide {
  public:
    // `draw_by_keys` switches the cross. All that is handed over lives as long as this does;
    // `owner` is the dialog's.
    MapGuide(MapView& map, QAction& draw_by_keys, const Document& document, const Session& session,
             QWidget& owner);

    // Asks for a place, which is shown.
    void Go_to();
    // Shows what was chosen last in a list or on the map.
    void Show_chosen();
    // Brings a place into the middle, and the cross to it.
    void Show(VTPPlace place);

  private:
    MapView& map_;
    const Document& document_;
    const Session& session_;
    QWidget& owner_;
    KeyDrawing key_drawing_;
    GoTo* go_to_ = nullptr;  // made when it is first used; kept from then on
};

}  // namespace tidemark
