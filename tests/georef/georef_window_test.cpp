// Background Properties and the Cell Calculator, by mouse and keys.
#include "fakes/window_test.h"
#include "georef/background_properties_window.h"

namespace tidemark {

static QString Text(QWidget& dialog, const char* name) {
    return Control<QWidget>(dialog, name).property("text").toString();
}

TEST(GeorefWindowTest, TheDialogComesBackUntilItsValuesAreRightAndTakesTheCalculatorsCell) {
    Project project;
    Session session;
    RecordingMessages messages;
    CellCalculator calculator(session, messages);
    BGproperties properties(session, calculator);
    Plan plan;
    project.BGLOD8X = 5;
    plan.Then([](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Tidemark - Background Properties");
            EXPECT_EQ(Text(dialog, "LOD8X"), "5");
            Type(Control<QLineEdit>(dialog, "LOD8X"), "800");
            // In the order in which Tab goes through the fields.
            for (const char* const typed : {"190.6", "", "3", "4", "2", "4"}) {
                QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
                if (*typed) QTest::keyClicks(dialog.focusWidget(), typed);
            }
            Press(*dialog.focusWidget(), Qt::Key_Return);
            EXPECT_EQ(Text(dialog, "LOD8Y"), " 191");
        })
        .Then([](QWidget& dialog) {
            EXPECT_EQ(Text(dialog, "LOD8X") + "/" + Text(dialog, "LOD8Y"), "5/191");
            Click(Control<QPushButton>(dialog, "ShowCalc"));  // the next step comes up inside
            EXPECT_EQ(Text(dialog, "LOD8Y"), "191") << "No was answered";
            Type(Control<QLineEdit>(dialog, "LOD13brX"), "5");
            Type(Control<QLineEdit>(dialog, "LOD8X"), "15");
            Type(Control<QLineEdit>(dialog, "LOD8Y"), "190");
            EXPECT_EQ(Text(dialog, "LatLabel") + Text(dialog, "LonLabel"),
                      "( Appoximate Latitude of this cell is N 22.85 )"
                      "( Appoximate Longitude of this cell is W 172.5 )");
            Press(dialog, Qt::Key_Escape);  // as OK
        })
        .Then([](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Tidemark - Cell Calculator");
            Type(Control<QLineEdit>(dialog, "CalcLatText"), "91:0:0");
            for (const bool stays_open : {true, false}) {
                Press(dialog, Qt::Key_Return);
                EXPECT_EQ(dialog.isVisible(), stays_open);
                EXPECT_EQ(Text(dialog, "CalcLatText"), "00:00:00.0");
            }
        });
    Ask_background_properties(
        project, [&](const GeoreferenceTexts& texts) { return properties.Ask(texts); }, 1536, 256,
        messages);
    EXPECT_NO_THROW(plan.Finish());
    EXPECT_TRUE(
        messages.Said().ends_with("copy these co-ordinates to the background properties box?"));
    EXPECT_EQ(Georeference_texts(project), (GeoreferenceTexts{"15", "190", "3", "4", "5", "4"}));
    EXPECT_EQ(project.CellLatitude, 23);
    EXPECT_EQ(project.CellLongitude, -172);
    EXPECT_EQ(project.ScaleX, 2);
    EXPECT_EQ(project.ScaleY, 1);
}

}  // namespace tidemark
