// The frames "Drawing Mode" and "VTP points / segments", by mouse and keys.
#include "vtp_edit/vtp_frame_window.h"

#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "vtp_edit/drawing_mode_frame_window.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

class VTPFrameTest : public testing::Test {
  protected:
    VTPFrameTest() {
        frame.resize(300, 400);
        frame.show();
    }

    void Click_map(int x, int y) {
        project.CursorVTPX = x;
        project.CursorVTPY = y;
        project.DrawMode = 1;
        frame.Add_VTP_Point();
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

TEST_F(VTPFrameTest, PointsAreDrawnInsertedReversedAndDeleted) {
    QSignalSpy redraws(&frame, &VTPFrame::Graphics_outdated);
    for (const int step : {0, 10, 20}) Click_map(5000 + step, 6000 + step / 2);
    EXPECT_EQ(redraws.size(), 3);
    Click_at(*list.viewport(), Line(1));
    EXPECT_EQ(redraws.size(), 4);
    Click_map(5005, 6003);
    EXPECT_EQ(frame.Selected(), 1);
    Click(Control<QPushButton>(frame, "ReverseButton"));
    Type(width, "119.5");
    Click(Control<QPushButton>(frame, "ChangeButton"));
    EXPECT_EQ(width.text(), "120");
    EXPECT_THAT(list.Lines(), testing::ElementsAre("[ 5020, 6010 Coast (waves)", "  5010, 6005",
                                                   "  5005, 6003", "  5000, 6000 ] W=120"));
    Press(list, Qt::Key_Period);  // no Delete, though its key code is Delete's
    for (int left = 3; left >= 0; --left) {
        Press(list, Qt::Key_Delete);
        EXPECT_EQ(project.VTPCount, left);
        EXPECT_EQ(frame.Selected(), std::min(left - 1, 0));
    }
    Press(list, Qt::Key_Delete);
    Click(Control<QPushButton>(frame, "ReverseButton"));
    EXPECT_TRUE(list.Lines().empty());
}

TEST_F(VTPFrameTest, AWrongWidthAddsNothingAndOnlyConfirmedPreferencesGiveTheSaveEntryAState) {
    QSignalSpy entry(&frame, &VTPFrame::SaveEntry_changed);
    Type(width, "301");
    Click_map(5000, 6000);
    EXPECT_EQ(width.text(), "80");
    EXPECT_TRUE(messages.Shown.size() == 1 && project.VTPCount == 0);
    Click_map(5000, 6000);
    EXPECT_TRUE(entry.isEmpty());
    project.PrefsSet = true;
    Press(list, Qt::Key_Delete);
    Add_cleared_cell(project, 1, 2, 8);
    frame.Refresh_VTP_List();
    EXPECT_EQ(entry, (QList<QVariantList>{{false}, {true}}));
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
    EXPECT_EQ(frame.Selected(), 4);
    Click_at(*list.viewport(), Line(4) + QPoint(0, 60));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, Line(4));
    EXPECT_EQ(frame.Selected(), 4);
}

TEST(DrawingModeFrameTest, EveryChoiceIsAnnouncedEvenOfTheSameMode) {
    DrawingModeFrame frame;
    frame.show();
    std::vector<int> chosen;
    QObject::connect(&frame, &DrawingModeFrame::Mode_chosen,
                     [&](const DrawingMode& mode) { chosen.push_back(mode.Code); });
    auto& combo = Control<QComboBox>(frame, "DrawModeCombo");
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End}) Press(combo, key);
    for (int again = 0; again < 2; ++again) frame.Select_mode(0);
    EXPECT_THAT(chosen, testing::ElementsAre(1, 32, 0, 0));
}

}  // namespace
}  // namespace tidemark
