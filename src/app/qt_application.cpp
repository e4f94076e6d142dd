#include "app/qt_application.h"

#include <exception>

#include <QMessageBox>

namespace tidemark {

TidemarkApplication::TidemarkApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName("tidemark");
}

bool TidemarkApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
        Show_error(QString::fromUtf8(error.what()));
    }
    return false;
}

void TidemarkApplication::Show_error(const QString& what) {
    if (showing_error_) return;  // the box itself must not ask for another
    showing_error_ = true;
    QMessageBox box(QMessageBox::NoIcon, "Tidemark", what, QMessageBox::Ok, activeWindow());
    box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box.exec();
    showing_error_ = false;
}

}  // namespace tidemark
