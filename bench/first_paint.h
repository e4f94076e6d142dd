// Ends a program when its windows have been painted for the first time.
#pragma once

#include <cstdio>
#include <set>

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include "process_memory.h"

namespace tidemark {

// Ends the program once two windows have been painted, and prints its resident memory in MiB.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(QApplication& application) { application.installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* const widget = qobject_cast<QWidget*>(object);
        if (event->type() == QEvent::Paint && widget && widget->isWindow()) {
            painted_.insert(widget);
            if (painted_.size() == 2) QTimer::singleShot(0, [] { End(); });
        }
        return false;
    }

  private:
    static void End() {
        std::printf("%.0f\n", Process_MiB("VmRSS:"));
        QApplication::quit();
    }

    std::set<const QWidget*> painted_;
};

}  // namespace tidemark
