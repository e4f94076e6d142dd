#include "canvas/qt_map_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <QPainter>

namespace tidemark {

namespace {

QRgb* Row(QImage& image, int y) {
    return reinterpret_cast<QRgb*>(image.scanLine(y));
}

const QRgb* Row(const QImage& image, int y) {
    return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

// A part of an image at 32 bits a pixel, without alpha. It may look into the image itself.
QImage Opaque_part(const QImage& image, const QRect& part) {
    if (image.format() == QImage::Format_RGB32)
        return {reinterpret_cast<const uchar*>(Row(image, part.top()) + part.left()), part.width(),
                part.height(), image.bytesPerLine(), QImage::Format_RGB32};
    if (!image.hasAlphaChannel()) return image.copy(part).convertToFormat(QImage::Format_RGB32);
    QImage opaque(part.size(), QImage::Format_RGB32);
    opaque.fill(Qt::white);
    QPainter(&opaque).drawImage(QPoint(0, 0), image, part);
    return opaque;
}

constexpr QRgb EvenChannels = 0x00FF00FF;

// The mean of four colours; two channels are added at a time.
QRgb Mean(QRgb a, QRgb b, QRgb c, QRgb d) {
    constexpr QRgb half = 0x00020002;
    const auto sums = [&](int shift) {
        return (a >> shift & EvenChannels) + (b >> shift & EvenChannels) +
               (c >> shift & EvenChannels) + (d >> shift & EvenChannels) + half;
    };
    return (sums(0) >> 2 & EvenChannels) | (sums(8) >> 2 & EvenChannels) << 8;
}

// From a to b by `weight` 256ths.
QRgb Blend(QRgb a, QRgb b, quint32 weight) {
    const auto sums = [&](int shift) {
        return (a >> shift & EvenChannels) * (256 - weight) + (b >> shift & EvenChannels) * weight;
    };
    return (sums(0) >> 8 & EvenChannels) | (sums(8) & ~EvenChannels);
}

// Half as large, rounded up; null when there is no memory for it.
QImage Half(const QImage& image) {
    constexpr int rows_at_a_time = 64;  // of an image that is not at 32 bits a pixel
    const int width = image.width(), height = image.height();
    QImage half((width + 1) / 2, (height + 1) / 2, QImage::Format_RGB32);
    if (half.isNull()) return half;
    for (int top = 0; top < height; top += rows_at_a_time) {
        const int rows = std::min(rows_at_a_time, height - top);
        const QImage strip = Opaque_part(image, {0, top, width, rows});
        for (int y = 0; y < rows; y += 2) {
            const QRgb* const upper = Row(strip, y);
            const QRgb* const lower = Row(strip, std::min(y + 1, rows - 1));
            QRgb* const to = Row(half, (top + y) / 2);
            for (int x = 0, from = 0; x < width / 2; ++x, from += 2)
                to[x] = Mean(upper[from], upper[from + 1], lower[from], lower[from + 1]);
            if (width % 2)
                to[width / 2] =
                    Mean(upper[width - 1], upper[width - 1], lower[width - 1], lower[width - 1]);
        }
    }
    return half;
}

// What a row or column of pixels is made of: the one at First and, by Weight 256ths, the next.
struct Source {
    int First;
    quint32 Weight;
    bool operator==(const Source&) const = default;
};

// `start` is the place of the first pixel along the grid, `length` that of the image. A centre that
// falls between two pixels of the image shows the first of them, as Qt's painter has it.
std::vector<Source> Nearest(int count, double start, double factor, int length) {
    std::vector<Source> sources;
    for (int i = 0; i < count; ++i) {
        const int at = static_cast<int>(std::ceil((start + i + 0.5) / factor)) - 1;
        sources.push_back({std::clamp(at, 0, length - 1), 0});
    }
    return sources;
}

std::vector<Source> Between(int count, double start, double factor, int length) {
    std::vector<Source> sources;
    for (int i = 0; i < count; ++i) {
        const double at = std::clamp((start + i + 0.5) / factor - 0.5, 0.0, length - 1.0);
        const double first = std::floor(at);
        sources.push_back({static_cast<int>(first), static_cast<quint32>((at - first) * 256)});
    }
    return sources;
}

// One row of pixels, from one or two rows of the image in which the columns' numbers begin at
// `left`. `blended` is room for one of them.
void Fill_row(QRgb* to, const std::vector<Source>& columns, int left, const QRgb* row,
              const QRgb* next, quint32 weight, std::vector<QRgb>& blended) {
    if (weight > 0) {
        for (std::size_t x = 0; x < blended.size(); ++x)
            blended[x] = Blend(row[x], next[x], weight);
        row = blended.data();
    }
    for (const Source& column : columns) {
        const QRgb* const from = row + (column.First - left);
        *to++ = column.Weight > 0 ? Blend(from[0], from[1], column.Weight) : from[0];
    }
}

QImage Resampled(const QImage& image, const std::vector<Source>& columns,
                 const std::vector<Source>& rows) {
    const auto past = [](const Source& last) { return last.First + (last.Weight > 0 ? 1 : 0); };
    const QRect used(QPoint(columns.front().First, rows.front().First),
                     QPoint(past(columns.back()), past(rows.back())));
    const QImage from = Opaque_part(image, used);
    QImage pixels(static_cast<int>(columns.size()), static_cast<int>(rows.size()),
                  QImage::Format_RGB32);
    std::vector<QRgb> blended(static_cast<std::size_t>(used.width()));
    for (int y = 0; y < pixels.height(); ++y) {
        const Source row = rows[static_cast<std::size_t>(y)];
        if (y > 0 && row == rows[static_cast<std::size_t>(y - 1)]) {
            std::copy_n(Row(std::as_const(pixels), y - 1), columns.size(), Row(pixels, y));
            continue;
        }
        const int at = row.First - used.top();
        Fill_row(Row(pixels, y), columns, used.left(), Row(from, at),
                 Row(from, std::min(at + 1, from.height() - 1)), row.Weight, blended);
    }
    return pixels;
}

}  // namespace

void MapPicture::Take(QImage image) {
    image_ = std::move(image);
    halves_.clear();
}

int MapPicture::Halve(int times) {
    while (static_cast<int>(halves_.size()) < times) {
        QImage half = Half(Halved(static_cast<int>(halves_.size())));
        if (half.isNull()) return static_cast<int>(halves_.size());
        halves_.push_back(std::move(half));
    }
    return times;
}

const QImage& MapPicture::Halved(int times) const {
    return times == 0 ? image_ : halves_[static_cast<std::size_t>(times - 1)];
}

QImage MapPicture::Pixels(const QRect& part, const PixelGrid& grid) {
    // What is shrunk comes from the smallest half that is not smaller than it: shrunk to less than
    // a half, neighbours of neighbours would be left out.
    int times = 0;
    while (std::ldexp(grid.Factor, times + 1) <= 1) ++times;
    times = Halve(times);
    const QImage& image = Halved(times);
    const double factor = std::ldexp(grid.Factor, times);
    const auto sources = factor < 1 ? Between : Nearest;
    return Resampled(image, sources(part.width(), grid.Left + part.left(), factor, image.width()),
                     sources(part.height(), grid.Top + part.top(), factor, image.height()));
}

}  // namespace tidemark
