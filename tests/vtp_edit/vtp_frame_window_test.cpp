// The frame "VTP points / segments", by mouse and keys.
#include "vtp_edit/vtp_frame_window.h"

#include "fakes/window_test.h"
#include "vtp_edit/vtp_list.h"

namespace tidemark {

class VTPFrameTest : public testing::Test {
  protected:
    VTPFrameTest() {
        document.Announce_to([this] { frame.Refresh(); });
        frame.resize(300, 400);
        frame.show();
    }

    QPoint Line(int position) { return list.visualRect(list.model()->index(position, 0)).center(); }

    int Scrolled() {
        QCoreApplication::processEvents();
        return list.verticalScrollBar()->value();
    }

    void Set_project(const std::function<void(Project&)>& change) {
        document.Settle([&](Project& p) {
            change(p);
            Refresh_VTP_List(p, session);
        });
    }

    Session session;
    Document document{session};
    const Project& project = document.Now();
    RecordingMessages messages;
    VTPFrame frame{document, session, messages};
    ListBox& list = Control<ListBox>(frame, "VTPlistbox");
    QLineEdit& width = Control<QLineEdit>(frame, "VTPwidthText");
};

TEST_F(VTPFrameTest, PointsAreInsertedAtTheWidthTypedAndDeleted) {
    Set_project([](Project& p) { Add_segment(p, 1, 80, {{5000, 6000}, {5010, 6005}}); });
    Click_at(*list.viewport(), Line(1));
    Click(Control<QCheckBox>(frame, "NewSegment"));
    Type(width, "301");
    frame.Add_VTP_Point();
    EXPECT_TRUE(width.text() == "80" && messages.Shown.size() == 1 && project.VTPCount == 2);
    Type(width, "119.5");
    Click(Control<QPushButton>(frame, "ChangeButton"));
    Click(Control<QPushButton>(frame, "ReverseButton"));
    EXPECT_EQ(width.text(), "120");
    EXPECT_EQ(list.Lines(), (Texts{"[ 5010, 6005 Coast (waves)", "  5000, 6000 ] W=120"}));
    EXPECT_FALSE(session.Panel.VTPsave) << "the preferences have not been confirmed";
    Set_project([](Project& p) { p.PrefsSet = true; });
    EXPECT_TRUE(session.Panel.VTPsave);
    Press(list, Qt::Key_Period);  // no Delete, though its key code is Delete's
    EXPECT_EQ(project.VTPCount, 2);
    for (int press = 0; press < 3; ++press) Press(list, Qt::Key_Delete);
    Click(Control<QPushButton>(frame, "ReverseButton"));
    EXPECT_FALSE(session.Panel.VTPsave);
}

TEST_F(VTPFrameTest, TheListKeepsItsPlaceItsSelectionAndTheFocus) {
    Set_project([](Project& p) { p = Largest_project(); });
    frame.activateWindow();
    list.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(list.Selected(), -1) << "focus alone selects nothing";
    session.Panel.SelectedPoint = 300;
    frame.Refresh();
    const int scrolled = Scrolled();
    EXPECT_GT(scrolled, 250);
    Press(list, Qt::Key_Delete);
    EXPECT_EQ(list.Selected(), 299);
    EXPECT_EQ(Scrolled(), scrolled);
    EXPECT_TRUE(list.hasFocus());
    list.verticalScrollBar()->setValue(10);  // the user looks at something else meanwhile
    frame.Refresh();
    EXPECT_EQ(Scrolled(), 10);
    for (const Qt::Key key : {Qt::Key_BracketLeft, Qt::Key_Space}) Press(list, key);
    EXPECT_EQ(list.Selected(), 299) << "no key but Delete does anything but select";

    Set_project([](Project& p) { p.VTPCount = 5; });
    Click_at(*list.viewport(), Line(4) + QPoint(0, 60));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, Line(4));
    EXPECT_EQ(list.Selected(), 4);
}

}  // namespace tidemark
