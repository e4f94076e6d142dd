// Background image files, whole and spoilt.
#include <random>

#include <gtest/gtest.h>

#include "canvas/qt_image_file.h"
#include "canvas/test_images.h"
#include "fakes/temporary_folder.h"

namespace tidemark {
namespace {

QImage Read(QByteArray bytes, int most = 2000) {
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    return Read_map_image(file,
                          [most](QSize s) { return s.width() <= most && s.height() <= most; });
}

// A JPEG whose camera was turned by a quarter, with a preview that has an end mark of its own.
QByteArray Turned_JPEG() {
    const QByteArray note(
        "\xFF\xE1\0\x22"
        "Exif\0\0II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0\xFF\xD9\0\0",
        36);
    return JPEG_bytes(300, 200).insert(2, note);
}

TEST(ImageFileTest, EachKindIsReadPixelForPixelInItsOwnDepth) {
    struct Case {
        const char* What;
        QByteArray Bytes;
        QImage::Format Format;
    };
    for (const Case& c : {Case{"bmp 8", BMP_bytes(300, 200), QImage::Format_Indexed8},
                          {"bmp 24", Encoded(Red_and_blue(300, 200), "bmp"), QImage::Format_RGB32},
                          {"gif", GIF_bytes(300, 200), QImage::Format_RGB32},
                          {"jpeg", JPEG_bytes(300, 200), QImage::Format_RGB32},
                          {"jpeg, turned", Turned_JPEG(), QImage::Format_RGB32}}) {
        const QImage image = Read(c.Bytes);
        ASSERT_EQ(image.size(), QSize(300, 200)) << c.What;
        EXPECT_EQ(image.format(), c.Format) << c.What;
        EXPECT_GT(qRed(image.pixel(100, 199)), 240) << c.What;
        EXPECT_GT(qBlue(image.pixel(200, 0)), 240) << c.What;
    }
}

TEST(ImageFileTest, TheNameOfAFileChangesNothing) {
    const TemporaryFolder folder;
    Write_file(folder / "map@2x.jpg", BMP_bytes(300, 200));
    QFile file(QString::fromStdString(folder / "map@2x.jpg"));
    file.open(QIODevice::ReadOnly);
    const QImage image = Read_map_image(file, [](QSize) { return true; });
    EXPECT_EQ(image.deviceIndependentSize(), QSizeF(300, 200));
}

QByteArray With(QByteArray bytes, qsizetype at, const QByteArray& other) {
    return bytes.replace(at, other.size(), other);
}

TEST(ImageFileTest, BadFilesAreRefused) {
    const QByteArray bmp = BMP_bytes(300, 200), gif = GIF_bytes(300, 200),
                     jpeg = JPEG_bytes(300, 200);
    const QByteArray enormous("\xFF\xFF\xFF\xFF", 4);
    const auto jpeg_size = jpeg.indexOf(QByteArray("\xFF\xC0\0\x11\x08", 5)) + 5;
    struct Case {
        const char* What;
        QByteArray Bytes;
    };
    for (const Case& c : {
             Case{"nothing", ""},
             {"a text", "To whom it may concern"},
             {"a PNG", Encoded(Red_and_blue(300, 200), "png")},
             {"bmp, half", bmp.left(bmp.size() / 2)},
             {"bmp, a byte short", bmp.chopped(1)},
             {"bmp, header only", bmp.left(30)},
             {"bmp, no width", With(bmp, 18, QByteArray(4, '\0'))},
             {"bmp, negative width", With(bmp, 18, enormous)},
             {"bmp, 3 bits", With(bmp, 28, "\3")},
             {"bmp, 65535 x 65535", With(bmp, 18, QByteArray("\xFF\xFF\0\0\xFF\xFF\0\0", 8))},
             {"gif, half", gif.left(gif.size() / 2)},
             {"gif, without its end", gif.chopped(2)},
             {"gif, colours only", gif.left(150)},
             {"gif, no picture", With(gif, 13 + 128 * 3 + 8, ";")},
             {"gif, 65535 x 65535", With(With(gif, 6, enormous), 13 + 128 * 3 + 13, enormous)},
             {"jpeg, half", jpeg.left(jpeg.size() / 2)},
             {"jpeg, without its end", jpeg.chopped(1)},
             {"jpeg, only the preview ends", Turned_JPEG().chopped(2)},
             {"jpeg, header only", jpeg.left(20)},
             {"jpeg, 65535 x 65535", With(jpeg, jpeg_size, enormous)},
         })
        EXPECT_TRUE(Read(c.Bytes).isNull()) << c.What;
    EXPECT_TRUE(Read(bmp, 299).isNull());
    ASSERT_EQ(jpeg.mid(jpeg_size, 4), QByteArray("\0\xC8\1\x2C", 4));
}

// Bytes changed, taken away and put in at seeded places, most of them near the beginning.
TEST(ImageFileTest, SpoiltFilesGiveAnImageThatFitsOrNone) {
    std::mt19937 random(20260911);
    const auto below = [&](qsizetype limit) {
        return static_cast<qsizetype>(random() % static_cast<std::uint32_t>(limit));
    };
    for (const QByteArray& whole : {BMP_bytes(60, 40), GIF_bytes(60, 40), JPEG_bytes(60, 40)})
        for (int round = 0; round < 200; ++round) {
            QByteArray bytes = whole;
            for (qsizetype changes = 1 + below(4); changes > 0; --changes) {
                const qsizetype at =
                    below(round % 4 ? qMin<qsizetype>(64, bytes.size() - 1) : bytes.size() - 1);
                switch (below(8)) {
                    case 0:
                        bytes.remove(at, 1 + below(8));
                        break;
                    case 1:
                        bytes.insert(at, QByteArray(1 + below(8), '\xFF'));
                        break;
                    default:
                        bytes[at] = static_cast<char>(random());
                }
            }
            const QSize size = Read(bytes).size();
            ASSERT_TRUE(size.width() <= 2000 && size.height() <= 2000);
        }
}

}  // namespace
}  // namespace tidemark
