#include "platform/qt_messages.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>

#include "platform/qt_active_window.h"
#include "platform/qt_text.h"

namespace tidemark {

namespace {

QMessageBox::Icon Qt_icon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information:
            return QMessageBox::Information;
        case MessageIcon::Exclamation:
            return QMessageBox::Warning;
        case MessageIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

// By itself a box is half as wide as the screen at most. This one is as wide as its lines are where
// the screen has room for that, so that they stay as they were written.
class MessageBox : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    bool event(QEvent* event) override {
        const bool is_handled = QMessageBox::event(event);
        const QEvent::Type type = event->type();
        if (type == QEvent::Show || type == QEvent::LayoutRequest || type == QEvent::FontChange)
            Unbreak_lines();
        return is_handled;
    }

  private:
    void Unbreak_lines() {
        constexpr int around = 160;  // pixels for the icon, the margins and the frame
        auto* const label = findChild<QLabel*>("qt_msgbox_label");
        if (!label || !label->wordWrap()) return;
        const int widest = label->fontMetrics().size(0, label->text()).width();
        if (widest + around > screen()->availableSize().width()) return;
        label->setWordWrap(false);
        layout()->activate();
        setFixedSize(layout()->totalSizeHint());
        QCoreApplication::removePostedEvents(this, QEvent::LayoutRequest);  // else it begins again
    }
};

}  // namespace

MessageAnswer QtMessages::Show(const Message& message) {
    const bool question = message.Buttons == MessageButtons::YesNo;
    const ActiveWindow active_window;
    QWidget* const in_use = QApplication::activeModalWidget();
    MessageBox box(Qt_icon(message.Icon), To_qt(message.Title), To_qt(message.Text),
                   question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                   in_use ? in_use : &owner_);
    box.setObjectName("MessageBox");
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    const int pressed = box.exec();
    if (!question) return MessageAnswer::OK;
    return pressed == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
}

}  // namespace tidemark
