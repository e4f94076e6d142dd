// Scanned maps for the benchmarks.
#pragma once

#include <string>

#include <QImage>

#include "fakes/temporary_folder.h"
#include "platform/qt_text.h"

namespace tidemark {

// A picture with the detail of a scanned map, in a file of its own.
class Scan {
  public:
    Scan(QSize size, const char* format) : path_(folder_ / "map." + format) {
        QImage image(size, QImage::Format_Indexed8);
        QList<QRgb> colours;
        for (int i = 0; i < 256; ++i) colours << qRgb(i, 255 - i / 2, (i * 7) % 256);
        image.setColorTable(colours);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                image.scanLine(y)[x] = static_cast<uchar>((x / 3 + (y * y) / 900 + x * y / 70000));
        image.save(To_qt(path_), format, 85);
    }
    const std::string& Path() const { return path_; }

    static const Scan& Large(const char* format) {
        constexpr QSize size(10000, 10000);
        if (format[0] == 'j') {
            static const Scan jpeg(size, "jpeg");
            return jpeg;
        }
        static const Scan bmp(size, "bmp");
        return bmp;
    }

  private:
    TemporaryFolder folder_;
    std::string path_;
};

}  // namespace tidemark
