// What the Background menu does, and the Cell Calculator, which helps there.
#pragma once

#include <QObject>

#include "app/map_commands.h"
#include "canvas/map_view_window.h"
#include "georef/background_properties_window.h"
#include "georef/cell_calculator_window.h"

namespace tidemark {

class BackgroundDialogs : public QObject {
    Q_OBJECT

  public:
    // All that is handed over lives as long as this does; `owner` is the dialogs'.
    BackgroundDialogs(Document& document, Session& session, Platform& platform, MapView& map,
                      QWidget& owner);

    // As the entries of the menu.
    void Load();
    void Change_properties();
    // Shows the Cell Calculator on its own.
    void Calculate();

    // Loads the picture anew, as every new size of a window does: afterwards, as a box that comes
    // up must not wait for its answer in the middle of a resize.
    void Reload_later();

  Q_SIGNALS:
    // The picture was loaded anew while a command waits for its dialog: nothing else shows what the
    // command has changed so far.
    void Changed_in_step();

  private:
    MapScreen Screen();
    void Reload();
    BGproperties& Background_properties();
    CellCalculator& Calculator();

    Document& document_;
    Session& session_;
    Platform& platform_;
    MapView& map_;
    QWidget& owner_;
    // Made when they are first used, so that start-up does not wait for them; kept from then on.
    BGproperties* background_properties_ = nullptr;
    CellCalculator* calculator_ = nullptr;
};

}  // namespace tidemark
