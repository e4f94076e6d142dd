// The main window and its boxes, driven as a user would.
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>

#include "app/tidemark_main_window.h"
#include "fakes/window_test.h"
#include "platform/qt_messages.h"

namespace tidemark {

// " [Ctrl+Z; Ctrl+Y]"
static QString Keys(const QAction& entry) {
    const QString keys = QKeySequence::listToString(entry.shortcuts());
    return keys.isEmpty() ? "" : " [" + keys + "]";
}

class MainWindowTest : public testing::Test {
  protected:
    MainWindowTest() { window_.show(); }
    void TearDown() override { EXPECT_NO_THROW(plan_.Finish()); }

    // A project file with a river and no background, its preferences set.
    QString Write_project(const char* name) {
        Project p;
        Add_segment(p, 5, 80, {{5000, 6000}, {5010, 6000}});
        p.PrefsSet = true;
        p.ProjectFile = folder_ / name;
        Write_file(p.ProjectFile, Project_bytes(p, "then"));
        return QString::fromStdString(p.ProjectFile);
    }

    // Drops the files on the window and returns whether it would take them.
    bool Drop(const QStringList& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths) urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
        enter.ignore();
        QCoreApplication::sendEvent(&window_, &enter);
        QCoreApplication::sendEvent(&window_, &drop);
        QCoreApplication::processEvents();
        return enter.isAccepted();
    }

    TemporaryFolder folder_;
    TidemarkMain window_;
    Status& panel_ = Control<Status>(window_, "Status");
    Plan plan_;
};

TEST_F(MainWindowTest, TheBarsAreWholeAndStartAsTheyShould) {
    QString bars;
    const auto add = [&](const QWidget& bar, const QString& caption) {
        bars += bar.objectName() + ": " + caption + '\n';
        for (const QAction* const entry : bar.actions())
            bars += "  " + entry->objectName() +
                    (entry->isSeparator() ? "" : ": " + entry->text()) + Keys(*entry) +
                    (entry->isEnabled() ? "\n" : " (not yet)\n");
    };
    for (const QAction* const menu : window_.menuBar()->actions()) add(*menu->menu(), menu->text());
    for (const QToolBar* const bar : window_.findChildren<QToolBar*>())
        add(*bar, bar->windowTitle());
    EXPECT_EQ(bars.toStdString(), Source_file("tests/app/data/bars.txt"));
    EXPECT_EQ(window_.windowTitle(), "Tidemark");
}

TEST_F(MainWindowTest, ThePanelStandsBesideTheMapAndCanBeHiddenAndShownUntilTheExit) {
    EXPECT_FALSE(panel_.frameGeometry().intersects(window_.frameGeometry()));
    Click(Control<QPushButton>(panel_, "HideButton"));
    EXPECT_FALSE(panel_.isVisible());
    Choose_entry(window_, "HelpMenu", "ShowStatus");
    EXPECT_TRUE(panel_.isVisible());
    Choose_entry(window_, "FileMenu", "FileExit");
    EXPECT_FALSE(window_.isVisible() || panel_.isVisible());
    EXPECT_TRUE(plan_.Messages().empty());
}

TEST_F(MainWindowTest, TheDialogsOfThePanelLeadBackToIt) {
    window_.Open(Write_project("river.tdm"));
    auto& list = Control<ListBox>(panel_, "VTPlistbox");
    Press(list, Qt::Key_Down);
    list.setFocus();
    panel_.activateWindow();
    plan_.Then([](QWidget& dialog) { Press(dialog, Qt::Key_Escape); }).Then_answer();
    Control<QLineEdit>(panel_, "VTPwidthText").setText("999");
    for (const char* const button : {"EditButton", "ChangeButton"}) {
        QApplication::processEvents();
        Control<QPushButton>(panel_, button).click();
        QApplication::processEvents();
        EXPECT_TRUE(list.hasFocus()) << button;
    }
}

