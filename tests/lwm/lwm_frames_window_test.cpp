// The frames "LWM Polygons" and "VTP Cleared cells", by mouse and keys.
#include <QSignalSpy>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "lwm/kill_frame_window.h"
#include "lwm/lwm_frame_window.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

using testing::ElementsAre;

TEST(LWMFrameTest, PolygonsAreAddedAtTheHeightTypedAndDeleted) {
    Project project;
    project.PrefsSet = true;
    RecordingMessages messages;
    LWMFrame frame(project, messages);
    frame.show();
    auto& list = Control<ListBox>(frame, "LWMlistBox");
    auto& set_height = Control<QRadioButton>(frame, "HeightOption");
    auto& conform = Control<QRadioButton>(frame, "ConformOption");
    auto& height = Control<QLineEdit>(frame, "PolyHeightText");
    const auto add = [&](int column, const char* mode, const QString& typed) {
        frame.Mode_chosen(*Find_mode(mode));
        project.DrawMode = Find_mode(mode)->Code;
        project.CursorCellX = column;
        project.CursorInCellX = project.CursorInCellY = 100;
        if (height.isEnabled()) Type(height, typed);
        frame.Add_LWM_Poly();
    };
    EXPECT_TRUE(conform.isChecked() && !height.isEnabled());
    add(3, "Water polygon", "150.5");
    EXPECT_TRUE(set_height.isChecked());
    EXPECT_EQ(height.text(), "150");
    add(4, "Water polygon", "10001");
    EXPECT_THAT(messages.Texts(), ElementsAre("Height value must be in the range 0-10000"));
    frame.Mode_chosen(*Find_mode("Road (dirt)"));
    EXPECT_TRUE(set_height.isChecked());
    add(12, "Land polygon", "");
    Click(set_height);
    Type(height, "7");
    frame.Add_LWM_Poly();
    EXPECT_THAT(list.Lines(), ElementsAre("[ 3, 0 ] Water @ 150m", "[ 12, 0 ] Land, conforms",
                                          "[ 12, 0 ] Land @ 7m"));

    QSignalSpy entry(&frame, &LWMFrame::SaveEntry_changed);
    Press(list, Qt::Key_Delete);  // nothing is selected
    Press(list, Qt::Key_Down);
    Press(list, Qt::Key_Delete);
    EXPECT_THAT(list.Lines(), ElementsAre("[ 12, 0 ] Land, conforms", "[ 12, 0 ] Land @ 7m"));
    Press(list, Qt::Key_End);
    Press(list, Qt::Key_Delete);
    EXPECT_EQ(frame.Selected(), 0);
    Press(list, Qt::Key_Delete);
    EXPECT_EQ(frame.Selected(), -1);
    EXPECT_EQ(entry, (QList<QVariantList>{{true}, {true}, {false}}));
}

TEST(KillFrameTest, CellsAreAddedAndDeleted) {
    Project project;
    project.PrefsSet = true;
    RecordingMessages messages;
    KillFrame frame(project, messages);
    frame.show();
    auto& list = Control<ListBox>(frame, "KillListBox");
    for (const int code : {ClearCoastlines, ClearMajorRoads}) {
        project.DrawMode = code;
        frame.Add_Kill_Cell();
    }
    EXPECT_THAT(list.Lines(), ElementsAre("[ 0, 0 ] Coast", "[ 0, 0 ] Major Roads"));
    QSignalSpy entry(&frame, &KillFrame::SaveEntry_changed);
    Press(list, Qt::Key_Down);
    Press(list, Qt::Key_Delete);
    EXPECT_THAT(list.Lines(), ElementsAre("[ 0, 0 ] Major Roads"));
    Press(list, Qt::Key_Delete);
    EXPECT_EQ(project.KillCount, 0);
    EXPECT_EQ(entry, (QList<QVariantList>{{true}, {false}}));
}

}  // namespace
}  // namespace tidemark
