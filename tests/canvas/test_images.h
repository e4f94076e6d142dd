// Images as files, for tests: whole ones to spoil. Their left half is red, their right half blue.
#pragma once

#include <QBuffer>
#include <QImage>

namespace tidemark {

inline QByteArray Encoded(const QImage& image, const char* format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 90);
    return buffer.data();
}

inline QImage Red_and_blue(int width, int height, QImage::Format format = QImage::Format_RGB32) {
    QImage image(width, height, QImage::Format_Indexed8);
    image.setColorTable({qRgb(255, 0, 0), qRgb(0, 0, 255)});
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) image.setPixel(x, y, x < width / 2 ? 0 : 1);
    return image.convertToFormat(format);
}

inline QByteArray BMP_bytes(int width, int height) {
    return Encoded(Red_and_blue(width, height, QImage::Format_Indexed8), "bmp");
}

inline QByteArray JPEG_bytes(int width, int height) {
    return Encoded(Red_and_blue(width, height), "jpeg");
}

// Of 2 x 2 pixels: the screen with its two colours, a comment, the picture.
inline QByteArray GIF_bytes() {
    return QByteArray("GIF89a\2\0\2\0\x80\0\0\xFF\0\0\0\0\xFF", 19) +
           QByteArray("!\xFE\4note\0", 8) + QByteArray(",\0\0\0\0\2\0\2\0\0\2\2\x44\x5C\0;", 16);
}

}  // namespace tidemark
