// Key codes as the handlers know them.
#pragma once

#include <QChar>
#include <QKeyEvent>

namespace tidemark {

inline constexpr int KeyDelete = 46;
inline constexpr int KeyE = 69;

// Whether the key of the letter E, where the keyboard's own letters are not Latin ones.
inline bool Is_E_of_other_letters(const QKeyEvent& event) {
    if (event.key() <= Qt::Key_AsciiTilde || event.key() >= Qt::Key_Escape ||
        QChar::script(static_cast<char32_t>(event.key())) == QChar::Script_Latin)
        return false;
#ifdef Q_OS_WIN
    return event.nativeVirtualKey() == KeyE;
#else
    constexpr quint32 scan_code_of_E = 26;
    return event.nativeScanCode() == scan_code_of_E;
#endif
}

// The 16-bit virtual key code of a key; 0 for a key that no handler asks for.
inline int Key_code(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Delete:
            return KeyDelete;
        case Qt::Key_E:
            return KeyE;
        default:
            return Is_E_of_other_letters(event) ? KeyE : 0;
    }
}

}  // namespace tidemark
