// The dialog Go To, by keys.
#include "georef/go_to_window.h"

#include "fakes/window_test.h"

namespace tidemark {

TEST(GoToTest, TypingInOneRowFillsTheOthersAndOnlyAPlaceOnTheMapIsTaken) {
    Project p;
    Place_area(p, 3, 5, 5, 7);
    p.BGLOD8X = 122;
    p.BGLOD8Y = 148;
    GoTo dialog;
    Plan plan;
    plan.Then([](QWidget& shown) {
        const auto text = [&](const char* name) {
            return Control<QLineEdit>(shown, name).text().toStdString();
        };
        EXPECT_EQ(text("GoToColumn") + "/" + text("GoToRow"), "3/5");
        Type(Control<QLineEdit>(shown, "GoToColumn"), "4");
        EXPECT_EQ(text("GoToVTPX") + "/" + text("GoToVTPY"), "5232/5488");
        EXPECT_EQ(text("GoToLongitude"), "122:44:47.7 W");
        Type(Control<QLineEdit>(shown, "GoToVTPX"), "9999");
        EXPECT_FALSE(Control<QPushButton>(shown, "OkButton").isEnabled());
        EXPECT_EQ(Control<QLabel>(shown, "RemarkLabel").text(), "This place is not on the map");
        Type(Control<QLineEdit>(shown, "GoToVTPX"), "5000");
        Press(shown, Qt::Key_Return);
    });
    EXPECT_EQ(dialog.Ask(p, {4848, 5360}), (VTPPlace{5000, 5488}));
    plan.Then([](QWidget& shown) { Press(shown, Qt::Key_Escape); });
    EXPECT_EQ(dialog.Ask(p, {4848, 5360}), std::nullopt);
    EXPECT_NO_THROW(plan.Finish());
}

}  // namespace tidemark
