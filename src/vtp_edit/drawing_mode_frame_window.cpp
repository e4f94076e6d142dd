#include "vtp_edit/drawing_mode_frame_window.h"

#include <QAbstractItemView>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "platform/qt_controls.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

// Turned by the wheel only while it has the keyboard: the wheel on its way over the panel must not
// change what the next click draws.
class ModeCombo : public QComboBox {
  public:
    ModeCombo() { setFocusPolicy(Qt::StrongFocus); }

  protected:
    void wheelEvent(QWheelEvent* event) override {
        if (hasFocus())
            QComboBox::wheelEvent(event);
        else
            event->ignore();
    }
};

}  // namespace

DrawingModeFrame::DrawingModeFrame(QWidget* parent)
    : QGroupBox("Drawing Mode", parent),
      DrawModeCombo_(Captionless<ModeCombo>("DrawModeCombo", "Drawing mode")) {
    DrawModeCombo_->view()->setAccessibleName("Drawing modes");
    for (const DrawingMode& mode : DrawingModes) DrawModeCombo_->addItem(To_qt(mode.Item));
    DrawModeCombo_->setMaxVisibleItems(static_cast<int>(DrawingModes.size()));
    (new QVBoxLayout(this))->addWidget(DrawModeCombo_);
    connect(DrawModeCombo_, &QComboBox::activated, this, &DrawingModeFrame::DrawModeCombo_Click);
}

std::string DrawingModeFrame::Item() const {
    return From_qt(DrawModeCombo_->currentText());
}

void DrawingModeFrame::Select_mode(int index) {
    DrawModeCombo_->setCurrentIndex(index);
    DrawModeCombo_Click();
}

void DrawingModeFrame::DrawModeCombo_Click() {
    Q_EMIT Mode_chosen(*Find_mode(Item()));
}

}  // namespace tidemark
