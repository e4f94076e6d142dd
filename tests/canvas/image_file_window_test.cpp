// Background image files, whole and spoilt.
#include <QElapsedTimer>
#include <QImageWriter>
#include <QtEndian>
#include <gtest/gtest.h>

#include "canvas/qt_image_file.h"
#include "canvas/test_images.h"

namespace tidemark {

static QImage Read(QByteArray bytes, int most = 2000) {
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    return Read_map_image(file,
                          [most](QSize s) { return s.width() <= most && s.height() <= most; });
}

// A JPEG whose camera was turned by a quarter, with a preview that has an end mark of its own.
static QByteArray Turned_JPEG() {
    const QByteArray note(
        "\xFF\xE1\0\x22"
        "Exif\0\0II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0\xFF\xD9\0\0",
        36);
    return JPEG_bytes(300, 200).insert(2, note);
}

TEST(ImageFileTest, EachKindIsReadPixelForPixelInItsOwnDepth) {
    for (const auto& [what, bytes, size, format] :
         {std::tuple{"bmp 8", BMP_bytes(300, 200), QSize{300, 200}, QImage::Format_Indexed8},
          {"bmp 24", Encoded(Red_and_blue(300, 200), "bmp"), {300, 200}, QImage::Format_RGB32},
          {"gif", GIF_bytes(), {2, 2}, QImage::Format_Indexed8},
          {"jpeg, turned", Turned_JPEG(), {300, 200}, QImage::Format_RGB32}}) {
        const QImage image = Read(bytes);
        ASSERT_EQ(image.size(), size) << what;
        EXPECT_EQ(image.format(), format) << what;
        EXPECT_GT(qRed(image.pixel(0, size.height() - 1)), 240) << what;
        EXPECT_GT(qBlue(image.pixel(size.width() - 1, 0)), 240) << what;
        EXPECT_EQ(image, QImage::fromData(bytes).convertToFormat(format)) << what;
    }
}

TEST(ImageFileTest, AGIFKeepsItsTransparentColour) {
    const QByteArray blue_is_transparent("!\xF9\4\1\0\0\1\0", 8);
    const QByteArray bytes = GIF_bytes().insert(19, blue_is_transparent);
    const QImage image = Read(bytes);
    EXPECT_EQ(image.format(), QImage::Format_Indexed8);
    EXPECT_EQ(image.convertToFormat(QImage::Format_ARGB32), QImage::fromData(bytes));
}

static QByteArray With(QByteArray bytes, qsizetype at, const QByteArray& other) {
    return bytes.replace(at, other.size(), other);
}

// The same BMP with its rows from the top down.
static QByteArray Top_down(const QByteArray& bmp, int width, int height, int bits) {
    const qsizetype row = (width * bits + 31) / 32 * 4, pixels = bmp.size() - row * height;
    QByteArray turned = bmp.left(pixels);
    for (int y = height - 1; y >= 0; --y) turned += bmp.mid(pixels + y * row, row);
    qToLittleEndian<qint32>(-height, &turned.data()[22]);
    return turned;
}

// With the short header of old, and colours of three bytes, all of them.
static QByteArray With_core_header(const QByteArray& bmp, int height, int bits) {
    const int pixels = qFromLittleEndian<qint32>(&bmp.data()[10]);
    QByteArray colours(bits > 8 ? 0 : 3 << bits, '\0');
    for (int i = 0; 54 + 4 * i < pixels; ++i) colours.replace(3 * i, 3, bmp.mid(54 + 4 * i, 3));
    QByteArray core = bmp.left(14) + QByteArray("\x0C\0\0\0", 4) + bmp.mid(18, 2) + bmp.mid(22, 2) +
                      bmp.mid(26, 4) + colours;
    qToLittleEndian<qint32>(static_cast<qint32>(core.size()), &core.data()[10]);
    qToLittleEndian<qint16>(static_cast<qint16>(height), &core.data()[20]);
    return core + bmp.mid(pixels);
}

TEST(ImageFileTest, ABMPMayGoFromTheTopDown) {
    for (const auto& [bits, format] : {std::pair{1, QImage::Format_Mono},
                                       {4, QImage::Format_Indexed8},
                                       {24, QImage::Format_RGB32}}) {
        QImage image = Red_and_blue(300, 200);
        image.setPixelColor(0, 0, Qt::blue);  // so that its top differs from its bottom
        image = image.convertToFormat(format);
        const QByteArray bmp = Encoded(image, "bmp"), turned = Top_down(bmp, 300, 200, bits);
        const QImage expected = Read(bmp);
        ASSERT_EQ(expected.size(), image.size()) << bits;
        EXPECT_EQ(Read(turned), expected) << bits;
        EXPECT_EQ(Read(With_core_header(turned, -200, bits)), expected) << bits;
        EXPECT_TRUE(Read(turned.chopped(1)).isNull()) << bits;
    }
}

// A JPEG of one colour has the fewest bytes for its blocks.
TEST(ImageFileTest, ALargePictureOfOneColourIsShown) {
    QImage white(10000, 10000, QImage::Format_Grayscale8);
    white.fill(Qt::white);
    for (const bool progressive : {false, true}) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QImageWriter writer(&buffer, "jpeg");
        writer.setOptimizedWrite(true);
        writer.setProgressiveScanWrite(progressive);
        ASSERT_TRUE(writer.write(white));
        EXPECT_EQ(Read(buffer.data(), 10000).size(), white.size());
    }
}

