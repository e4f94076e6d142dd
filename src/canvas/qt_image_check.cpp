#include "canvas/qt_image_check.h"

#include <algorithm>
#include <limits>

#include <QByteArray>

namespace tidemark {

namespace {

// How many comments and other such parts a file may have. The time for some steps of decoding
// grows with the square of their number. A file of a camera has a few dozen, one for every 64 KiB
// of its notes.
constexpr int MostParts = 10000;

// The bytes of a file by their positions. It is read in pieces, each of them once as long as the
// positions grow: to seek and read for every few bytes would take minutes for some files.
class FileBytes {
  public:
    explicit FileBytes(QIODevice& file) : file_(file), size_(file.size()) {}

    qint64 Size() const { return size_; }

    // -1 beyond the end.
    int At(qint64 position) {
        if (!Have(position)) return -1;
        return static_cast<quint8>(piece_.constData()[position - start_]);
    }

    // Two or four bytes, the least or the most significant one first; beyond the end they are 0.
    int Little_word(qint64 at) { return Byte(at) + (Byte(at + 1) << 8); }
    int Big_word(qint64 at) { return (Byte(at) << 8) + Byte(at + 1); }
    qint32 Little_long(qint64 at) {
        return static_cast<qint32>(static_cast<quint32>(Little_word(at)) +
                                   (static_cast<quint32>(Little_word(at + 2)) << 16));
    }

    // The first place of a byte from a position on; beyond the end when there is none.
    qint64 Find(char byte, qint64 position) {
        for (; Have(position); position = start_ + piece_.size())
            if (const auto at = piece_.indexOf(byte, position - start_); at >= 0)
                return start_ + at;
        return size_;
    }

  private:
    static constexpr qint64 PieceSize = 1 << 16;

    int Byte(qint64 at) { return std::max(At(at), 0); }

    bool Have(qint64 position) {
        return static_cast<quint64>(position - start_) < static_cast<quint64>(piece_.size()) ||
               Read_from(position);
    }

    bool Read_from(qint64 position) {
        if (position < 0 || position >= size_) return false;
        start_ = position;
        piece_ = file_.seek(position) ? file_.read(PieceSize) : QByteArray();
        return !piece_.isEmpty();
    }

    QIODevice& file_;
    qint64 size_;
    qint64 start_ = 0;
    QByteArray piece_;
};

// Blocks of 8 x 8 pixels.
qint64 Blocks(QSize size) {
    return ((qint64{size.width()} + 7) / 8) * ((qint64{size.height()} + 7) / 8);
}

// Whether a file can hold the picture at one bit for each block. In a JPEG each has a code for its
// brightness, and a code has at least one bit. A run length in a BMP has two bytes and makes 255
// pixels of one colour at most, which is more for each block.
bool Can_hold(QSize size, const FileBytes& bytes) {
    return Blocks(size) <= 8 * bytes.Size();
}

// Passes over a GIF's sub-blocks and the empty one that ends them. False when the file ends before.
bool Pass_sub_blocks(FileBytes& bytes, qint64& position) {
    int length = 0;
    while ((length = bytes.At(position)) > 0) position += 1 + length;
    ++position;
    return length == 0;
}

// Passes over a GIF's colour table, if the flags before it announce one.
void Pass_colours(int flags, qint64& position) {
    constexpr int announced = 0x80;
    if (flags & announced) position += 3 << ((flags & 7) + 1);
}

// How long a GIF is in one direction: as its screen, unless that is beyond belief for the picture
// that begins at `start` and is `length` long.
int GIF_length(int screen, int start, int length) {
    constexpr int ten_times = 10, small = 200;
    return screen == 0 || screen / ten_times > std::max(length, small) ? start + length : screen;
}

bool GIF_can_hold(QSize size, const FileBytes& bytes) {
    constexpr qint64 pixels_a_byte = 4096 * 8 / 12;  // a code of 12 bits for 4096 of one colour
    return qint64{size.width()} * size.height() <= bytes.Size() * pixels_a_byte;
}

// The scans of a JPEG. Each goes through all blocks, even if it tells nothing of them.
class Scans {
  public:
    bool Any() const { return count_ > 0; }

    // False for a scan too many. Usual are 10 or less, and hardly a small picture has more than 32.
    bool Add(QSize size) {
        constexpr qint64 harmless_number = 32, harmless_work = 1 << 25;
        ++count_;
        return count_ <= harmless_number || count_ * Blocks(size) <= harmless_work;
    }

