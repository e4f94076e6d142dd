// The main window, driven as a user would.
#include <fstream>

#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <gtest/gtest.h>

#include "app/tidemark_main_window.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "model/project_file.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

class MainWindowTest : public testing::Test {
  protected:
    MainWindowTest() { window_.show(); }

    // A project file with a river and no background, its preferences set.
    QString Write_project(const std::string& name) {
        Project p;
        Add_segment(p, 5, 80, {{5000, 6000}, {5010, 6000}});
        p.PrefsSet = true;
        p.VTPFileName = folder_ / "river-VTP.asm";
        p.ProjectFile = folder_ / name;
        DiskFiles().Replace(p.ProjectFile, Project_bytes(p, "then"));
        return QString::fromStdString(p.ProjectFile);
    }

    bool Is_enabled(const char* entry) { return window_.findChild<QAction*>(entry)->isEnabled(); }

    TemporaryFolder folder_;
    TidemarkMain window_;
    Plan plan_;
};

struct EntryLine {
    const char *Menu, *Name, *Caption;
    bool Enabled;
};

TEST_F(MainWindowTest, TheMenuIsWholeAndStartsAsItShould) {
    constexpr EntryLine expected[] = {
        {"FileMenu", "FileOpen", "&Open Project", true},
        {"FileMenu", "FileSave", "&Save Project", false},
        {"FileMenu", "FileSaveAs", "Save Project &As ...", true},
        {"FileMenu", "FileExit", "E&xit", true},
        {"BackgroundMenu", "BackgroundLoad", "&Load background image", true},
        {"BackgroundMenu", "BackgroundProperties", "Change background &properties", false},
        {"Output", "LWMsave", "Save &LWM data to file", false},
        {"Output", "VTPsave", "Save &VTP data to file", false},
        {"Output", "OutputPreferences", "&Preferences", true},
        {"HelpMenu", "ShowStatus", "&Show Status Panel", true},
        {"HelpMenu", "CellCalc", "&Cell Calculator", true},
        {"HelpMenu", "Instructions", "&Instructions", true},
        {"HelpMenu", "Tutorial", "&Tutorial", true},
        {"HelpMenu", "HelpAbout", "&About", true},
    };
    for (const EntryLine& entry : expected) {
        const auto actions = Control<QMenu>(window_, entry.Menu).actions();
        const auto* const action = window_.findChild<QAction*>(entry.Name);
        ASSERT_TRUE(action && actions.contains(action)) << entry.Name;
        EXPECT_EQ(action->text(), entry.Caption);
        EXPECT_EQ(action->isEnabled(), entry.Enabled) << entry.Name;
    }
    EXPECT_EQ(window_.windowTitle(), "Tidemark");
}

TEST_F(MainWindowTest, ThePanelStandsBesideTheMapAndCanBeHiddenAndShown) {
    auto& panel = Control<Status>(window_, "Status");
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.windowTitle(), "Tidemark - Status Panel");
    EXPECT_FALSE(panel.frameGeometry().intersects(window_.frameGeometry()));
    EXPECT_EQ(Control<QLabel>(panel, "StatusLabel1").text(), "--");
    Click(Control<QPushButton>(panel, "HideButton"));
    EXPECT_FALSE(panel.isVisible());
    Choose_entry(window_, "HelpMenu", "ShowStatus");
    EXPECT_TRUE(panel.isVisible());
    panel.close();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(window_.isVisible());
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
    const QString path = Write_project("river one.tdm");
    const QString copy = QString::fromStdString(folder_ / "copy");
    // Then the file is saved, the compiler is missed, and the project is saved under its new name.
    plan_.Then_choose(path).Then_answer().Then_answer().Then_choose(copy).Then_answer();
    Choose_entry(window_, "FileMenu", "FileOpen");
    EXPECT_EQ(window_.windowTitle(), "Tidemark - RIVER ONE.TDM");
    EXPECT_EQ(window_.Current_project().VTPCount, 2);
    EXPECT_TRUE(Is_enabled("FileSave"));
    EXPECT_TRUE(Is_enabled("VTPsave"));

    Choose_entry(window_, "Output", "VTPsave");
    EXPECT_TRUE(std::ifstream(folder_ / "river-VTP.asm").good());

    Choose_entry(window_, "FileMenu", "FileSaveAs");
    EXPECT_EQ(window_.windowTitle(), "Tidemark - COPY.TDM");
    EXPECT_TRUE(std::ifstream(folder_ / "copy.TDM").good());
    ASSERT_NO_THROW(plan_.Finish());
    ASSERT_EQ(plan_.Messages().size(), 3U);
    EXPECT_EQ(plan_.Messages()[0], "Tidemark - File saved: VTP file saved OK");
    EXPECT_TRUE(plan_.Messages()[1].contains("BGLC.EXE was not found!"));
    EXPECT_EQ(plan_.Messages()[2], "Tidemark - Saved OK: " + copy + ".TDM saved successfully");
}

TEST_F(MainWindowTest, ARefusedFileIsNamedInTheStatusBarAndTheProjectStays) {
    window_.Open(Write_project("good.tdm"));
    const Project before = window_.Current_project();
    std::ofstream(folder_ / "bad.tdm") << "x saved on y\n1\n2\n3\n4\n70000\n";
    window_.Open(QString::fromStdString(folder_ / "bad.tdm"));
    EXPECT_EQ(window_.statusBar()->currentMessage(),
              "bad.tdm, line 6: BGLOD8X does not fit -32768..32767: 70000");
    EXPECT_EQ(window_.windowTitle(), "Tidemark - GOOD.TDM");
    EXPECT_TRUE(window_.Current_project() == before);
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

TEST_F(MainWindowTest, AProjectFileCanBeDroppedAndOtherThingsCannot) {
    const auto drop = [this](const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths) urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QDropEvent drop_event({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&window_, &enter);
        QCoreApplication::sendEvent(&window_, &drop_event);
        QCoreApplication::processEvents();
        return enter.isAccepted();
    };
    const QString path = Write_project("Dropped.TDM");
    EXPECT_FALSE(drop({"/some/map.jpg"}));
    EXPECT_FALSE(drop({path, path}));
    EXPECT_EQ(window_.windowTitle(), "Tidemark");
    EXPECT_TRUE(drop({path}));
    EXPECT_EQ(window_.windowTitle(), "Tidemark - DROPPED.TDM");
}

TEST_F(MainWindowTest, ExitWithoutChangesEndsAtOnce) {
    Choose_entry(window_, "FileMenu", "FileExit");
    EXPECT_FALSE(window_.isVisible());
    EXPECT_FALSE(Control<Status>(window_, "Status").isVisible());
    EXPECT_TRUE(plan_.Messages().empty());
}

}  // namespace
}  // namespace tidemark