TEST(ImageFileTest, WhatWouldTakeMinutesOrGigabytesIsRefusedAtOnce) {
    constexpr qsizetype MiB = 1 << 20;
    const QByteArray jpeg = JPEG_bytes(300, 200), gif = GIF_bytes();
    const auto frame = jpeg.indexOf(QByteArray("\xFF\xC0\0\x11\x08", 5)) + 5;
    const auto scan = jpeg.indexOf("\xFF\xDA");
    const QByteArray most("\x7F\xFF\x7F\xFF", 4), end("\xFF\xD9");
    const QByteArray empty_scan("\xFF\xDA\0\x08\1\1\0\1\1\0", 10);
    QByteArray run_lengths = BMP_bytes(8, 8).chopped(32) + QByteArray("\0\1", 2);
    run_lengths[30] = 2;  // packed, 4 bits a pixel
    run_lengths.replace(34, 4, QByteArray("\2\0\0\0", 4));
    QElapsedTimer time;
    time.start();
    for (const auto& [what, bytes] : std::vector<std::pair<const char*, QByteArray>>{
             {"jpeg, a few bytes claim 32767 x 32767", With(jpeg, frame, most)},
             {"gif, the same", With(With(gif, 6, most), 32, most)},
             {"bmp, the same", With(run_lengths, 18, QByteArray("\0\x3F\0\0\0\x3F\0\0", 8))},
             {"jpeg, comments",
              jpeg.left(2) + QByteArray("\xFF\xFE\0\2", 4).repeated(2 * MiB) + jpeg.mid(2)},
             {"jpeg, fill bytes without end",
              jpeg.left(2) + QByteArray(8 * MiB, '\xFF') + jpeg.mid(2).chopped(2)},
             {"jpeg, scans",
              With(jpeg, frame, "\x07\xD0\x07\xD0").chopped(2) + empty_scan.repeated(600) + end},
             {"gif, comments", gif.left(19) + QByteArray("!\xFE\0", 3).repeated(MiB) + gif.mid(27)},
         })
        EXPECT_TRUE(Read(bytes, 32767).isNull()) << what;
    EXPECT_LT(time.elapsed(), 2000);
    EXPECT_EQ(Read(run_lengths).size(), QSize(8, 8)) << "nothing is wrong with it but the size";
    EXPECT_EQ(Read(jpeg.left(scan) + QByteArray(MiB, '\xFF') + jpeg.mid(scan)).height(), 200);
}

TEST(ImageFileTest, BadFilesAreRefused) {
    const QByteArray bmp = BMP_bytes(300, 200), gif = GIF_bytes(), jpeg = JPEG_bytes(300, 200);
    const QByteArray enormous("\xFF\xFF\xFF\xFF", 4);
    const auto jpeg_size = jpeg.indexOf(QByteArray("\xFF\xC0\0\x11\x08", 5)) + 5;
    for (const auto& [what, bytes] : std::vector<std::pair<const char*, QByteArray>>{
             {"nothing", ""},
             {"a text", "To whom it may concern"},
             {"a PNG", Encoded(Red_and_blue(300, 200), "png")},
             {"bmp, a byte short", bmp.chopped(1)},
             {"bmp, header only", bmp.left(30)},
             {"bmp, no width", With(bmp, 18, QByteArray(4, '\0'))},
             {"bmp, negative width", With(bmp, 18, enormous)},
             {"bmp, 3 bits", With(bmp, 28, "\3")},
             {"bmp, 65535 x 65535", With(bmp, 18, QByteArray("\xFF\xFF\0\0\xFF\xFF\0\0", 8))},
             {"gif, without its end", gif.chopped(2)},
             {"gif, colours only", gif.left(19)},
             {"gif, no picture", With(gif, 27, ";")},
             {"gif, 65535 x 65535", With(With(gif, 6, enormous), 32, enormous)},
             {"jpeg, without its end", jpeg.chopped(1)},
             {"jpeg, only the preview ends", Turned_JPEG().chopped(2)},
             {"jpeg, header only", jpeg.left(20)},
             {"jpeg, 65535 x 65535", With(jpeg, jpeg_size, enormous)}})
        EXPECT_TRUE(Read(bytes).isNull()) << what;
    EXPECT_TRUE(Read(bmp, 299).isNull());
}

}  // namespace tidemark
