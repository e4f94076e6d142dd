// What the walk holds to be true.
#pragma once

#include <stdexcept>

#include <QString>

namespace tidemark {

inline void Check(bool holds, const QString& what) {
    if (!holds) throw std::runtime_error(("the walk: " + what).toStdString());
}

}  // namespace tidemark
