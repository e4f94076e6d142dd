// Undo and redo on the real windows: every command that changes the project is taken back and done
// again, with all that the windows show, and the next click goes where it would have gone.
#include <QDropEvent>
#include <QMimeData>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "fakes/window_test.h"

namespace tidemark {
namespace {

class UndoTest : public testing::Test {
  protected:
    UndoTest() {
        for (const char* const map : {"map.bmp", "map2.bmp"})
            Write_file(folder_ / map, BMP_bytes(768, 768).toStdString());
        Project p;
        Place_area(p, 3, 5, 5, 7);
        p.BackgroundFile = folder_ / "map.bmp";
        p.BackgroundLoaded = p.PrefsSet = true;
        p.OutputRoot = "a.asm";
        p.ProjectFile = folder_ / "first.TDM";
        Add_segment(p, 1, 80, {{4848, 5400}, {4900, 5420}, {5000, 5450}, {5103, 5500}});
        Add_segment(p, 5, 40, {{5000, 5600}, {5100, 5700}});
        Add_polygon(p, 3, 5, WaterPolygon, 0, 4);
        Add_polygon(p, 4, 5, LandPolygon, ConformsHeight, 5);
        Add_cleared_cell(p, 3, 5, ClearRivers);
        Write_file(p.ProjectFile, Project_bytes(p, "then"));
        p.BackgroundFile = folder_ / "map2.bmp";
        p.ProjectFile = folder_ / "second.TDM";
        p.PrefsSet = false;
        p.VTPCount = 2;
        Write_file(p.ProjectFile, Project_bytes(p, "then"));
        window_.show();
        window_.Open(QString::fromStdString(folder_ / "first.TDM"));
        Click(Of_panel<QCheckBox>("NewSegment"));
    }

    // All that an undo has to bring back, as the windows show it.
    struct Seen {
        Project Kept;
        QStringList Shown;

        bool operator==(const Seen&) const = default;
    };
    Seen See() {
        QStringList shown{window_.windowTitle(),
                          QString::fromStdString(Control<MapView>(window_, "MapView").Shown_file()),
                          Of_panel<QCheckBox>("NewSegment").isChecked() ? "new" : "same"};
        for (const char* const name : {"FileSave", "LWMsave", "VTPsave", "BackgroundProperties"})
            shown << QString(name) + (Action(name).isEnabled() ? " on" : " off");
        for (const char* const name : {"VTPlistbox", "LWMlistBox", "KillListBox"}) {
            shown << QString::number(Of_panel<ListBox>(name).Selected());
            for (const std::string& line : Of_panel<ListBox>(name).Lines())
                shown << QString::fromStdString(line);
        }
        return {window_.Current_project(), shown};
    }

    void Choose_mode(const char* item) {
        auto& modes = Of_panel<QComboBox>("DrawModeCombo");
        Press(modes, Qt::Key_Home);
        while (modes.currentText() != item) Press(modes, Qt::Key_Down);
    }
    void Select(const char* list, int line) {
        Press(Of_panel<ListBox>(list), Qt::Key_Home);
        for (int i = 0; i < line; ++i) Press(Of_panel<ListBox>(list), Qt::Key_Down);
    }
    void Delete_line(const char* list, int line) {
        Select(list, line);
        Press(Of_panel<ListBox>(list), Qt::Key_Delete);
    }
    void Answer(const char* menu, const char* entry) {
        Choose_entry(window_, menu, entry);
        EXPECT_NO_THROW(plan_.Finish());
    }
    void Plan_properties(const char* right_column) {
        plan_.Then([right_column](QWidget& dialog) {
            Type(Control<QLineEdit>(dialog, "LOD13brX"), right_column);
            Press(dialog, Qt::Key_Return);
        });
    }

    // With Ctrl, in the window that has the keyboard.
    static void Press_in(QWidget& window, Qt::Key key) {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; }));
        QTest::keyClick(&window, key, Qt::ControlModifier);
    }

    template <class T>
    T& Of_panel(const char* name) {
        return Control<T>(panel_, name);
    }
    template <class T>
    T& Of_check(const char* name) {
        return Control<T>(window_, QString("CoastCheck/") + name);
    }
    QAction& Action(const char* name) { return *window_.findChild<QAction*>(name); }

    TemporaryFolder folder_;
    TidemarkMain window_;
    Status& panel_ = Control<Status>(window_, "Status");
    QWidget& canvas_ = Control<QWidget>(window_, "Picture2");
    Plan plan_;
};

