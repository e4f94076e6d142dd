// The main window and its boxes, driven as a user would.
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <gtest/gtest.h>

#include "app/tidemark_main_window.h"
#include "fakes/environment.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "model/project_file.h"
#include "platform/qt_messages.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

class MainWindowTest : public testing::Test {
  protected:
    MainWindowTest() { window_.show(); }

    QString Path(const char* name) { return QString::fromStdString(folder_ / name); }

    // A project file with a river and no background, its preferences set.
    QString Write_project(const char* name) {
        Project p;
        Add_segment(p, 5, 80, {{5000, 6000}, {5010, 6000}});
        p.PrefsSet = true;
        p.VTPFileName = folder_ / "river-VTP.asm";
        p.ProjectFile = folder_ / name;
        Write_file(p.ProjectFile, Project_bytes(p, "then"));
        return Path(name);
    }

    TemporaryFolder folder_;
    TidemarkMain window_;
    Plan plan_;
};

TEST_F(MainWindowTest, TheMenuIsWholeAndStartsAsItShould) {
    QString menu;
    for (const char* name : {"FileMenu", "BackgroundMenu", "Output", "HelpMenu"})
        for (const QAction* entry : Control<QMenu>(window_, name).actions())
            if (!entry->isSeparator())
                menu +=
                    entry->objectName() + (entry->isEnabled() ? "=" : "-") + entry->text() + "; ";
    EXPECT_EQ(menu,
              "FileOpen=&Open Project; FileSave-&Save Project; FileSaveAs=Save Project &As ...; "
              "FileExit=E&xit; BackgroundLoad=&Load background image; "
              "BackgroundProperties-Change background &properties; "
              "LWMsave-Save &LWM data to file; VTPsave-Save &VTP data to file; "
              "OutputPreferences=&Preferences; ShowStatus=&Show Status Panel; "
              "CellCalc=&Cell Calculator; Instructions=&Instructions; Tutorial=&Tutorial; "
              "HelpAbout=&About; ");
    EXPECT_EQ(window_.windowTitle(), "Tidemark");
}

TEST_F(MainWindowTest, ThePanelStandsBesideTheMapAndCanBeHiddenAndShownUntilTheExit) {
    auto& panel = Control<Status>(window_, "Status");
    EXPECT_TRUE(panel.isVisible());
    EXPECT_FALSE(panel.frameGeometry().intersects(window_.frameGeometry()));
    Click(Control<QPushButton>(panel, "HideButton"));
    EXPECT_FALSE(panel.isVisible());
    Choose_entry(window_, "HelpMenu", "ShowStatus");
    EXPECT_TRUE(panel.isVisible());
    Choose_entry(window_, "FileMenu", "FileExit");
    EXPECT_FALSE(window_.isVisible() || panel.isVisible());
    EXPECT_TRUE(plan_.Messages().empty());
}

TEST_F(MainWindowTest, TheDialogsOfThePanelLeadBackToIt) {
    window_.Open(Write_project("river.tdm"));
    auto& panel = Control<Status>(window_, "Status");
    auto& list = Control<ListBox>(panel, "VTPlistbox");
    Press(list, Qt::Key_Down);
    list.setFocus();
    panel.activateWindow();
    QApplication::processEvents();
    plan_.Then([](QWidget& dialog) { Press(dialog, Qt::Key_Escape); }).Then_answer();
    Control<QPushButton>(panel, "EditButton").click();
    QApplication::processEvents();
    EXPECT_TRUE(list.hasFocus());
    Control<QLineEdit>(panel, "VTPwidthText").setText("999");
    Control<QPushButton>(panel, "ChangeButton").click();
    QApplication::processEvents();
    EXPECT_TRUE(list.hasFocus());
    EXPECT_NO_THROW(plan_.Finish());
}

TEST_F(MainWindowTest, AProjectIsOpenedItsVTPFileSavedAndItSavedUnderANewName) {
    // The file is saved, the compiler is missed, and the project is saved under its new name.
    plan_.Then_choose(Write_project("river one.tdm")).Then_answer().Then_answer();
    plan_.Then_choose(Path("copy")).Then_answer();
    Choose_entry(window_, "FileMenu", "FileOpen");
    EXPECT_EQ(window_.windowTitle(), "Tidemark - RIVER ONE.TDM");
    EXPECT_EQ(window_.Current_project().VTPCount, 2);
    EXPECT_TRUE(window_.findChild<QAction*>("FileSave")->isEnabled());
    Choose_entry(window_, "Output", "VTPsave");
    Choose_entry(window_, "FileMenu", "FileSaveAs");
    EXPECT_EQ(window_.windowTitle(), "Tidemark - COPY.TDM");
    EXPECT_EQ(folder_.Names(),
              (std::vector<std::string>{"copy.TDM", "river one.tdm", "river-VTP.asm"}));
    ASSERT_NO_THROW(plan_.Finish());
    ASSERT_EQ(plan_.Messages().size(), 3U);
    EXPECT_EQ(plan_.Messages()[0], "Tidemark - File saved: VTP file saved OK");
    EXPECT_TRUE(plan_.Messages()[1].contains("BGLC.EXE was not found!"));
    EXPECT_EQ(plan_.Messages()[2],
              "Tidemark - Saved OK: " + Path("copy.TDM") + " saved successfully");
}

