// Drawing by keys: the cross on the map that the arrow keys move and Enter presses.
#pragma once

#include <QAction>
#include <QKeyEvent>
#include <QObject>

#include "canvas/map_view_window.h"
#include "georef/geo_position.h"
#include "model/document.h"

namespace tidemark {

// While it is on, it takes the keys for the cross from the map, and does with it what a mouse would
// do there; assistive tools can read where the cross is. A mouse that moves leaves the cross where
// it is. Everything is left to the map while it is off.
class KeyDrawing : public QObject {
    Q_OBJECT

  public:
    // `command` switches it; all of them live as long as this does.
    KeyDrawing(MapView& map, QAction& command, const Document& document, const Session& session);

    // While it is on, moves the cross to a place, if that is on the map.
    void Go_to(VTPPlace place);

  protected:
    bool eventFilter(QObject* canvas, QEvent* event) override;

  private:
    void Switch(bool is_on);
    void Adapt_to_map();
    bool Take(const QKeyEvent& key);
    void Put(CanvasPoint place);
    void Press(Qt::MouseButton button);
    void Tell_place();

    MapView& map_;
    QAction& command_;
    const Document& document_;
    const Session& session_;
};

}  // namespace tidemark
