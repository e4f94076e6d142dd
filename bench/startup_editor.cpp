// The editor's start-up, up to its first paint.
#include "app/qt_application.h"
#include "app/tidemark_main_window.h"
#include "first_paint.h"

int main(int argc, char** argv) {
    tidemark::TidemarkApplication application(argc, argv);
    const tidemark::FirstPaint first_paint(application);
    tidemark::TidemarkMain window;
    window.show();
    return QApplication::exec();
}