TEST_F(MainWindowTest, AMovedProjectIsSavedWhereItWasAndKeepsTheTitleItWasOpenedUnder) {
    const QString moved = QString::fromStdString(folder_ / "moved.tdm");
    ASSERT_TRUE(QFile::copy(Write_project("stored.tdm"), moved));
    window_.Open(moved);
    plan_.Then_answer(QMessageBox::No);
    Choose_entry(window_, "FileMenu", "FileSave");
    EXPECT_TRUE(plan_.Messages().at(0).contains("stored.tdm - file exists - overwrite?"));
    EXPECT_EQ(window_.windowTitle(), "Tidemark - MOVED.TDM");
}

TEST_F(MainWindowTest, AProjectThatNamesItsPictureWithoutAFolderOpensFromAnyFolder) {
    Project p;
    p.BackgroundFile = "bay.bmp";
    p.BackgroundLoaded = true;
    Write_file(folder_ / "bay.tdm", Project_bytes(p, "then"));
    QImage(30, 20, QImage::Format_RGB32).save(Path("bay.bmp"));
    window_.Open(Path("bay.tdm"));
    EXPECT_TRUE(window_.Current_project().BackgroundLoaded);
    EXPECT_EQ(window_.Current_project().BackgroundFile, "bay.bmp");
    EXPECT_EQ(Control<MapView>(window_, "MapView").Canvas_size(), QSize(30, 20));
}

TEST_F(MainWindowTest, AProjectFileCanBeDroppedAndARefusedOneLeavesTheProject) {
    const auto drop = [this](const QList<QUrl>& urls) {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QDropEvent drop_event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&window_, &enter);
        QCoreApplication::sendEvent(&window_, &drop_event);
        QCoreApplication::processEvents();
        return enter.isAccepted();
    };
    const QUrl good = QUrl::fromLocalFile(Write_project("good.TDM"));
    EXPECT_FALSE(drop({QUrl::fromLocalFile("/some/map.jpg")}));
    EXPECT_FALSE(drop({good, good}));
    EXPECT_EQ(window_.windowTitle(), "Tidemark");
    EXPECT_TRUE(drop({good}));
    const Project before = window_.Current_project();
    Write_file(folder_ / "bad.tdm", "x saved on y\n1\n2\n3\n4\n70000\n");
    EXPECT_TRUE(drop({QUrl::fromLocalFile(Path("bad.tdm"))}));
    EXPECT_EQ(window_.statusBar()->currentMessage(),
              "bad.tdm, line 6: BGLOD8X does not fit -32768..32767: 70000");
    EXPECT_EQ(window_.windowTitle(), "Tidemark - GOOD.TDM");
    EXPECT_TRUE(window_.Current_project() == before);

    Press(Control<ListBox>(window_, "VTPlistbox"), Qt::Key_Down);
    plan_.Then([&](QWidget& dialog) {
        EXPECT_FALSE(drop({good}));  // not under a dialog
        Press(dialog, Qt::Key_Escape);
    });
    Click(Control<QPushButton>(window_, "EditButton"));
    Click(Control<QPushButton>(window_, "ReverseButton"));
    plan_.Then_answer(QMessageBox::No);
    EXPECT_TRUE(drop({good}));
    EXPECT_EQ(plan_.Messages().size(), 1U);
    EXPECT_FALSE(window_.Current_project() == before);  // still reversed
}

TEST_F(MainWindowTest, ABoxShowsItsMessageAsItIsAndEscapeIsNo) {
    QtMessages messages(window_);
    plan_.Then_answer(QMessageBox::Yes).Then([](QWidget& box) { Press(box, Qt::Key_Escape); });
    EXPECT_TRUE(Ask(messages, "Title", "<b>as it is</b>\nsecond line"));
    EXPECT_FALSE(Ask(messages, "Title", "Exit?"));
    EXPECT_NO_THROW(plan_.Finish());
    EXPECT_EQ(plan_.Messages().front(), "Title: <b>as it is</b>\nsecond line");
}

}  // namespace
}  // namespace tidemark
