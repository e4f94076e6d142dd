// The reader of background images with any bytes.
#include <cstdint>

#include <QBuffer>

#include "canvas/qt_image_file.h"
#include "check.h"

namespace tidemark {
namespace {

bool Is_small(QSize size) {
    constexpr int longest = 1000;
    return size.width() <= longest && size.height() <= longest;
}

QImage Read_image(QByteArray bytes) {
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    return Read_map_image(file, Is_small);
}

// The same file is the same picture every time: none of it is what the memory held before.
void Read_twice(const QByteArray& bytes) {
    const QImage image = Read_image(bytes);
    Check(image == Read_image(bytes), "a file is one picture");
    if (image.isNull()) return;
    Check(Is_small(image.size()), "a picture that does not fit is refused");
    Check(image.devicePixelRatio() == 1, "a pixel is a pixel");
}

}  // namespace
}  // namespace tidemark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidemark::Read_twice({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
    return 0;
}
