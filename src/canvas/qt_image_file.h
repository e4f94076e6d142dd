// Background image files: BMP, GIF and JPEG, told apart by their content and not by their name.
#pragma once

#include <functional>

#include <QIODevice>
#include <QImage>

namespace tidemark {

// Reads the image as it is: its own depth, no turning by camera data, one pixel for one pixel on
// every screen. `file` is open for reading and can be sought. `fits` is asked with the size that
// the file claims before memory is taken for it, and again with the decoded size. A null image
// stands for any failure: another kind of file, damage, one that ends early, a size that does not
// fit, or more memory than the machine has.
QImage Read_map_image(QIODevice& file, const std::function<bool(QSize)>& fits);

}  // namespace tidemark
