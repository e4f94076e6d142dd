// The Status panel's frame "LWM Polygons".
#pragma once

#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>

#include "model/drawing_modes.h"
#include "model/project.h"
#include "platform/messages.h"
#include "platform/qt_list_box.h"

namespace tidemark {

class LWMFrame : public QGroupBox {
    Q_OBJECT

  public:
    LWMFrame(Project& project, Messages& messages, QWidget* parent = nullptr);

    // The selected polygon's list position (polygon - 1); -1 for none.
    int Selected() const;

    // Water lies at a height and land conforms to the terrain, until the user says otherwise.
    void Mode_chosen(const DrawingMode& mode);

    // Builds the polygon of the cursor's cell around the click, of the type of the last click.
    void Add_LWM_Poly();
    // Shows the project's polygons as they are now; the selection stays as far as it can.
    void Refresh_LWM_List();

  Q_SIGNALS:
    void Graphics_outdated();              // the map has to be drawn again
    void SaveEntry_changed(bool enabled);  // of the menu entry LWMsave
    // One quiet line about the polygon that was added; empty when there is nothing to say.
    void Remarked(const QString& text);

  private:
    void Lay_out();
    void LWMlistBox_KeyDown(int key_code);
    void Show_polygons(int selected);

    Project& project_;
    Messages& messages_;
    ListBox* LWMlistBox_;
    QRadioButton* HeightOption_;
    QLineEdit* PolyHeightText_;
    QRadioButton* ConformOption_;
};

}  // namespace tidemark
