// The frames "LWM Polygons" and "VTP Cleared cells", by mouse and keys.
#include <QSignalSpy>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "lwm/kill_frame_window.h"
#include "lwm/lwm_frame_window.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

using testing::ElementsAre;

class LWMFrameTest : public testing::Test {
  protected:
    LWMFrameTest() { frame.show(); }

    void Click_cell(int column, int row, int mode) {
        project.CursorCellX = column;
        project.CursorCellY = row;
        project.CursorInCellX = project.CursorInCellY = 100;
        project.DrawMode = mode;
        frame.Add_LWM_Poly();
    }

    Project project;
    RecordingMessages messages;
    LWMFrame frame{project, messages};
    ListBox& list = Control<ListBox>(frame, "LWMlistBox");
    QRadioButton& set_height = Control<QRadioButton>(frame, "HeightOption");
    QRadioButton& conform = Control<QRadioButton>(frame, "ConformOption");
    QLineEdit& height = Control<QLineEdit>(frame, "PolyHeightText");
};

TEST_F(LWMFrameTest, TheModeChosenSelectsAHeightOption) {
    EXPECT_TRUE(conform.isChecked());
    EXPECT_FALSE(height.isEnabled());
    frame.Mode_chosen(*Find_mode("Water polygon"));
    EXPECT_TRUE(set_height.isChecked());
    EXPECT_TRUE(height.isEnabled());
    frame.Mode_chosen(*Find_mode("Road (dirt)"));
    EXPECT_TRUE(set_height.isChecked());
    frame.Mode_chosen(*Find_mode("Land polygon"));
    EXPECT_TRUE(conform.isChecked());
    EXPECT_FALSE(height.isEnabled());
}

TEST_F(LWMFrameTest, PolygonsAreAddedAtTheHeightTypedAndDeleted) {
    Click_cell(12, 7, LandPolygon);
    Click(set_height);
    Type(height, "150.5");
    Click_cell(3, 30, WaterPolygon);
    EXPECT_EQ(height.text(), "150");
    Type(height, "10001");
    Click_cell(4, 4, WaterPolygon);
    EXPECT_THAT(messages.Texts(), ElementsAre("Height value must be in the range 0-10000"));
    Click(conform);
    Click_cell(5, 6, WaterPolygon);
    EXPECT_THAT(list.Lines(), ElementsAre("[ 12, 7 ] Land, conforms", "[ 3, 30 ] Water @ 150m",
                                          "[ 5, 6 ] Water, conforms"));
    EXPECT_EQ(frame.Selected(), -1);

    project.PrefsSet = true;
    QSignalSpy entry(&frame, &LWMFrame::SaveEntry_changed);
    Press(list, Qt::Key_Delete);  // nothing is selected
    Press(list, Qt::Key_Down);
    Press(list, Qt::Key_Delete);
    EXPECT_THAT(list.Lines(), ElementsAre("[ 3, 30 ] Water @ 150m", "[ 5, 6 ] Water, conforms"));
    EXPECT_EQ(frame.Selected(), 0);
    Press(list, Qt::Key_End);
    Press(list, Qt::Key_Delete);
    EXPECT_EQ(frame.Selected(), 0);
    EXPECT_EQ(entry.last().first().toBool(), true);
    Press(list, Qt::Key_Delete);
    EXPECT_EQ(frame.Selected(), -1);
    EXPECT_EQ(entry.last().first().toBool(), false);
    EXPECT_EQ(entry.size(), 3);
}

TEST(KillFrameTest, CellsAreAddedAndDeleted) {
    Project project;
    project.PrefsSet = true;
    RecordingMessages messages;
    KillFrame frame(project, messages);
    frame.show();
    QSignalSpy entry(&frame, &KillFrame::SaveEntry_changed);
    auto& list = Control<ListBox>(frame, "KillListBox");
    project.CursorCellX = 5;
    project.CursorCellY = 17;
    for (const int code : {ClearCoastlines, ClearCoastlines, ClearMajorRoads}) {
        project.DrawMode = code;
        frame.Add_Kill_Cell();
    }
    EXPECT_THAT(list.Lines(),
                ElementsAre("[ 5, 17 ] Coast", "[ 5, 17 ] Coast", "[ 5, 17 ] Major Roads"));
    Press(list, Qt::Key_Down);
    Press(list, Qt::Key_End);
    Press(list, Qt::Key_Delete);
    EXPECT_EQ(frame.Selected(), 1);
    frame.Add_Kill_Cell();
    EXPECT_EQ(frame.Selected(), 1);
    for (int left = 2; left >= 0; --left) {
        EXPECT_EQ(entry.last().first().toBool(), true);
        Press(list, Qt::Key_Delete);
        EXPECT_EQ(project.KillCount, left);
    }
    EXPECT_EQ(entry.last().first().toBool(), false);

    project = Largest_project();
    frame.Add_Kill_Cell();
    EXPECT_THAT(messages.Texts(), ElementsAre(testing::HasSubstr("1000")));
}

}  // namespace
}  // namespace tidemark
