// The frame "VTP points / segments", by mouse and keys.
#include "vtp_edit/vtp_frame_window.h"

#include "fakes/window_test.h"

namespace tidemark {

class VTPFrameTest : public testing::Test {
  protected:
    VTPFrameTest() {
        frame.resize(300, 400);
        frame.show();
    }

    QPoint Line(int position) { return list.visualRect(list.model()->index(position, 0)).center(); }

    int Scrolled() {
        QCoreApplication::processEvents();
        return list.verticalScrollBar()->value();
    }

    Project project;
    RecordingMessages messages;
    VTPFrame frame{project, messages};
    ListBox& list = Control<ListBox>(frame, "VTPlistbox");
    QLineEdit& width = Control<QLineEdit>(frame, "VTPwidthText");
};

TEST_F(VTPFrameTest, PointsAreInsertedAtTheWidthTypedAndDeleted) {
    QSignalSpy redraws(&frame, &VTPFrame::Graphics_outdated);
    QSignalSpy entry(&frame, &VTPFrame::SaveEntry_changed);
    Add_segment(project, 1, 80, {{5000, 6000}, {5010, 6005}});
    frame.Refresh_VTP_List();
    Click_at(*list.viewport(), Line(1));
    EXPECT_EQ(redraws.size(), 2);
    EXPECT_TRUE(entry.isEmpty()) << "the preferences have not been confirmed";
    Click(Control<QCheckBox>(frame, "NewSegment"));
    Type(width, "301");
    frame.Add_VTP_Point();
    EXPECT_TRUE(width.text() == "80" && messages.Shown.size() == 1 && project.VTPCount == 2);
    Type(width, "119.5");
    Click(Control<QPushButton>(frame, "ChangeButton"));
    Click(Control<QPushButton>(frame, "ReverseButton"));
    EXPECT_EQ(width.text(), "120");
    EXPECT_EQ(list.Lines(), (Texts{"[ 5010, 6005 Coast (waves)", "  5000, 6000 ] W=120"}));
    project.PrefsSet = true;
    Press(list, Qt::Key_Period);  // no Delete, though its key code is Delete's
    EXPECT_EQ(project.VTPCount, 2);
    for (int press = 0; press < 3; ++press) Press(list, Qt::Key_Delete);
    Click(Control<QPushButton>(frame, "ReverseButton"));
    EXPECT_EQ(entry, (QList<QVariantList>{{true}, {false}}));
}

TEST_F(VTPFrameTest, TheListKeepsItsPlaceItsSelectionAndTheFocus) {
    project = Largest_project();
    frame.Refresh_VTP_List();
    frame.activateWindow();
    list.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(frame.Selected(), -1) << "focus alone selects nothing";
    frame.Select(300);
    const int scrolled = Scrolled();
    EXPECT_GT(scrolled, 250);
    Press(list, Qt::Key_Delete);
    EXPECT_EQ(frame.Selected(), 299);
    EXPECT_EQ(Scrolled(), scrolled);
    EXPECT_TRUE(list.hasFocus());
    list.verticalScrollBar()->setValue(10);  // the user looks at something else meanwhile
    frame.Refresh_VTP_List();
    EXPECT_EQ(Scrolled(), 10);

    project.VTPCount = 5;
    frame.Refresh_VTP_List();
    Click_at(*list.viewport(), Line(4) + QPoint(0, 60));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, Line(4));
    EXPECT_EQ(frame.Selected(), 4);
}

}  // namespace tidemark
