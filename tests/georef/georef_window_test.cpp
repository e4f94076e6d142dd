// Background Properties and the Cell Calculator, by mouse and keys.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "georef/background_properties_window.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

QString Text(QWidget& dialog, const char* name) {
    return Control<QWidget>(dialog, name).property("text").toString();
}

void Enter(QWidget& dialog, const char* name, const QString& text) {
    Type(Control<QLineEdit>(dialog, name), text);
}

void Click_button(QWidget& dialog, const char* name) {
    Click(Control<QPushButton>(dialog, name));
}

TEST(GeorefWindowTest, TheDialogComesBackUntilItsValuesAreRight) {
    Project project;
    project.BGLOD8X = 5;
    RecordingMessages messages;
    CellCalculator calculator(project, messages);
    Plan plan;
    plan.Then([](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Tidemark - Background Properties");
            EXPECT_EQ(Text(dialog, "LOD8X"), "5");
            Enter(dialog, "LOD8X", "800");
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
            Enter(dialog, "LOD13brX", "5");
            Enter(dialog, "LOD8X", "15");
            EXPECT_EQ(Text(dialog, "LatLabel"), "( Appoximate Latitude of this cell is N 22.5 )");
            EXPECT_EQ(Text(dialog, "LonLabel"), "( Appoximate Longitude of this cell is W 172.5 )");
            Press(dialog, Qt::Key_Escape);  // as OK
        });
    Show_background_properties(project, messages, calculator, {1536, 256}, nullptr);
    EXPECT_NO_THROW(plan.Finish());
    EXPECT_EQ(messages.Shown.size(), 2U);
    EXPECT_EQ(project.BGLOD8X, 15);
    EXPECT_EQ(project.CellLatitude, 22);
    EXPECT_EQ(project.CellLongitude, -172);
    EXPECT_EQ(project.AreaWidth, 768);
    EXPECT_EQ(project.ScaleX, 2);
    EXPECT_EQ(project.ScaleY, 1);
}

TEST(GeorefWindowTest, TheCalculatorCopiesItsCellIntoTheDialogOnYes) {
    Project project;
    RecordingMessages messages;
    messages.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    CellCalculator calculator(project, messages);
    Plan plan;
    plan.Then([](QWidget& dialog) {
            Click_button(dialog, "ShowCalc");
            EXPECT_EQ(Text(dialog, "LOD8X"), "0");
            Click_button(dialog, "ShowCalc");
            EXPECT_EQ(Text(dialog, "LOD8X") + "/" + Text(dialog, "LOD8Y"), "383/109");
            EXPECT_EQ(Text(dialog, "HiddenLat"), " 51");
            Click_button(dialog, "OKButton");
        })
        .Then([](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Tidemark - Cell Calculator");
            Enter(dialog, "CalcLatText", "51:30:00.0");
            Enter(dialog, "CalcLonText", "000:07:00.0");
            Press(Control<QComboBox>(dialog, "EWcombo"), Qt::Key_W);
            Press(Control<QComboBox>(dialog, "EWcombo"), Qt::Key_Return);
        })
        .Then([](QWidget& dialog) {
            EXPECT_EQ(Text(dialog, "CalcLatText"), "51:30:00.0");  // as it was left
            Click_button(dialog, "CalcButton");
        });
    Show_background_properties(project, messages, calculator, {1536, 256}, nullptr);
    EXPECT_NO_THROW(plan.Finish());
    EXPECT_TRUE(project.CalcFromBGproperties);
    EXPECT_EQ(project.BGLOD8Y, 109);

    project.CalcFromBGproperties = false;
    plan.Then([](QWidget& dialog) {
        Enter(dialog, "CalcLatText", "91:0:0");
        Click_button(dialog, "CalcButton");
        EXPECT_TRUE(dialog.isVisible());  // stays open after bad texts
        EXPECT_EQ(Text(dialog, "CalcLatText"), "00:00:00.0");
        Click_button(dialog, "CalcButton");
        EXPECT_FALSE(dialog.isVisible());
        dialog.show();
        Click_button(dialog, "CancelButton");
        EXPECT_FALSE(dialog.isVisible());
    });
    calculator.exec();
    EXPECT_NO_THROW(plan.Finish());
    EXPECT_EQ(messages.Texts().back(), "Given co-ordinates are in LOD8 cell [ 383, 256 ]");
}

}  // namespace
}  // namespace tidemark
