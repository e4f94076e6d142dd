#include "canvas/qt_image_file.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include <QImageReader>
#include <QScopeGuard>

#include "canvas/qt_image_check.h"

namespace tidemark {

namespace {

// The colours of a picture, numbered as they come. They are looked up for every pixel, so they lie
// in a table where each is at or soon after the place that its bits say.
class ColourNumbers {
  public:
    static constexpr int Most = 256;

    // -1 when there are too many colours.
    int Number(QRgb colour) {
        constexpr quint32 spread = 0x9E3779B1;
        quint32 at = colour * spread >> (32 - TableBits);
        while (table_[at].Number >= 0 && table_[at].Colour != colour) at = (at + 1) % TableSize;
        if (table_[at].Number < 0 && colours_.size() < Most) {
            table_[at] = {colour, static_cast<int>(colours_.size())};
            colours_.append(colour);
        }
        return table_[at].Number;
    }

    const QList<QRgb>& Colours() const { return colours_; }

  private:
    struct Entry {
        QRgb Colour = 0;
        int Number = -1;
    };
    static constexpr int TableBits = 12;
    static constexpr quint32 TableSize = 1 << TableBits;

    std::vector<Entry> table_ = std::vector<Entry>(TableSize);
    QList<QRgb> colours_;
};

// A 32-bit picture at one byte a pixel, which holds the same as long as it has no more than 256
// colours; otherwise the picture itself.
QImage With_palette(const QImage& picture) {
    QImage with_palette(picture.size(), QImage::Format_Indexed8);
    if (with_palette.isNull()) return picture;
    const QRgb opaque = picture.hasAlphaChannel() ? 0 : qRgb(0, 0, 0);
    ColourNumbers numbers;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        uchar* const to = with_palette.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            const int number = numbers.Number(from[x] | opaque);
            if (number < 0) return picture;
            to[x] = static_cast<uchar>(number);
        }
    }
    with_palette.setColorTable(numbers.Colours());
    return with_palette;
}

struct ImageKind {
    const char* Format;  // as Qt names it
    QByteArrayView Signature;
    std::optional<QSize> (*Check)(QIODevice&);
    // A packed file may pass over pixels: they have the first colour, but Qt would leave in them
    // what the memory held before.
    bool LeavesGaps;
    bool LosesPalette;  // Qt decodes its palette pictures to 32 bits a pixel
};

constexpr std::array<ImageKind, 3> ImageKinds{{
    {"bmp", "BM", Check_BMP, true, false},
    {"gif", "GIF8", Check_GIF, false, true},
    {"jpeg", "\xFF\xD8\xFF", Check_JPEG, false, false},
}};

// A pixel may name a colour that the file's table does not hold, which Qt would look up behind the
// table. Such a colour is black.
void Complete_palette(QImage& image) {
    if (image.pixelFormat().colorModel() != QPixelFormat::Indexed) return;
    QList<QRgb> colours = image.colorTable();
    colours.resize(qsizetype{1} << image.depth(), qRgb(0, 0, 0));
    image.setColorTable(colours);
}

// In whole MiB, at 32 bits a pixel. A damaged file that names a larger size further on gets no
// more.
int Size_in_memory(QSize size) {
    constexpr qint64 bytes_a_pixel = 4, MiB = 1 << 20;
    return static_cast<int>(bytes_a_pixel * size.width() * size.height() / MiB) + 1;
}

}  // namespace

QImage Read_map_image(QIODevice& file, const std::function<bool(QSize)>& fits) {
    const QByteArray begin = file.seek(0) ? file.read(4) : QByteArray();
    const auto kind = std::ranges::find_if(
        ImageKinds, [&](const ImageKind& k) { return begin.startsWith(k.Signature); });
    if (kind == ImageKinds.end()) return {};
    const auto claimed = kind->Check(file);
    if (!claimed || claimed->isEmpty() || !fits(*claimed) || !file.seek(0)) return {};

    QImageReader reader(&file, kind->Format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(false);
    const auto restore_limit = qScopeGuard(
        [limit = QImageReader::allocationLimit()] { QImageReader::setAllocationLimit(limit); });
    QImageReader::setAllocationLimit(Size_in_memory(*claimed));
    QImage image;
    if (kind->LeavesGaps) {
        image = QImage(*claimed, reader.imageFormat());
        image.fill(0);
    }
    if (!reader.read(&image) || !fits(image.size())) return {};
    if (kind->LosesPalette && image.depth() == 32) image = With_palette(image);
    Complete_palette(image);
    image.setDevicePixelRatio(1);  // a name such as "map@2x.bmp" would make it another
    return image;
}

}  // namespace tidemark
