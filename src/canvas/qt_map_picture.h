// The background image at every zoom.
#pragma once

#include <vector>

#include <QImage>
#include <QRect>

namespace tidemark {

// Where the pixels of a picture of the map lie on it: the centre of pixel (x, y) shows the canvas
// at ((Left + x + 0.5) / Factor, (Top + y + 0.5) / Factor). A pixel's colour follows from its place
// alone, so a picture that is painted in parts equals one that is painted whole.
struct PixelGrid {
    double Factor;  // pixels to one canvas pixel
    double Left, Top;
    bool operator==(const PixelGrid&) const = default;
};

// Enlarged, every pixel of the image shows as a block of its colour; shrunk, as the mean of its
// neighbours. For that the halved image is kept, and its halves, each made when it is first needed:
// together at most a third of a 32-bit image.
class MapPicture {
  public:
    void Take(QImage image);
    QSize Size() const { return image_.size(); }

    // The pixels of `part`, all of which lie on the map. Where the image is transparent it is
    // white.
    QImage Pixels(const QRect& part, const PixelGrid& grid);

  private:
    // The image halved `times` times, or as often as the memory allows.
    int Halve(int times);
    const QImage& Halved(int times) const;

    QImage image_;
    std::vector<QImage> halves_;
};

}  // namespace tidemark
