// Image files before they are decoded: whether all of the picture is there, and whether decoding it
// takes no more memory and time than such a file can be worth.
#pragma once

#include <optional>

#include <QIODevice>
#include <QSize>

namespace tidemark {

// The size that a file of that kind says its picture has, in pixels, as Qt takes it; 0 x 0 when it
// does not say. Each function goes through the file once. `file` is open for reading and can be
// sought; it is left anywhere.
//
// Nothing for a file that ends early, which Qt's readers do not refuse: they would leave the rest
// of the picture grey, or whatever the memory held before. Nothing also for one that claims more
// pixels than its bytes can hold however well they are packed, since memory for all would be taken
// at once, and for one whose many parts would take minutes.
std::optional<QSize> Check_BMP(QIODevice& file);
std::optional<QSize> Check_GIF(QIODevice& file);  // its first picture, the only one shown
std::optional<QSize> Check_JPEG(QIODevice& file);

}  // namespace tidemark
