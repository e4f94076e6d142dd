// map_memory FORMAT VIEW: a row of the table with the memory that the editor takes for a map of
// 10,000 x 10,000 pixels ("jpeg" or "bmp"), more than it takes without one. VIEW is how it is seen,
// "natural" or "whole".
#include <cstdio>

#include <QApplication>
#include <QImageReader>
#include <QProcess>

#include "canvas/map_view_window.h"
#include "process_memory.h"
#include "scan.h"

namespace tidemark {
namespace {

// Run in a process of its own, which has never held the picture before.
void Load(const QString& path, const QString& seen) {
    MapView view;
    view.resize(1600, 1000);
    view.show();
    QCoreApplication::processEvents();
    const double before = Process_MiB("VmHWM:");
    const bool is_shown = view.Show_image(From_qt(path));
    QCoreApplication::processEvents();
    if (seen == "whole") view.Zoom_whole();
    QCoreApplication::processEvents();
    if (is_shown) std::printf("%f", Process_MiB("VmHWM:") - before);
}

int Print_row(const QString& format, const QString& seen) {
    const QByteArray name = format.toUtf8();
    const auto& path = Scan::Large(name.constData()).Path();
    QProcess loading;
    loading.start(QCoreApplication::applicationFilePath(), {"load", To_qt(path), seen});
    loading.waitForFinished(-1);
    const double taken = loading.readAllStandardOutput().toDouble();
    const double decoded =
        static_cast<double>(QImage(To_qt(path)).sizeInBytes()) / (1024.0 * 1024.0);
    if (taken <= 0 || decoded <= 0) return 1;
    const bool is_whole = seen == "whole";
    std::printf("| memory of a 10,000 x 10,000 %s%s | %s | %.0f MiB | decoded: %.0f MiB | %.2f |\n",
                format == "bmp" ? "8-bit BMP" : "JPEG", is_whole ? ", seen whole" : "",
                is_whole ? "1.4x" : "1.25x", taken, decoded, taken / decoded);
    return 0;
}

}  // namespace
}  // namespace tidemark

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QImageReader::setAllocationLimit(0);
    if (argc == 3) return tidemark::Print_row(argv[1], argv[2]);
    if (argc != 4) return 2;
    tidemark::Load(argv[2], argv[3]);
    return 0;
}
