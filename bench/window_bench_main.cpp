// The benchmarks of the windows, off screen.
#include <QApplication>

#include "table_reporter.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return tidemark::Run_benchmarks(argc, argv);
}