TEST_F(UndoTest, EveryCommandIsTakenBackAndDoneAgainAndTheNextClickGoesWhereItWouldHaveGone) {
    const auto click = [this] { Click_at(canvas_, {20, 60}); };
    struct Command {
        const char* Step;
        std::function<void()> Do;
    };
    const std::vector<Command> commands{
        {"add point 7", click},
        {"add point 3",
         [&] {
             Select("VTPlistbox", 2);
             click();
         }},
        {"add water polygon [ 3, 6 ]",
         [&] {
             Choose_mode("Water polygon");
             Click_at(canvas_, {40, 300});
         }},
        {"clear cell [ 3, 5 ]",
         [&] {
             Choose_mode("Clear existing major roads in LOD13 cell");
             click();
         }},
        {"delete point 1", [this] { Delete_line("VTPlistbox", 0); }},
        {"delete point 6",
         [this] {
             Select("VTPlistbox", 5);
             Press(canvas_, Qt::Key_Delete);
         }},
        {"delete polygon 2", [this] { Delete_line("LWMlistBox", 1); }},
        {"delete cleared cell 1", [this] { Delete_line("KillListBox", 0); }},
        {"reverse the segment at point 2",
         [this] {
             Select("VTPlistbox", 1);
             Click(Of_panel<QPushButton>("ReverseButton"));
         }},
        {"change the segment width at point 6",
         [this] {
             Select("VTPlistbox", 5);
             Type(Of_panel<QLineEdit>("VTPwidthText"), "33");
             Click(Of_panel<QPushButton>("ChangeButton"));
         }},
        {"edit point 4",
         [this] {
             Select("VTPlistbox", 3);
             plan_.Then([](QWidget& dialog) {
                 Type(Control<QLineEdit>(dialog, "VTPX"), "5102");
                 Press(dialog, Qt::Key_Return);
             });
             Press(canvas_, Qt::Key_E);
         }},
        {"fill along the coast",
         [this] {
             Choose_mode("Water polygon");
             Click_at(canvas_, {40, 300});
             Select("LWMlistBox", 2);
             plan_.Then([](QWidget& dialog) {
                 Click(Control<QCheckBox>(dialog, "FillInside"));
                 Press(dialog, Qt::Key_Return);
             });
             Action("FillCoast").trigger();
         }},
        {"clear along the coast",
         [this] {
             Select("VTPlistbox", 1);
             Action("ClearCoast").trigger();
         }},
        {"mend cell [ 4, 5 ]",
         [this] {
             Action("CoastCheck").trigger();
             for (const Qt::Key key : {Qt::Key_Home, Qt::Key_End})
                 Press(Of_check<ListBox>("FindingList"), key);
             Click(Of_check<QPushButton>("MendButton"));
         }},
        {"mend the coast",
         [this] {
             Action("CoastCheck").trigger();
             Click(Of_check<QPushButton>("MendAllButton"));
         }},
        {"import coast",
         [this] {
             Write_file(folder_ / "coast.json",
                        R"({"type": "LineString",
                            "coordinates": [[-179.98, 89.93], [-179.94, 89.92], [-179.9, 89.93]]})");
             plan_.Then([](QWidget& dialog) {
                 Click(Control<QPushButton>(dialog, "CoastFileButton"));
                 Press(dialog, Qt::Key_Return);
             });
             plan_.Then_choose(QString::fromStdString(folder_ / "coast.json"));
             Action("ImportCoast").trigger();
         }},
        {"change background properties",
         [this] {
             Plan_properties("6");
             Answer("BackgroundMenu", "BackgroundProperties");
         }},
        {"change output preferences",
         [this] {
             plan_.Then([](QWidget& dialog) {
                 Type(Control<QLineEdit>(dialog, "RootText"), "b.asm");
                 Press(dialog, Qt::Key_Return);
             });
             Answer("Output", "OutputPreferences");
         }},
        {"load background image",  // with its clearing
         [this] {
             Select("VTPlistbox", 1);
             Click(Of_panel<QPushButton>("ReverseButton"));
             plan_.Then_answer(QMessageBox::Yes)
                 .Then_choose(QString::fromStdString(folder_ / "map2.bmp"));
             Plan_properties("31");
             Answer("BackgroundMenu", "BackgroundLoad");
         }},
        {"open second.TDM",
         [this] {
             plan_.Then_choose(QString::fromStdString(folder_ / "second.TDM"));
             Answer("FileMenu", "FileOpen");
         }},
        {"open none.TDM",
         [this] {
             plan_.Then_choose(QString::fromStdString(folder_ / "none.TDM")).Then_answer();
             Answer("FileMenu", "FileOpen");
         }},
        {"open first.TDM",  // dropped over another
         [this] {
             window_.Open(QString::fromStdString(folder_ / "second.TDM"));
             QMimeData data;
             data.setUrls({QUrl::fromLocalFile(QString::fromStdString(folder_ / "first.TDM"))});
             QDragEnterEvent enter({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
             QDropEvent drop({9, 9}, Qt::CopyAction, &data, Qt::LeftButton, {});
             for (QEvent* const event : {static_cast<QEvent*>(&enter), static_cast<QEvent*>(&drop)})
                 QCoreApplication::sendEvent(&window_, event);
             QCoreApplication::processEvents();
         }},
    };
    for (const auto& [step, command] : commands) {
        SCOPED_TRACE(step);
        while (Action("EditUndo").isEnabled() && !window_.windowTitle().endsWith("dmark"))
            Action("EditUndo").trigger();
        window_.Open(QString::fromStdString(folder_ / "first.TDM"));
        if (Of_panel<QCheckBox>("NewSegment").isChecked()) Click(Of_panel<QCheckBox>("NewSegment"));
        Choose_mode("Coastline (river)");
        Of_panel<QCheckBox>("NewSegment").setChecked(false);
        command();
        const Seen after = See();
        EXPECT_EQ(Action("EditUndo").toolTip().toStdString(),
                  "Undo: " + std::string(step) + " (Ctrl+Z)");
        Press_in(window_, Qt::Key_Z);
        const Seen before = See();
        EXPECT_FALSE(before == after);
        EXPECT_EQ(window_.statusBar()->currentMessage().toStdString(),
                  "Undone: " + std::string(step));
        Press_in(window_, Qt::Key_Y);
        EXPECT_TRUE(See() == after) << See().Shown.join("\n").toStdString();
        Press_in(panel_, Qt::Key_Z);
        EXPECT_TRUE(See() == before) << See().Shown.join("\n").toStdString();
        click();
        const Seen clicked = See();
        Action("EditUndo").trigger();
        EXPECT_TRUE(See() == before);
        EXPECT_FALSE(clicked == before);
    }
}

TEST_F(UndoTest, EverythingIsUndoneDownToTheEmptyWindow) {
    Click_at(canvas_, {30, 30});
    EXPECT_TRUE(window_.Current_session().DataChanged);
    Action("EditUndo").trigger();
    EXPECT_FALSE(window_.Current_session().DataChanged) << "as the file has it";
    Action("EditUndo").trigger();
    EXPECT_FALSE(Action("EditUndo").isEnabled());
    EXPECT_EQ(window_.windowTitle(), "Tidemark");
    EXPECT_TRUE(Control<QLabel>(window_, "BeginLabel").isVisible());
    EXPECT_TRUE(window_.Current_project() == Project());
    Action("EditRedo").trigger();
    EXPECT_EQ(window_.windowTitle(), "Tidemark - FIRST.TDM");
    EXPECT_TRUE(canvas_.isVisible() && Action("BackgroundProperties").isEnabled());
}

TEST_F(UndoTest, ATextFieldThatIsEditedKeepsItsOwnKeyAndADialogTheProject) {
    auto& width = Of_panel<QLineEdit>("VTPwidthText");
    panel_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel_));
    Click_at(canvas_, {30, 30});
    Type(width, "33");
    QTest::keyClick(&width, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window_.Current_project().VTPCount, 7) << "the field took it";
    while (width.isUndoAvailable()) width.undo();
    QTest::keyClick(&width, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(window_.Current_project().VTPCount, 6) << "the field had nothing to undo";

    Select("VTPlistbox", 1);
    Press(canvas_, Qt::Key_Delete);
    plan_.Then([this](QWidget& dialog) {
        QTest::keyClick(&dialog, Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(window_.Current_project().VTPCount, 5);
        dialog.close();
    });
    Click(Of_panel<QPushButton>("EditButton"));
    EXPECT_EQ(window_.Current_project().VTPCount, 5);
}

}  // namespace
}  // namespace tidemark
