// Pictures side by side in one, to see a whole walk at a glance.
#pragma once

#include <QStringList>

namespace tidemark {

// Joins the pictures of these names into `strip`, so many in a row, each no larger than a
// card's size. Throws std::runtime_error when one cannot be read or the strip cannot be written.
void Save_picture_strip(const QStringList& pictures, const QString& strip, int in_a_row = 4);

}  // namespace tidemark
