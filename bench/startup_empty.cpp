// The start-up of an empty Qt program with a main window and a tool window; with an argument, the
// main window has a menu bar with that one word, for which Qt loads its fonts and image plugins.
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
    if (argc > 1) window.menuBar()->addMenu(argv[1]);
    window.show();
    tool.show();
    return QApplication::exec();
}
