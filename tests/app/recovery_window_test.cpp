// Lost work, offered and gone on with on the real windows; and the project's file under watch.
#include <QStatusBar>

#include "app/recovery.h"
#include "app/tidemark_main_window.h"
#include "fakes/window_test.h"

namespace tidemark {
namespace {

class RecoveryWindowTest : public testing::Test {
  protected:
    RecoveryWindowTest() {
        Add_segment(lost_, 1, 80, {{5000, 6000}, {5010, 6000}});
        Add_cleared_cell(lost_, 3, 5, ClearRivers);
        lost_.ProjectFile = "/maps/coast[*].TDM";
    }

    // An editor was killed that worked on this project.
    void Lose(const Project& project) {
        DiskFiles files;
        EXPECT_TRUE(
            Recovery(folder_ / "state", files).Write(project.ProjectFile, project, "then", {}));
    }

    // How many lost works there are for another editor to find.
    std::size_t Left() {
        DiskFiles files;
        return Recovery(folder_ / "state", files).Find_lost().Found.size();
    }

    // The user presses this button of the box that comes up.
    void Answer(const char* button) {
        plan_.Then([this, button](QWidget& box) {
            text_ = qobject_cast<QMessageBox*>(&box)->text();
            EXPECT_EQ(box.objectName() + box.windowTitle(), "RecoveryTidemark - Recovery");
            Click(Control<QPushButton>(box, button));
        });
    }

    void Start() {
        window_.show();
        window_.Keep_work_in(folder_ / "state");
        QCoreApplication::processEvents();
        EXPECT_NO_THROW(plan_.Finish());
    }

    TemporaryFolder folder_;
    Project lost_;
    TidemarkMain window_;
    Plan plan_;
    QString text_;
};

TEST_F(RecoveryWindowTest, RecoveredWorkIsTheProjectUnsavedUntilItIsSavedOrUndone) {
    Lose(lost_);
    Answer("RecoverButton");
    Start();
    for (const char* const part : {"coast[*].TDM was not saved", "File: /maps/coast[*].TDM", "then",
                                   "2 points, 0 polygons and 1 cleared cell."})
        EXPECT_TRUE(text_.contains(part)) << part << " is not in " << text_.toStdString();
    EXPECT_TRUE(window_.Current_project() == lost_);
    EXPECT_TRUE(window_.Current_session().DataChanged);
    EXPECT_EQ(window_.windowTitle(), "Tidemark - COAST[*][*].TDM") << "shown as [*]";
    EXPECT_EQ(Left(), 0U) << "this editor has it";
    window_.findChild<QAction*>("EditUndo")->trigger();
    EXPECT_TRUE(window_.Current_project() == Project());
    QCoreApplication::processEvents();
    EXPECT_TRUE(DiskFiles().Exists(folder_ / "state/1.recovery")) << "nobody has given it up";
    window_.findChild<QAction*>("EditRedo")->trigger();
    EXPECT_TRUE(window_.Current_project() == lost_);
    plan_.Then_choose(QString::fromStdString(folder_ / "saved.TDM")).Then_answer();
    Choose_entry(window_, "FileMenu", "FileSaveAs");
    const auto is_gone = [&] { return !DiskFiles().Exists(folder_ / "state/1.recovery"); };
    EXPECT_TRUE(QTest::qWaitFor(is_gone, 3000)) << "what is saved is not lost";
    EXPECT_NO_THROW(plan_.Finish());
}

// A box of the opening is up when the offer is due.
TEST_F(RecoveryWindowTest, WorkIsOfferedAfterTheProjectThatWasAskedForIsOpen) {
    Lose(lost_);
    Project given;
    given.BackgroundFile = folder_ / "gone.bmp";
    given.BackgroundLoaded = true;
    given.ProjectFile = folder_ / "a.TDM";
    Write_file(given.ProjectFile, Project_bytes(given, "then"));
    plan_.Then([](QWidget& warning) {
        QTest::qWait(300);
        Press(warning, Qt::Key_Return);
    });
    Answer("RecoverButton");
    window_.show();
    window_.Keep_work_in(folder_ / "state");
    window_.Open(QString::fromStdString(given.ProjectFile));
    EXPECT_TRUE(window_.Current_project() == [&] {
        Project opened = given;
        opened.BackgroundLoaded = false;
        return opened;
    }());
    EXPECT_TRUE(QTest::qWaitFor([&] { return window_.Current_project() == lost_; }, 3000));
    EXPECT_NO_THROW(plan_.Finish());
    EXPECT_TRUE(window_.Current_session().DataChanged);
    EXPECT_TRUE(DiskFiles().Exists(folder_ / "state/1.recovery"));
    window_.findChild<QAction*>("EditUndo")->trigger();
    EXPECT_EQ(window_.windowTitle(), "Tidemark - A.TDM");
}

TEST_F(RecoveryWindowTest, ALogoutThatIsCancelledAsksAgain) {
    Start();
    Write_file(folder_ / "a.TDM", Project_bytes(lost_, "then"));
    window_.Open(QString::fromStdString(folder_ / "a.TDM"));
    auto& list = Control<ListBox>(window_, "VTPlistbox");
    Press(list, Qt::Key_Down);
    Click(Control<QPushButton>(window_, "ReverseButton"));
    window_.findChild<Safekeeping*>()->Session_ends();
    EXPECT_TRUE(DiskFiles().Exists(folder_ / "state/1.recovery")) << "written at once";
    Press(list, Qt::Key_Delete);  // the user goes on
    plan_.Then_answer(QMessageBox::No);
    EXPECT_FALSE(window_.close());
    EXPECT_NO_THROW(plan_.Finish());
}

TEST_F(RecoveryWindowTest, LaterKeepsItAndDiscardRemovesIt) {
    Lose(lost_);
    Lose(Project());
    Answer("LaterButton");
    Answer("DiscardButton");
    Start();
    EXPECT_TRUE(window_.Current_project() == Project());
    EXPECT_FALSE(window_.findChild<QAction*>("EditUndo")->isEnabled());
    EXPECT_EQ(Left(), 1U);
}

TEST_F(RecoveryWindowTest, WorkIsKeptSoonAfterAChangeAndGoneAfterAnOrderlyExit) {
    Start();
    Write_file(folder_ / "a.TDM", Project_bytes(lost_, "then"));
    window_.Open(QString::fromStdString(folder_ / "a.TDM"));
    const std::string kept = folder_ / "state/1.recovery";
    QTest::qWait(1500);
    EXPECT_FALSE(DiskFiles().Exists(kept)) << "nothing has changed";
    Press(Control<ListBox>(window_, "VTPlistbox"), Qt::Key_Down);
    Press(Control<ListBox>(window_, "VTPlistbox"), Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor([&] { return DiskFiles().Exists(kept); }, 2000));
    window_.findChild<QAction*>("EditUndo")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !DiskFiles().Exists(kept); }, 2000)) << "as saved";
    window_.findChild<QAction*>("EditRedo")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return DiskFiles().Exists(kept); }, 4000));
    plan_.Then_answer(QMessageBox::Yes);  // to the exit's question
    window_.close();
    EXPECT_FALSE(DiskFiles().Exists(kept));
}

