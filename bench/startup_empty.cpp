// The start-up of an empty Qt program with a main window and a tool window; with arguments, the
// main window has a menu bar with these words, for which Qt loads its fonts and image plugins.
#include <QMainWindow>
#include <QMenuBar>

#include "first_paint.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const tidemark::FirstPaint first_paint(application);
    QMainWindow window;
    QWidget tool(&window, Qt::Tool);
    window.resize(1280, 960);  // the editor's sizes
    tool.resize(332, 960);
    for (int i = 1; i < argc; ++i) window.menuBar()->addMenu(argv[i]);
    window.show();
    tool.show();
    return QApplication::exec();
}
