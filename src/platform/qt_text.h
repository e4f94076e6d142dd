// Between the rules' texts (UTF-8) and Qt's.
#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace tidemark {

inline QString To_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string From_qt(const QString& text) {
    return text.toStdString();
}

}  // namespace tidemark
