// tidemark-walk OUT: plays the sample through the real windows; files and pictures go to OUT.
#include <cstdio>
#include <exception>

#include <QFileInfo>
#include <QIcon>

#include "app/qt_application.h"
#include "walk/driver.h"
#include "walk/golden_gate.h"

int main(int argc, char** argv) {
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const tidemark::TidemarkApplication application(argc, argv);
    QGuiApplication::setWindowIcon(QIcon(TIDEMARK_SAMPLE_DIR "/../packaging/icons/64.png"));
    if (argc != 2) {
        std::fputs("Usage: tidemark-walk OUT\n", stderr);
        return 2;
    }
    try {
        tidemark::TidemarkMain window;
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) throw std::runtime_error("no window came up");
        tidemark::Play_golden_gate(
            window, {TIDEMARK_SAMPLE_DIR, STANDIN_COMPILER, QFileInfo(argv[1]).absoluteFilePath()});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
