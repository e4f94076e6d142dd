// tidemark-walk OUT: plays the sample through the real windows; files and pictures go to OUT.
// tidemark-walk OUT --until-killed: the editor that the walk starts and kills.
#include <cstdio>
#include <exception>

#include <QFileInfo>
#include <QIcon>

#include "app/qt_application.h"
#include "walk/driver.h"
#include "walk/golden_gate.h"
#include "walk/killed_editor.h"

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const tidemark::TidemarkApplication application(argc, argv);
    QGuiApplication::setWindowIcon(QIcon(TIDEMARK_SAMPLE_DIR "/../packaging/icons/64.png"));
    const bool is_to_be_killed = argc == 3 && argv[2] == tidemark::UntilKilled;
    if (argc != 2 && !is_to_be_killed) {
        std::fputs("Usage: tidemark-walk OUT\n", stderr);
        return 2;
    }
    try {
        tidemark::TidemarkMain window;
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) throw std::runtime_error("no window came up");
        const QString out = QFileInfo(argv[1]).absoluteFilePath();
        if (is_to_be_killed) return tidemark::Work_until_killed(window, out);
        tidemark::Play_golden_gate(window, {TIDEMARK_SAMPLE_DIR, STANDIN_COMPILER, out});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
