// Images as files, for tests: whole ones to spoil.
#pragma once

#include <string>

#include <QBuffer>
#include <QFile>
#include <QImage>

namespace tidemark {

inline QByteArray Encoded(const QImage& image, const char* format) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 90);
    return buffer.data();
}

// A picture of two colours, left half red and right half blue, in 8 bits or in 32.
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

// The same as a GIF of 128 colours. Its table is cleared before the codes would grow beyond a
// byte, so nothing is packed and each byte of the data is one code.
inline QByteArray GIF_bytes(int width, int height) {
    constexpr int clear = 128, end = 129, block = 101;
    const auto word = [](int value) {
        return QByteArray(1, static_cast<char>(value & 255)) + static_cast<char>(value >> 8);
    };
    QByteArray bytes = "GIF89a" + word(width) + word(height) + QByteArray("\xF6\0\0", 3) +
                       QByteArray("\xFF\0\0\0\0\xFF", 6) + QByteArray(126 * 3, '\0') +
                       QByteArray("!\xFE\4note\0", 8) + ',' + word(0) + word(0) + word(width) +
                       word(height) + '\0' + '\7';
    QByteArray codes;
    for (int i = 0; i < width * height; ++i) {
        if (i % (block - 1) == 0) codes += static_cast<char>(clear);
        codes += static_cast<char>(i % width < width / 2 ? 0 : 1);
    }
    codes += static_cast<char>(end);
    for (qsizetype at = 0; at < codes.size(); at += block) {
        const QByteArray part = codes.mid(at, block);
        bytes += static_cast<char>(part.size()) + part;
    }
    return bytes + '\0' + ';';
}

inline void Write_file(const std::string& path, const QByteArray& bytes) {
    QFile file(QString::fromStdString(path));
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
}

}  // namespace tidemark
