// Background image files, whole and spoilt.
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