TEST_F(RecoveryWindowTest, WhatCannotBeReadOrWrittenIsSaid) {
    Lose(lost_);
    Write_file(folder_ / "state/1.recovery", "Tidemark recovery 1\r\nspoilt");
    Start();
    EXPECT_TRUE(window_.statusBar()->currentMessage().contains("is damaged; it is kept as"));
    TidemarkMain other;
    Write_file(folder_ / "no folder", "");
    other.Keep_work_in(folder_ / "no folder");
    Write_file(folder_ / "a.TDM", Project_bytes(lost_, "then"));
    other.Open(QString::fromStdString(folder_ / "a.TDM"));
    Press(Control<ListBox>(other, "VTPlistbox"), Qt::Key_Down);
    Press(Control<ListBox>(other, "VTPlistbox"), Qt::Key_Delete);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            return other.statusBar()->currentMessage().contains("unsaved work cannot be kept: ");
        },
        3000));
}

TEST_F(RecoveryWindowTest, AFileThatAnotherProgramChangesOrTakesAwayIsNoticed) {
    const std::string path = folder_ / "a.TDM";
    lost_.ProjectFile = path;
    Write_file(path, Project_bytes(lost_, "then"));
    window_.Open(QString::fromStdString(path));
    EXPECT_EQ(window_.statusBar()->currentMessage(), "");
    plan_.Then_answer(QMessageBox::Yes).Then_answer();
    Choose_entry(window_, "FileMenu", "FileSave");
    QTest::qWait(100);
    EXPECT_EQ(window_.statusBar()->currentMessage(), "") << "our own save is no other program's";
    const auto comes_up = [&](const char* text) {
        return QTest::qWaitFor([&] { return window_.statusBar()->currentMessage().contains(text); },
                               2000);
    };
    plan_.Then_answer(QMessageBox::No);
    Choose_entry(window_, "FileMenu", "FileSave");
    Write_file(path, "another's");
    EXPECT_TRUE(comes_up("has been changed by another program"));
    DiskFiles().Delete(path);
    EXPECT_TRUE(comes_up("is gone"));
    EXPECT_TRUE(window_.statusBar()->toolTip().contains("is gone"));
}

}  // namespace
}  // namespace tidemark
