// The Edit Point dialog, by mouse and keys.
#include "vtp_edit/edit_point_window.h"

#include <QPushButton>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

class EditPointWindowTest : public testing::Test {
  protected:
    EditPointWindowTest() {
        project.BGLOD13tlX = 3;
        project.BGLOD13tlY = 5;
        project.AreaLeftVTP = 4848;
        project.AreaTopVTP = 5360;
        project.AreaRightVTP = 6128;
        project.AreaBottomVTP = 6640;
        Add_segment(project, 1, 80, {{5000, 6000}});
    }

    // Opens the dialog for the point, lets the user act and returns what Edit says.
    bool Edit(const std::function<void()>& user) {
        Plan plan;
        plan.Then([&](QWidget&) { user(); });
        const bool edited = dialog.Edit(1);
        EXPECT_NO_THROW(plan.Finish());
        return edited;
    }

    void Expect_point(int x, int y) {
        EXPECT_EQ(project.VTPPoint(1, 0), x);
        EXPECT_EQ(project.VTPPoint(1, 1), y);
    }

    Project project;
    RecordingMessages messages;
    EditPoint dialog{project, messages};
    QLineEdit& VTPX = Control<QLineEdit>(dialog, "VTPX");
    QLineEdit& VTPY = Control<QLineEdit>(dialog, "VTPY");
    QLineEdit& LOD13X = Control<QLineEdit>(dialog, "LOD13X");
    QLineEdit& LOD13Y = Control<QLineEdit>(dialog, "LOD13Y");
    QRadioButton& in_cell = Control<QRadioButton>(dialog, "Option2");
    QPushButton& ok = Control<QPushButton>(dialog, "OKButton");
};

TEST_F(EditPointWindowTest, UnitsAreTypedAndConfirmedWithEnter) {
    EXPECT_TRUE(Edit([&] {
        EXPECT_EQ(dialog.windowTitle(), "Tidemark - Edit Point");
        EXPECT_EQ(Control<QLabel>(dialog, "CellLabel").text(), "Current LOD13 cell is [ 3, 7 ]");
        EXPECT_EQ(LOD13X.text() + "/" + LOD13Y.text(), "152/128");
        EXPECT_TRUE(VTPX.isEnabled());
        EXPECT_FALSE(LOD13X.isEnabled());
        Type(VTPX, "6129");
        Type(VTPY, "1");
        Press(VTPX, Qt::Key_Return);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(VTPX.text(), "6129");
        Type(VTPX, "6128");
        Type(VTPY, "6001.5");
        Press(VTPY, Qt::Key_Enter);
    }));
    EXPECT_THAT(messages.Texts(), testing::ElementsAre("X value must be in the range 4848-6128"));
    Expect_point(6128, 6002);
    EXPECT_TRUE(project.DataChanged);
}

TEST_F(EditPointWindowTest, TheCellFormMovesThePointInItsCellAndStaysChosen) {
    EXPECT_TRUE(Edit([&] {
        Click(in_cell);
        EXPECT_FALSE(VTPY.isEnabled());
        Type(LOD13X, "255");
        Type(LOD13Y, "0");
        Click(ok);
    }));
    Expect_point(4848 + 255, 5360 + 512);
    EXPECT_FALSE(Edit([&] {
        EXPECT_TRUE(in_cell.isChecked());
        EXPECT_EQ(LOD13X.text(), "255");
        EXPECT_EQ(VTPX.text(), "5103");
        Type(LOD13X, "7");
        Press(dialog, Qt::Key_Escape);
    }));
    Expect_point(4848 + 255, 5360 + 512);
    EXPECT_TRUE(messages.Shown.empty());
}

TEST_F(EditPointWindowTest, ClosingTheWindowChangesNothing) {
    EXPECT_FALSE(Edit([&] {
        Type(VTPX, "5555");
        dialog.close();
    }));
    Expect_point(5000, 6000);
    EXPECT_FALSE(project.DataChanged);
}

}  // namespace
}  // namespace tidemark
