// Key codes as the handlers know them.
#pragma once

#include <QKeyEvent>

namespace tidemark {

inline constexpr int KeyDelete = 46;
inline constexpr int KeyE = 69;

// The 16-bit virtual key code of a key; 0 for a key that no handler asks for.
inline int Key_code(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Delete:
            return KeyDelete;
        case Qt::Key_E:
            return KeyE;
        default:
            return 0;
    }
}

}  // namespace tidemark
