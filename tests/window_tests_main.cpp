// Tests of the windows: real controls and real events, off screen.
#include <gtest/gtest.h>

#include "app/qt_application.h"

#ifdef __SANITIZE_ADDRESS__
// The leak check stumbles over the threads of Qt's image code as the program ends; it stays on for
// the tests of the rules.
extern "C" const char* __asan_default_options() {  // NOLINT: the sanitizer's own name
    return "detect_leaks=0";
}
#endif

int main(int argc, char** argv) {
    // With a screen of the caller's own, if there is one.
    if (!qgetenv("QT_QPA_PLATFORM").startsWith("offscreen"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    tidemark::TidemarkApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
