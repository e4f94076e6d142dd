#include "platform/qt_patience.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QStatusBar>
#include <QTimer>

#include "platform/qt_text.h"

namespace tidemark {

void QtPatience::Over() {
    if (!waited_) return;
    waited_ = false;
    QGuiApplication::restoreOverrideCursor();
    status_bar_.clearMessage();
}

void QtPatience::Wait(const std::string& what_for, int milliseconds) {
    if (!waited_) QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    waited_ = true;
    status_bar_.showMessage(To_qt(what_for));
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace tidemark
