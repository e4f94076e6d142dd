#include "platform/qt_messages.h"

#include <QApplication>
#include <QMessageBox>

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

}  // namespace

MessageAnswer QtMessages::Show(const Message& message) {
    const bool question = message.Buttons == MessageButtons::YesNo;
    const ActiveWindow active_window;
    QWidget* const in_use = QApplication::activeModalWidget();
    QMessageBox box(Qt_icon(message.Icon), To_qt(message.Title), To_qt(message.Text),
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
