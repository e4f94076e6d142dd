// The tool bar's commands on the coast, with their windows: check, fill, clear, import.
#pragma once

#include <QObject>

#include "app/coast_check_window.h"
#include "app/coast_watch_window.h"
#include "app/fill_coast_window.h"
#include "app/import_coast_window.h"
#include "canvas/map_view_window.h"
#include "georef/geo_position.h"
#include "model/document.h"
#include "platform/platform.h"

namespace tidemark {

class CoastDialogs : public QObject {
    Q_OBJECT

  public:
    // All that is handed over lives as long as this does; `owner` is the windows'.
    CoastDialogs(Document& document, Session& session, Platform& platform, MapView& map,
                 CoastWatch& coast_watch, QWidget& owner);

    // Brings up the window of the coast check, which stays beside the map.
    void Check();
    // Asks what is to be filled, and fills it.
    void Fill();
    // Clears the cells along the selected point's segment.
    void Clear();
    // Asks what is to be imported, and imports it. Reads the file at once unless its path is empty.
    void Import(const QString& path);

  Q_SIGNALS:
    void Said(const std::string& text);              // for the status bar
    void Preview_changed(const MapMarks& preview);   // of what is being imported
    void Place_wanted(tidemark::VTPPlace place);     // of the chosen finding, on the map
    void Selected_in_list(tidemark::ListKind list);  // what a finding is about

  private:
    void Make_coast_check();
    void Place_coast_check();
    std::vector<MarkLine> Frame_of_finding();
    void Bring_finding_into_view();
    void Go_to_finding(const Finding& finding);

    Document& document_;
    Session& session_;
    Platform& platform_;
    MapView& map_;
    CoastWatch& coast_watch_;
    QWidget& owner_;
    // Made when they are first used, so that start-up does not wait for them; kept from then on.
    CoastCheck* coast_check_ = nullptr;
    FillCoast* fill_coast_ = nullptr;
    ImportCoast* import_coast_ = nullptr;
};

}  // namespace tidemark
