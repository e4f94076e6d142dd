// What the mouse and the keys do with the project on the map.
#pragma once

#include <QObject>

#include "app/coast_watch_window.h"
#include "app/status_panel_window.h"
#include "canvas/map_canvas_window.h"
#include "model/document.h"
#include "platform/messages.h"
#include "vtp_edit/edit_point_window.h"

namespace tidemark {

class MapEditing : public QObject {
    Q_OBJECT

  public:
    // Hears what comes in on the canvas. All that is handed over lives as long as this does;
    // `owner` is the dialog's.
    MapEditing(Document& document, Session& session, Messages& messages, MapCanvas& canvas,
               Status& panel, CoastWatch& coast_watch, QWidget& owner);

    // Shows the dialog Edit Point for the selected point, if there is one.
    void Edit_selected_point();

  Q_SIGNALS:
    void Pointer_moved();
    void Point_selected();
    // One quiet line about the polygon that was added last.
    void Remarked(const QString& text);

  private:
    void Picture2_MouseMove(float x, float y);
    void Picture2_MouseDown(int button);
    void Picture2_KeyDown(int key_code);
    void Left_click();
    void Add_polygon();
    void Select_point();

    Document& document_;
    Session& session_;
    Messages& messages_;
    Status& panel_;
    CoastWatch& coast_watch_;
    QWidget& owner_;
    EditPoint* edit_point_ = nullptr;  // made when it is first used; kept from then on
};

}  // namespace tidemark
