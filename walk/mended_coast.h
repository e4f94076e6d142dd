// A coast that is drawn badly, looked at by the coast check, mended and filled, on the real
// windows.
#pragma once

#include <functional>

#include <QString>
#include <QWidget>

#include "app/tidemark_main_window.h"

namespace tidemark {

// Keeps a picture of windows under a name.
using TakePicture = std::function<void(const QList<QWidget*>& windows, const QString& name)>;

// Draws in the ocean of the Golden Gate sample, which is open, at 100 %, and undoes all of it in
// the end. Throws std::runtime_error when something does not come out as it should.
void Draw_mend_and_fill(TidemarkMain& window, const TakePicture& take_picture);

}  // namespace tidemark
