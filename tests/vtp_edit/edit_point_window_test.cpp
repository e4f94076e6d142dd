// The Edit Point dialog, by mouse and keys.
#include "vtp_edit/edit_point_window.h"

#include <QPushButton>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

using Texts = std::vector<std::string>;

// An area of 2 x 3 cells with its top-left cell at column 3, row 5, and a point in it.
class EditPointTest : public testing::Test {
  protected:
    EditPointTest() {
        project.BGLOD13tlX = 3;
        project.BGLOD13tlY = 5;
        project.AreaLeftVTP = 4848;
        project.AreaTopVTP = 5360;
        project.AreaRightVTP = 4848 + 512;
        project.AreaBottomVTP = 5360 + 768;
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

    QLineEdit& Field(const char* name) { return Control<QLineEdit>(dialog, name); }
    QString Text(const char* name) { return Field(name).text(); }

    Project project;
    RecordingMessages messages;
    EditPoint dialog{project, messages};
};

TEST_F(EditPointTest, ShowsThePlaceInTheAreaAndInTheCell) {
    for (const auto& [x, y, in_cell, cell] :
         {std::tuple{5000, 6000, "152/128", "Current LOD13 cell is [ 3, 7 ]"},
          {4848, 5615, "0/255", "Current LOD13 cell is [ 3, 5 ]"},
          {4847, 5000, "255/152", "Current LOD13 cell is [ 2, 3 ]"},
          {5360, 5360, "0/0", "Current LOD13 cell is [ 5, 5 ]"}}) {
        project.VTPPoint(1, 0) = x;
        project.VTPPoint(1, 1) = y;
        EXPECT_FALSE(Edit([&] {
            EXPECT_EQ(Text("VTPX") + Text("VTPY"), QString::number(x) + QString::number(y));
            EXPECT_EQ(Text("LOD13X") + "/" + Text("LOD13Y"), in_cell);
            EXPECT_EQ(Control<QLabel>(dialog, "CellLabel").text(), cell);
            EXPECT_EQ(project.CursorInCellX, Text("LOD13X").toInt());
            EXPECT_TRUE(Field("VTPX").isEnabled() && !Field("LOD13X").isEnabled());
            Type(Field("VTPX"), "5001");
            Press(dialog, Qt::Key_Escape);
        }));
        EXPECT_EQ(project.VTPPoint(1, 0), x);
    }
    EXPECT_FALSE(project.DataChanged);
}

TEST_F(EditPointTest, TheChosenFormIsCheckedAndStored) {
    struct Case {
        bool InCell;
        const char *X, *Y, *Warning;  // no warning: stored
        int StoredX = 5000, StoredY = 6000;
    };
    const char* const x_range = "X value must be in the range 4848-5360";
    const char* const y_range = "Y value must be in the range 5360-6128";
    for (const auto& [in_cell, x, y, warning, stored_x, stored_y] :
         {Case{false, "4848", "5360", "", 4848, 5360},
          {false, "5360", "6128", "", 5360, 6128},
          {false, "5001.5", "6002.5", "", 5002, 6002},
          {false, "5360.1", "0", x_range},
          {false, "", "6000", x_range},
          {false, "5000", "6129", y_range},
          {false, "5000", "5359.9", y_range},
          {true, "255", "", "", 4848 + 255, 5360 + 512},
          {true, "10", "1.5", "", 4848 + 10, 5360 + 512 + 2},
          {true, "256", "-1", "X value must be in the range 0-255"},
          {true, "-.4", "0", "X value must be in the range 0-255"},
          {true, "0", "1e99", "Y value must be in the range 0-255"}}) {
        project.VTPPoint(1, 0) = 5000;
        project.VTPPoint(1, 1) = 6000;
        messages.Shown.clear();
        const bool accepted = Edit([&, x = x, y = y, in_cell = in_cell] {
            Click(Control<QRadioButton>(dialog, in_cell ? "Option2" : "Option1"));
            Type(Field(in_cell ? "LOD13X" : "VTPX"), x);
            Type(Field(in_cell ? "LOD13Y" : "VTPY"), y);
            Press(Field(in_cell ? "LOD13Y" : "VTPY"), Qt::Key_Return);
            if (!messages.Shown.empty()) dialog.close();
        });
        EXPECT_EQ(accepted, std::string(warning).empty()) << x << ", " << y;
        EXPECT_EQ(messages.Texts(), accepted ? Texts{} : Texts{warning});
        EXPECT_EQ(project.VTPPoint(1, 0), stored_x) << x;
        EXPECT_EQ(project.VTPPoint(1, 1), stored_y) << y;
    }
    EXPECT_TRUE(project.DataChanged);
}

}  // namespace
}  // namespace tidemark
