// Image files before they are decoded: whether all of the picture is there, and whether decoding it
// takes no more memory and time than such a file can be worth.
#pragma once

#include <optional>

#include <QIODevice>
#include <QSize>

namespace tidemark {

struct ImageClaim {
    QSize Size;  // of the picture, in pixels; of 0 x 0 when the file does not say
    // A packed BMP may pass over pixels: they have the first colour, but Qt would leave in them
    // what the memory held before.
    bool MayHaveGaps = false;
};

// What a file of that kind says of its picture, as Qt takes it. Each function goes through the file
// once. `file` is open for reading and can be sought; it is left anywhere.
//
// Nothing for a file that ends early, which Qt's readers do not refuse: they would leave the rest
// of the picture grey, or whatever the memory held before. Nothing also for one that claims more
// pixels than its bytes can hold however well they are packed, since memory for all would be taken
// at once, and for one whose many parts would take minutes.
std::optional<ImageClaim> Check_BMP(QIODevice& file);
std::optional<ImageClaim> Check_GIF(QIODevice& file);  // its first picture, the only one shown
std::optional<ImageClaim> Check_JPEG(QIODevice& file);

}  // namespace tidemark
