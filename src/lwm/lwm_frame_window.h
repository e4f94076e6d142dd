// The Status panel's frame "LWM Polygons".
#pragma once

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

#include "lwm/polygon_builder.h"
#include "model/document.h"
#include "model/drawing_modes.h"
#include "platform/messages.h"
#include "platform/qt_list_box.h"

namespace tidemark {

class LWMFrame : public QGroupBox {
    Q_OBJECT

  public:
    LWMFrame(Document& document, Session& session, Messages& messages, QWidget* parent = nullptr);

    // Water lies at a height and land conforms to the terrain, until the user says otherwise.
    void Mode_chosen(const DrawingMode& mode);

    // Builds the polygon of the cursor's cell around the click, of the type of the last click.
    LWMPolyResult Add_LWM_Poly();
    // Shows the project's polygons and the selection as they are now.
    void Refresh();

  private:
    void Lay_out();

    Document& document_;
    Session& session_;
    Messages& messages_;
    ListBox* LWMlistBox_;
    QRadioButton* HeightOption_;
    QLineEdit* PolyHeightText_;
    QRadioButton* ConformOption_;
};

}  // namespace tidemark