  private:
    qint64 count_ = 0;
};

// Where the kind of the next mark in a JPEG is; beyond the end when there is none. Passes over fill
// bytes, and over what stands in the pixels: a byte of theirs, or a place to start again from.
qint64 Next_mark(FileBytes& bytes, qint64 position) {
    constexpr int mark = 0xFF;
    for (;; ++position) {
        if (bytes.At(position) != mark) position = bytes.Find(static_cast<char>(mark), position);
        int kind = mark;
        while (kind == mark) kind = bytes.At(++position);
        const bool stands_in_pixels = (kind & 0xFE) == 0 || (kind & 0xF8) == 0xD0;
        if (!stands_in_pixels) return position;
    }
}

}  // namespace

std::optional<QSize> Check_BMP(QIODevice& file) {
    FileBytes bytes(file);
    constexpr int header_size = 38, core_header = 12, run_lengths_8 = 1, run_lengths_4 = 2;
    if (bytes.Size() < header_size) return std::nullopt;

    const bool is_core = bytes.Little_long(14) == core_header;
    const auto core_number = [&](qint64 at) { return static_cast<qint16>(bytes.Little_word(at)); };
    const int width = is_core ? core_number(18) : bytes.Little_long(18);
    const int height = is_core ? core_number(20) : bytes.Little_long(22);
    const int bits = bytes.Little_word(is_core ? 24 : 28);
    const int compression = is_core ? 0 : bytes.Little_long(30);
    if (width <= 0 || height == 0 || height == std::numeric_limits<int>::min()) return std::nullopt;

    const QSize size(width, qAbs(height));  // a negative height: the rows go down
    const qint64 room = bytes.Size() - bytes.Little_long(10);
    const bool is_packed = compression == run_lengths_8 || compression == run_lengths_4;
    const qint64 row_size = (qint64{width} * bits + 31) / 32 * 4;
    const bool is_whole = is_packed ? bytes.Little_long(34) <= room && Can_hold(size, bytes)
                                    : row_size <= room / size.height();
    if (!is_whole) return std::nullopt;
    return size;
}

std::optional<QSize> Check_GIF(QIODevice& file) {
    FileBytes bytes(file);
    constexpr int extension = 0x21, picture = 0x2C;
    const int screen_width = bytes.Little_word(6), screen_height = bytes.Little_word(8);
    qint64 position = 13;
    Pass_colours(bytes.At(10), position);
    for (int parts = 0; bytes.At(position) == extension; ++parts)
        if (parts == MostParts || !Pass_sub_blocks(bytes, position += 2)) return std::nullopt;
    if (bytes.At(position) != picture) return std::nullopt;

    const int left = bytes.Little_word(position + 1), top = bytes.Little_word(position + 3);
    const QSize size(GIF_length(screen_width, left, bytes.Little_word(position + 5)),
                     GIF_length(screen_height, top, bytes.Little_word(position + 7)));
    // Of a picture that begins beside its screen Qt would show what the memory held before.
    if ((screen_width > 0 && left >= screen_width) || (screen_height > 0 && top >= screen_height))
        return std::nullopt;
    const int flags = bytes.At(position + 9);
    position += 10;
    Pass_colours(flags, position);
    ++position;  // the size of its codes
    if (!GIF_can_hold(size, bytes) || !Pass_sub_blocks(bytes, position)) return std::nullopt;
    return size;
}

std::optional<QSize> Check_JPEG(QIODevice& file) {
    FileBytes bytes(file);
    constexpr int start_of_scan = 0xDA, end = 0xD9;
    QSize size(0, 0);
    Scans scans;
    qint64 position = 2;
    for (int parts = 0; parts < MostParts; ++parts) {
        position = Next_mark(bytes, position);
        const int kind = bytes.At(position++);
        const bool is_frame = kind >= 0xC0 && kind <= 0xCF && (kind % 4 != 0 || kind == 0xC0);
        if (kind < 0) return std::nullopt;
        if (kind == end)
            return scans.Any() && Can_hold(size, bytes) ? std::optional(size) : std::nullopt;
        if (is_frame) size = {bytes.Big_word(position + 5), bytes.Big_word(position + 3)};
        if (kind == start_of_scan && !scans.Add(size)) return std::nullopt;
        position += bytes.Big_word(position);
    }
    return std::nullopt;
}

}  // namespace tidemark
