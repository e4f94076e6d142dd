// The Output Preferences dialog on the screen.
#include "output/preferences_window.h"

#include <QTimer>

#include "fakes/window_test.h"

namespace tidemark {

TEST(PreferencesWindowTest, ItGrowsWithTheNamesWhileTheyAreTyped) {
    FakePlatform fake;
    Preferences dialog(fake.platform);
    QTimer::singleShot(0, &dialog, [&] {
        const int height = dialog.height();
        QString root;
        for (int i = 0; i < 20; ++i) root += "/a folder of scenery";
        Type(Control<QLineEdit>(dialog, "RootText"), root + "/Skye.asm");
        EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.height() > height; }));
        for (const char* const name : {"LWMlabel", "VTPlabel"}) {
            const auto& label = Control<QLabel>(dialog, name);
            EXPECT_GE(label.height(), label.heightForWidth(label.width())) << name;
        }
        EXPECT_FALSE(Control<QPushButton>(dialog, "FSBrowseButton").isEnabled()) << "no copy";
        Click(Control<QPushButton>(dialog, "OKbutton"));
    });
    EXPECT_TRUE(
        dialog.Ask({.RootText = "/out/Skye.asm", .FSname = "", .VTPCompile = true})->VTPCompile);
}

}  // namespace tidemark
