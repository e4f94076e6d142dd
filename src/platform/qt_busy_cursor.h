// The pointer while the program is busy.
#pragma once

#include <QGuiApplication>

namespace tidemark {

// As long as it lives, the pointer has this shape all over the program's windows.
class BusyCursor {
  public:
    explicit BusyCursor(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
};

}  // namespace tidemark
