// tidemark: the editor.
#include <cstdio>
#include <cstdlib>

#include <QCommandLineParser>
#include <QFileInfo>
#include <QIcon>
#include <QTimer>

#include "app/qt_application.h"
#include "app/tidemark_main_window.h"
#include "platform/folder.h"

namespace {

// The project file to open, if any. Needs no display, so that --help and --version always answer.
QStringList Project_argument(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("tidemark");
    QCoreApplication::setApplicationVersion(TIDEMARK_VERSION);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Draws coastlines, rivers, roads and land and water polygons over a map, as scenery for "
        "Flight Simulator 2002.");
    // The parser's own would bring "--help-all" along, for options of Qt.
    const QCommandLineOption help({"h", "help"}, "Displays help on commandline options.");
    parser.addOption(help);
    parser.addVersionOption();
    parser.addPositionalArgument("project", "The project file to open.", "[PROJECT.TDM]");
    parser.process(application);
    if (parser.isSet(help)) parser.showHelp();
    if (parser.positionalArguments().size() > 1) {
        std::fputs("tidemark: it opens one project at a time; see tidemark --help\n", stderr);
        std::exit(2);
    }
    return parser.positionalArguments();
}

}  // namespace

int main(int argc, char** argv) {
    const QStringList projects = Project_argument(argc, argv);
    tidemark::TidemarkApplication application(argc, argv);
    QGuiApplication::setDesktopFileName("tidemark");
    QGuiApplication::setWindowIcon(QIcon(":/tidemark.png"));
    tidemark::TidemarkMain window;
    window.show();
    // Opened by an event, so that an error is caught as in any other.
    for (const QString& path : projects)
        QTimer::singleShot(0, &window,
                           [&window, path] { window.Open(QFileInfo(path).absoluteFilePath()); });
    window.Keep_work_in(tidemark::State_folder());
    return QApplication::exec();
}
