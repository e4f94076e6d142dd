#include "canvas/qt_image_file.h"

#include <algorithm>
#include <array>

#include <QHash>
#include <QImageReader>
#include <QScopeGuard>
#include <QtEndian>

namespace tidemark {

namespace {

// A file that ends early is refused, which Qt's readers do not do: they would leave the rest of the
// picture grey, or whatever the memory held before.

QByteArray Bytes_at(QIODevice& file, qint64 position, qint64 count) {
    return position < file.size() && file.seek(position) ? file.read(count) : QByteArray();
}

bool Is_whole_BMP(QIODevice& file) {
    const QByteArray header = Bytes_at(file, 0, 38);
    if (header.size() < 38) return false;
    const auto long_at = [&](int at) {
        return qint64{qFromLittleEndian<qint32>(&header.data()[at])};
    };
    const auto word_at = [&](int at) {
        return qint64{qFromLittleEndian<quint16>(&header.data()[at])};
    };
    constexpr qint64 core_header = 12;
    constexpr qint64 run_lengths_8 = 1, run_lengths_4 = 2;

    const bool is_core = long_at(14) == core_header;
    const qint64 width = is_core ? word_at(18) : long_at(18);
    const qint64 height = qAbs(is_core ? word_at(20) : long_at(22));
    const qint64 bits = is_core ? word_at(24) : word_at(28);
    const qint64 compression = is_core ? 0 : long_at(30);
    const bool is_packed = compression == run_lengths_8 || compression == run_lengths_4;
    const qint64 row_size = (width * bits + 31) / 32 * 4;
    const qint64 room = file.size() - long_at(10);
    if (is_packed) return long_at(34) <= room;
    return height == 0 || row_size <= room / height;
}

// Skips a GIF's sub-blocks up to and with the empty one that ends them.
bool Skip_sub_blocks(QIODevice& file) {
    for (char length = 0; file.getChar(&length);) {
        if (length == 0) return true;
        const auto count = static_cast<quint8>(length);
        if (file.skip(count) != count) return false;
    }
    return false;
}

// Skips a GIF's colour table, if its flags announce one.
bool Skip_colours(QIODevice& file, char flags) {
    constexpr int announced = 0x80;
    if (!(flags & announced)) return true;
    const int size = 3 << ((flags & 7) + 1);
    return file.skip(size) == size;
}

// Of a picture that begins beside its screen Qt would show what the memory held before.
bool Begins_on_screen(const QByteArray& description, const QByteArray& screen) {
    const auto word = [](const QByteArray& bytes, int at) {
        return qFromLittleEndian<quint16>(&bytes.data()[at]);
    };
    const auto begins_within = [&](int start, int size) {
        return word(screen, size) == 0 || word(description, start) < word(screen, size);
    };
    return begins_within(0, 6) && begins_within(2, 8);
}

// Whether the first picture is all there; what follows it is not used.
bool Is_whole_GIF(QIODevice& file) {
    constexpr char extension = 0x21, picture = 0x2C;
    const QByteArray screen = Bytes_at(file, 0, 13);
    if (screen.size() < 13 || !Skip_colours(file, screen[10])) return false;
    char kind = 0;
    while (file.getChar(&kind) && kind == extension)
        if (file.skip(1) != 1 || !Skip_sub_blocks(file)) return false;
    if (kind != picture) return false;
    const QByteArray description = file.read(9);
    return description.size() == 9 && Begins_on_screen(description, screen) &&
           Skip_colours(file, description[8]) && file.skip(1) == 1 && Skip_sub_blocks(file);
}

// Where the pixels of a JPEG begin; nothing that comes before, such as a preview, counts. -1 when
// the file has none.
qint64 JPEG_scan(QIODevice& file) {
    constexpr quint8 marker = 0xFF, start_of_scan = 0xDA;
    for (qint64 position = 2;;) {
        const QByteArray segment = Bytes_at(file, position, 4);
        if (segment.size() < 4 || static_cast<quint8>(segment[0]) != marker) return -1;
        if (static_cast<quint8>(segment[1]) == marker) {  // a fill byte
            ++position;
            continue;
        }
        if (static_cast<quint8>(segment[1]) == start_of_scan) return position;
        position += 2 + qFromBigEndian<quint16>(&segment.data()[2]);
    }
}

// Whether the end mark is there. It is looked for from the end, since that is where it is.
bool Is_whole_JPEG(QIODevice& file) {
    static const QByteArray end_mark("\xFF\xD9");
    constexpr qint64 step = 1 << 16;
    const qint64 scan = JPEG_scan(file);
    if (scan < 0) return false;
    for (qint64 end = file.size(); end > scan; end -= step) {
        const qint64 begin = std::max(scan, end - step);
        if (Bytes_at(file, begin, end - begin + 1).contains(end_mark)) return true;
    }
    return false;
}

// A 32-bit picture at one byte a pixel, which holds the same as long as it has no more than 256
// colours; otherwise the picture itself.
QImage With_palette(const QImage& picture) {
    constexpr qsizetype most_colours = 256;
    QImage with_palette(picture.size(), QImage::Format_Indexed8);
    if (with_palette.isNull()) return picture;
    const QRgb opaque = picture.hasAlphaChannel() ? 0 : qRgb(0, 0, 0);
    QList<QRgb> colours;
    QHash<QRgb, uchar> numbers;
    auto number = numbers.cend();  // of the pixel before, whose colour most pixels share
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        uchar* const to = with_palette.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = from[x] | opaque;
            if (number == numbers.cend() || number.key() != colour)
                number = numbers.constFind(colour);
            if (number == numbers.cend()) {
                if (colours.size() == most_colours) return picture;
                number = numbers.insert(colour, static_cast<uchar>(colours.size()));
                colours.append(colour);
            }
            to[x] = *number;
        }
    }
    with_palette.setColorTable(colours);
    return with_palette;
}

struct ImageKind {
    const char* Format;  // as Qt names it
    QByteArrayView Signature;
    bool (*Is_whole)(QIODevice&);
    // A packed file may pass over pixels: they have the first colour, but Qt would leave in them
    // what the memory held before.
    bool LeavesGaps;
    bool LosesPalette;  // Qt decodes its palette pictures to 32 bits a pixel
};

constexpr std::array<ImageKind, 3> ImageKinds{{
    {"bmp", "BM", Is_whole_BMP, true, false},
    {"gif", "GIF8", Is_whole_GIF, false, true},
    {"jpeg", "\xFF\xD8\xFF", Is_whole_JPEG, false, false},
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
    const QByteArray begin = Bytes_at(file, 0, 4);
    const auto kind = std::ranges::find_if(
        ImageKinds, [&](const ImageKind& k) { return begin.startsWith(k.Signature); });
    if (kind == ImageKinds.end() || !kind->Is_whole(file) || !file.seek(0)) return {};

    QImageReader reader(&file, kind->Format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(false);
    const QSize claimed = reader.size();
    if (claimed.isEmpty() || !fits(claimed)) return {};
    const auto restore_limit = qScopeGuard(
        [limit = QImageReader::allocationLimit()] { QImageReader::setAllocationLimit(limit); });
    QImageReader::setAllocationLimit(Size_in_memory(claimed));
    QImage image;
    if (kind->LeavesGaps) {
        image = QImage(claimed, reader.imageFormat());
        image.fill(0);
    }
    if (!reader.read(&image) || !fits(image.size())) return {};
    if (kind->LosesPalette && image.depth() == 32) image = With_palette(image);
    Complete_palette(image);
    image.setDevicePixelRatio(1);  // a name such as "map@2x.bmp" would make it another
    return image;
}

}  // namespace tidemark
