// Between the rules' texts (UTF-8) and Qt's.
#pragma once

#include <string>
#include <string_view>

#include <QDir>
#include <QString>

namespace tidemark {

inline QString To_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string From_qt(const QString& text) {
    return text.toStdString();
}

// A path as the system writes it: on Windows with "\" between folders.
inline std::string Path_from_qt(const QString& path) {
    return From_qt(QDir::toNativeSeparators(path));
}

}  // namespace tidemark