TEST_F(MainWindowTest, ANewProjectCanBeSavedAgainOnceItHasAName) {
    plan_.Then_choose(QString::fromStdString(folder_ / "new.TDM")).Then_answer();
    Choose_entry(window_, "FileMenu", "FileSaveAs");
    EXPECT_TRUE(window_.findChild<QAction*>("FileSave")->isEnabled());
}

TEST_F(MainWindowTest, AMovedProjectIsSavedWhereItWasAndKeepsTheTitleItWasOpenedUnder) {
    const QString moved = QString::fromStdString(folder_ / "moved one.tdm");
    ASSERT_TRUE(QFile::copy(Write_project("stored.tdm"), moved));
    plan_.Then_choose(moved).Then_answer(QMessageBox::No);
    Choose_entry(window_, "FileMenu", "FileOpen");
    Choose_entry(window_, "FileMenu", "FileSave");
    EXPECT_TRUE(plan_.Messages().at(0).contains("stored.tdm - file exists - overwrite?"));
    EXPECT_EQ(window_.windowTitle(), "Tidemark - MOVED ONE.TDM");
}

TEST_F(MainWindowTest, AProjectThatNamesItsPictureWithoutAFolderOpensFromAnyFolder) {
    Project p;
    p.BackgroundFile = "bay.bmp";
    p.BackgroundLoaded = true;
    Write_file(folder_ / "bay.tdm", Project_bytes(p, "then"));
    QImage(30, 20, QImage::Format_RGB32).save(QString::fromStdString(folder_ / "bay.bmp"));
    window_.Open(QString::fromStdString(folder_ / "bay.tdm"));
    EXPECT_TRUE(window_.Current_project().BackgroundLoaded);
    EXPECT_EQ(window_.Current_project().BackgroundFile, "bay.bmp");
    EXPECT_EQ(Control<MapView>(window_, "MapView").Canvas_size(), QSize(30, 20));
}

TEST_F(MainWindowTest, AProjectFileCanBeDroppedAndARefusedOneLeavesTheProject) {
    const QString good = Write_project("good.TDM");
    const std::string bad = folder_ / "bad.tdm";
    Write_file(bad, "x saved on y\n1\n2\n3\n4\n70000\n");
    EXPECT_FALSE(Drop({"/some/map.jpg"}));
    EXPECT_FALSE(Drop({good, good}));
    EXPECT_EQ(window_.windowTitle(), "Tidemark");
    EXPECT_TRUE(Drop({good}));
    const Project before = window_.Current_project();
    EXPECT_EQ(before.VTPCount, 2);
    EXPECT_TRUE(Drop({QString::fromStdString(bad)}));
    EXPECT_EQ(window_.statusBar()->currentMessage(),
              "bad.tdm, line 6: BGLOD8X does not fit -32768..32767: 70000");
    EXPECT_EQ(window_.windowTitle(), "Tidemark - GOOD.TDM");
    EXPECT_TRUE(window_.Current_project() == before);

    Press(Control<ListBox>(window_, "VTPlistbox"), Qt::Key_Down);
    plan_.Then([&](QWidget& dialog) {
        EXPECT_FALSE(Drop({good}));  // not under a dialog
        Press(dialog, Qt::Key_Escape);
    });
    Click(Control<QPushButton>(window_, "EditButton"));
    Click(Control<QPushButton>(window_, "ReverseButton"));
    plan_.Then_answer(QMessageBox::No);
    EXPECT_TRUE(Drop({good}));
    EXPECT_EQ(plan_.Messages().size(), 1U);
    EXPECT_FALSE(window_.Current_project() == before);  // still reversed
}

TEST_F(MainWindowTest, ABoxShowsItsMessageAsItIsAndEscapeIsNo) {
    QtMessages messages(window_);
    plan_.Then_answer(QMessageBox::Yes).Then([](QWidget& box) { Press(box, Qt::Key_Escape); });
    EXPECT_TRUE(Ask(messages, "Title", "<b>as it is</b>\nsecond line"));
    EXPECT_FALSE(Ask(messages, "Title", "Exit?"));
    EXPECT_EQ(plan_.Messages().front(), "Title: <b>as it is</b>\nsecond line");
}

}  // namespace tidemark
