// Background Properties and the Cell Calculator, by mouse and keys.
#include <QComboBox>
#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "georef/background_properties_window.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

using testing::ElementsAre;

class GeorefWindowTest : public testing::Test {
  protected:
    static void Enter(QWidget& dialog, const char* name, const QString& text) {
        Type(Control<QLineEdit>(dialog, name), text);
    }
    static std::string Text(QWidget& dialog, const char* name) {
        if (auto* const label = dialog.findChild<QLabel*>(name)) return label->text().toStdString();
        return Control<QLineEdit>(dialog, name).text().toStdString();
    }
    static void Click_button(QWidget& dialog, const char* name) {
        Click(Control<QPushButton>(dialog, name));
    }
    void Ask() {
        Show_background_properties(project_, messages_, calculator_, {1536, 256}, nullptr);
        EXPECT_NO_THROW(plan_.Finish());
    }

    Project project_;
    RecordingMessages messages_;
    CellCalculator calculator_{project_, messages_};
    Plan plan_;
};

TEST_F(GeorefWindowTest, TheDialogComesBackUntilItsValuesAreRight) {
    project_.BGLOD8X = 5;
    plan_
        .Then([](QWidget& dialog) {
            EXPECT_EQ(dialog.windowTitle(), "Tidemark - Background Properties");
            EXPECT_EQ(Text(dialog, "LOD8X"), "5");
            Enter(dialog, "LOD8X", "800");
            Enter(dialog, "LOD8Y", "190.6");
            Enter(dialog, "LOD13tlX", "3");
            Enter(dialog, "LOD13tlY", "4");
            Enter(dialog, "LOD13brX", "2");
            Enter(dialog, "LOD13brY", "4");
            Press(Control<QLineEdit>(dialog, "LOD13brY"), Qt::Key_Return);
            EXPECT_EQ(Text(dialog, "LOD8Y"), " 191");
        })
        .Then([](QWidget& dialog) {
            EXPECT_EQ(Text(dialog, "LOD8X") + "/" + Text(dialog, "LOD8Y"), "5/191");
            Enter(dialog, "LOD13brX", "5");
            Enter(dialog, "LOD8X", "15");
            EXPECT_EQ(Text(dialog, "LatLabel"), "( Appoximate Latitude of this cell is N 22.5 )");
            EXPECT_EQ(Text(dialog, "LonLabel"), "( Appoximate Longitude of this cell is W 172.5 )");
            EXPECT_EQ(Text(dialog, "HiddenLat") + Text(dialog, "HiddenLon"), " 22-172");
            EXPECT_FALSE(Control<QLabel>(dialog, "HiddenLat").isVisible());
            Press(dialog, Qt::Key_Escape);  // as OK
        });
    Ask();
    EXPECT_EQ(messages_.Shown.size(), 2U);
    EXPECT_EQ(project_.BGLOD8X, 15);
    EXPECT_EQ(project_.CellLatitude, 22);
    EXPECT_EQ(project_.CellLongitude, -172);
    EXPECT_EQ(project_.AreaWidth, 768);
    EXPECT_EQ(project_.ScaleX, 2);
    EXPECT_EQ(project_.ScaleY, 1);
}

TEST_F(GeorefWindowTest, TheCalculatorCopiesItsCellIntoTheDialogOnYes) {
    messages_.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    plan_
        .Then([](QWidget& dialog) {
            Click_button(dialog, "ShowCalc");
            EXPECT_EQ(Text(dialog, "LOD8X"), "0");
            Click_button(dialog, "ShowCalc");
            EXPECT_EQ(Text(dialog, "LOD8X") + "/" + Text(dialog, "LOD8Y"), "383/109");
            EXPECT_EQ(Text(dialog, "HiddenLat"), " 51");
            Click_button(dialog, "OKButton");
        })
        .Then([](QWidget& calculator) {
            EXPECT_EQ(calculator.windowTitle(), "Tidemark - Cell Calculator");
            Enter(calculator, "CalcLatText", "51:30:00.0");
            Enter(calculator, "CalcLonText", "000:07:00.0");
            Press(Control<QComboBox>(calculator, "EWcombo"), Qt::Key_W);
            Press(Control<QComboBox>(calculator, "EWcombo"), Qt::Key_Return);
        })
        .Then([](QWidget& calculator) {
            EXPECT_EQ(Text(calculator, "CalcLatText"), "51:30:00.0");  // as it was left
            Click_button(calculator, "CalcButton");
        });
    Ask();
    EXPECT_TRUE(project_.CalcFromBGproperties);
    EXPECT_EQ(project_.BGLOD8Y, 109);
}

TEST_F(GeorefWindowTest, TheCalculatorStaysOpenAfterBadTextsAndGoesWithCancel) {
    plan_.Then([this](QWidget& calculator) {
        Enter(calculator, "CalcLatText", "91:0:0");
        Click_button(calculator, "CalcButton");
        EXPECT_TRUE(calculator.isVisible());
        EXPECT_EQ(Text(calculator, "CalcLatText"), "00:00:00.0");
        Click_button(calculator, "CalcButton");
        EXPECT_FALSE(calculator.isVisible());
        calculator_.show();
        Click_button(calculator, "CancelButton");
        EXPECT_FALSE(calculator.isVisible());
    });
    calculator_.exec();
    EXPECT_NO_THROW(plan_.Finish());
    EXPECT_THAT(messages_.Texts(), ElementsAre("Latitude value given is incorrect",
                                               "Given co-ordinates are in LOD8 cell [ 384, 256 ]"));
}

// The names that Tab reaches from the first control on.
std::vector<std::string> Tab_order(QWidget& dialog, const char* first) {
    dialog.show();
    dialog.activateWindow();
    Control<QWidget>(dialog, first).setFocus();
    std::vector<std::string> names;
    do {
        QWidget& at = *dialog.focusWidget();
        EXPECT_TRUE(qobject_cast<QPushButton*>(&at) || !at.accessibleName().isEmpty());
        names.push_back(at.objectName().toStdString());
        QTest::keyClick(&at, Qt::Key_Tab);
    } while (dialog.focusWidget()->objectName() != first && names.size() < 20);
    return names;
}

TEST_F(GeorefWindowTest, TabGoesThroughTheControlsInReadingOrder) {
    BGproperties dialog(project_, calculator_);
    EXPECT_THAT(Tab_order(dialog, "LOD8X"),
                ElementsAre("LOD8X", "LOD8Y", "ShowCalc", "LOD13tlX", "LOD13tlY", "LOD13brX",
                            "LOD13brY", "OKButton"));
    EXPECT_THAT(Tab_order(calculator_, "CalcLatText"),
                ElementsAre("CalcLatText", "NScombo", "CalcLonText", "EWcombo", "CalcButton",
                            "CancelButton"));
}

}  // namespace
}  // namespace tidemark
