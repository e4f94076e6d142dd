// A user who does this and that at random on the real windows. After every action the project must
// be one that editing can make, and the panel and the menu must show it.
//
// TIDEMARK_RANDOM_ACTIONS in the environment makes the runs longer than they are in the tests.
#include <cstdlib>
#include <memory>

#include <QRegularExpression>
#include <QtMath>

#include "app/random_answers.h"
#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "coast/check.h"
#include "fakes/window_test.h"
#include "georef/geo_position.h"
#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "model/vtp_data.h"
#include "platform/qt_list_box.h"
#include "vtp_edit/vtp_list.h"

namespace tidemark {

// What no editing makes, "" when all is well. Columns and rows run to 32: the map's last pixel can
// lie just beyond its area.
static std::string Fault_in(const Project& p) {
    const auto within = [](int value, int lowest, int highest) {
        return lowest <= value && value <= highest;
    };
    const auto pair_within = [&](const auto& table, int lowest, int highest, auto... at) {
        return within(table(at..., 0), lowest, highest) && within(table(at..., 1), lowest, highest);
    };
    for (int i = 1; i <= p.VTPCount; ++i)
        if (!pair_within(p.VTPPoint, 4080, 12527, i) || !within(p.VTPWidth(i), 0, MaxVTPWidth) ||
            !Find_mode(p.VTPMode(i), Adds::Point) ||
            p.VTPSegEnd(i) != (i == p.VTPCount || p.VTPSegStart(i + 1)))
            return "point " + std::to_string(i);
    for (int k = 1; k <= p.KillCount; ++k)
        if (!pair_within(p.KillCell, 0, 32, k) || !Find_mode(p.KillType(k), Adds::ClearedCell))
            return "cleared cell " + std::to_string(k);
    for (int i = 1; i <= p.LWMCount; ++i) {
        const int height = p.LWMHeight(i);
        bool is_good = pair_within(p.LWMCell, 0, 32, i) && Find_mode(p.LWMType(i), Adds::Polygon) &&
                       (height == ConformsHeight || within(height, 0, MaxLWMHeight));
        for (int k = 1; k <= p.LWMPointCount(i); ++k)
            is_good &= pair_within(p.LWMPoint, 0, LastCellUnit, i, k);
        if (!is_good) return "polygon " + std::to_string(i);
    }
    const bool has_points = p.VTPCount > 0;
    return has_points && (!p.VTPSegStart(1) || p.VTPSegStart(p.VTPCount + 1)) ? "a start" : "";
}

// Shores from the west to the east edge of the LOD8 cells that the answers give a map.
static std::string Coast_bytes(RandomNumbers& random) {
    std::string lines;
    for (const auto& [column, row] : {std::pair{0, 0}, {122, 148}, {767, 511}})
        for (int y : {200, 1500, 7700}) {
            Project p;
            p.BGLOD8X = column;
            p.BGLOD8Y = row;
            std::string places;
            for (int x = 0; x < 8191; x += random.Number(20, 300)) {
                y = std::clamp(y + random.Number(-90, 90), 0, 8191);
                const auto [north, east] = Position_of(p, {FirstVTP + x, FirstVTP + y});
                places += (places.empty() ? "[" : ",[") + std::to_string(east) + "," +
                          std::to_string(north) + "]";
            }
            lines += (lines.empty() ? "[" : ",[") + places + "]";
        }
    return R"({"type":"MultiLineString","coordinates":[)" + lines + "]}";
}

class RandomUser {
  public:
    // Opens the project, with a map that is loaded and georeferenced. At about `most` entries a
    // list is rather emptied than filled further.
    RandomUser(unsigned seed, int most, Project project) : random_(seed), most_(most) {
        for (const char* map : {"map.bmp", "map2.bmp"})
            Write_file(folder_ / map, BMP_bytes(768, 768).toStdString());
        Write_file(folder_ / "broken.bmp", "BM");
        Write_file(folder_ / "coast.json", Coast_bytes(random_));
        Place_area(project, 3, 5, 5, 7);
        project.BackgroundFile = folder_ / "map.bmp";
        project.BackgroundLoaded = true;
        project.PrefsSet = false;
        project.ProjectFile = folder_ / "a.TDM";
        Write_file(project.ProjectFile, Project_bytes(project, "then"));
        window_.show();
        window_.Open(QString::fromStdString(project.ProjectFile));
    }

    void Play(int actions) {
        if (const char* const asked = std::getenv("TIDEMARK_RANDOM_ACTIONS"))
            actions = std::atoi(asked);
        std::vector<int> weights;
        for (const Action& action : actions_) weights.push_back(action.Weight);
        for (int count = 0; count < actions && !testing::Test::HasFailure(); ++count) {
            const Action& action = actions_[random_.Weighted(weights)];
            SCOPED_TRACE(testing::Message() << "action " << count << ": " << action.Name);
            if (!action.OnPanel || panel_.isVisible()) action.Do();
            Check();
            if (count % 64 == 0) QApplication::processEvents();  // events come faster than layouts
        }
        EXPECT_FALSE(Has_been_told("^Tidemark: "));  // the plain box
    }

    // Undoes everything and does it all again: both ends, and every kept value of them, come back.
    void Travel_through_everything() {
        while (Entry("EditRedo").isEnabled()) Entry("EditRedo").trigger();
        const auto last = std::make_unique<Project>(Now());
        while (Entry("EditUndo").isEnabled()) Entry("EditUndo").trigger();
        const bool is_whole = window_.Current_document().History_bytes() < MaxHistoryBytes / 2;
        const std::string saved_as = Now().ProjectFile;  // which is no step
        Project first;
        first.ProjectFile = saved_as;
        EXPECT_TRUE(!is_whole || Now() == first);
        while (Entry("EditRedo").isEnabled()) Entry("EditRedo").trigger();
        EXPECT_TRUE(Now() == *last);
    }

    void Save_and_open_again() {
        for (saved_.clear(); saved_.empty();) Save();  // until no question is answered with No
        TidemarkMain other;
        other.Open(QString::fromStdString(Now().ProjectFile));
        EXPECT_TRUE(other.Current_project() == As_opened(Now()));
    }

    bool Has_been_told(const char* pattern) const {
        return !answers_.Messages.filter(QRegularExpression(pattern)).isEmpty();
    }

  private:
    struct Action {
        const char* Name;
        int Weight;  // how often, beside the others
        std::function<void()> Do;
        bool OnPanel = true;  // done only while the panel is to be seen
    };

    // Each refresh of the list drops one of the closing points that polygons have.
    static Project As_opened(Project project) {
        Drop_closing_points(project);
        return project;
    }

    const Project& Now() const { return window_.Current_project(); }
    QAction& Entry(const QString& name) const { return *window_.findChild<QAction*>(name); }
    void Choose(const QString& entry) {
        if (Entry(entry).isEnabled()) Entry(entry).trigger();
    }
    template <class T>
    T& Of_panel(const QString& name) {
        return Control<T>(panel_, name);
    }
    void Click_panel(const QString& button) { Click(Of_panel<QAbstractButton>(button)); }
    const QString& Some(const QStringList& texts) { return random_.One_of(texts); }
    ListBox& Some_list() { return *random_.One_of(lists_); }

    // Mostly a step away from the last place, as a coast is drawn.
    void Click_map(Qt::MouseButton button) {
        const QRect seen =
            QRect(-canvas_.pos(), canvas_.parentWidget()->size()).intersected(canvas_.rect());
        const bool is_far = random_.One_in(4);
        const int most = is_far ? 768 : 120;
        place_ = (is_far ? QPoint() : place_) +
                 QPoint(random_.Number(-most, most), random_.Number(-most, most));
        place_ = {std::clamp(place_.x(), seen.left(), seen.right()),
                  std::clamp(place_.y(), seen.top(), seen.bottom())};
        Click_at(canvas_, place_, button);
        if (button == Qt::LeftButton)
            EXPECT_TRUE(window_.Current_session().DataChanged);
        else
            EXPECT_EQ(lists_[0]->Selected() >= 0, Now().VTPCount > 0);
    }

    void Choose_mode(int mode) {
        auto& modes = Of_panel<QComboBox>("DrawModeCombo");
        Press(modes, Qt::Key_Home);
        for (int i = 0; i < mode; ++i) Press(modes, Qt::Key_Down);
        EXPECT_EQ(modes.currentIndex(), mode);
        EXPECT_TRUE(mode == 0 || Of_panel<QCheckBox>("NewSegment").isChecked());
        const int code = DrawingModes[static_cast<std::size_t>(mode)].Code;
        EXPECT_TRUE(code != WaterPolygon || Of_panel<QRadioButton>("HeightOption").isChecked());
        EXPECT_TRUE(code != LandPolygon || Of_panel<QRadioButton>("ConformOption").isChecked());
    }

    void Delete_in(ListBox& list) {
        const bool changed = window_.Current_session().DataChanged;
        const bool is_full = static_cast<int>(list.Lines().size()) > most_;
        list.setFocus();
        for (int presses = random_.Number(1, is_full ? 12 : 2); presses > 0; --presses) {
            const int selected = list.Selected(), count = static_cast<int>(list.Lines().size());
            Press(list, Qt::Key_Delete);
            EXPECT_EQ(list.Selected(), count > 1 && selected == 0 ? 0 : std::max(selected - 1, -1));
        }
        EXPECT_EQ(window_.Current_session().DataChanged, changed);
        EXPECT_EQ(panel_.focusWidget(), &list);
    }

    void Delete_on_map() {
        const int gone = lists_[0]->Selected() >= 0 ? 1 : 0, before = Now().VTPCount;
        Press(canvas_, Qt::Key_Delete);
        EXPECT_EQ(Now().VTPCount, before - gone);
    }

    // As everything that only changes what is seen, these leave the project as it is.
    void Look_elsewhere() {
        const auto state = window_.Current_document().State();
        for (const char* const bar : {"HScroll1", "VScroll1"})
            Control<QScrollBar>(window_, bar).setValue(random_.Number(0, 2000));
        Choose(Some({"ZoomIn", "ZoomOut", "ZoomIn", "ZoomOut", "ZoomReset", "ZoomWhole",
                     "ShowChosen", "Marks", "MarkPointer", "MarkTint"}));
        EXPECT_EQ(window_.Current_document().State(), state);
    }

    void Pan() {
        const QPoint from = -canvas_.pos() + QPoint(50, 50);
        const QPoint to = from + QPoint(random_.Number(-90, 90), random_.Number(-90, 90));
        QTest::mousePress(&canvas_, Qt::MiddleButton, {}, from);
        QTest::mouseMove(&canvas_, to);
        QTest::mouseRelease(&canvas_, Qt::MiddleButton, {}, to);
    }

    // The cross moves about, and acts now and then.
    void Draw_by_keys() {
        if (!Entry("DrawByKeys").isChecked()) Choose("DrawByKeys");
        for (int keys = random_.Number(1, 12); keys > 0 && canvas_.Cross(); --keys) {
            QTest::keyClick(&canvas_, random_.One_of(arrows_), random_.One_of(held_));
            const MapScale& scale = Control<MapView>(window_, "MapView").Scale();
            const ScreenPoint at = scale.To_screen(*canvas_.Cross());
            EXPECT_TRUE(canvas_.parentWidget()->rect().contains(qFloor(at.X), qFloor(at.Y)));
        }
        const int before = Now().VTPCount + Now().LWMCount + Now().KillCount;
        QTest::keyClick(&canvas_, Qt::Key_Return, random_.One_of(held_));
        EXPECT_LE(Now().VTPCount + Now().LWMCount + Now().KillCount, before + 1);
        if (random_.One_in(5)) QTest::keyClick(&canvas_, Qt::Key_Escape);
    }

    void Mend() {
        Choose("CoastCheck");
        QApplication::processEvents();  // it is checked in a turn of its own
        Press(Control<ListBox>(window_, "FindingList"), random_.One_of(keys_));
        const bool all = random_.One_in(3);
        Click(Control<QPushButton>(window_, all ? "MendAllButton" : "MendButton"));
        const Findings left = Check_coast(Now());
        EXPECT_EQ(Entry("CoastCheck").iconText(), QString::number(left.size()));
        const bool is_refused = !Control<QLabel>(window_, "MendResult").text().isEmpty();
        for (const Finding& finding : left)
            EXPECT_TRUE(!all || is_refused || finding.Mending == Remedy::None)
                << Finding_line(finding);
        if (random_.One_in(3)) Press(Control<QDialog>(window_, "CoastCheck"), Qt::Key_Escape);
    }

    void Resize(QWidget& widget) {
        const QSize before = widget.size();
        widget.resize(widget.width() + random_.Number(-60, 60),
                      std::clamp(widget.height() + random_.Number(-60, 60), 500, 900));
        QApplication::processEvents();
        const bool is_reset = Of_panel<QComboBox>("DrawModeCombo").currentIndex() == 0;
        EXPECT_TRUE(&widget != &panel_ || widget.size() == before || is_reset);
    }

    void Save() {
        const auto messages = answers_.Messages.size();
        Choose(random_.One_in(6) ? "FileSaveAs" : "FileSave");
        if (answers_.Messages.mid(messages).filter("Tidemark - Saved OK").isEmpty()) return;
        EXPECT_FALSE(window_.Current_session().DataChanged);
        saved_[Now().ProjectFile] = std::make_unique<Project>(Now());
    }

    void Open(const char* name) {
        const auto messages = answers_.Messages.size();
        window_.Open(QString::fromStdString(folder_ / name));
        const auto saved = saved_.find(folder_ / name);
        if (saved == saved_.end() || answers_.Messages.size() != messages) return;
        EXPECT_TRUE(Now() == As_opened(*saved->second));
    }

    void Travel(const char* entry) {
        for (int steps = random_.Number(1, 9); steps > 0; --steps) Choose(entry);
    }

    void Check() {
        const Project& p = Now();
        EXPECT_EQ(Fault_in(p), "");
        const std::array lines{VTP_list_lines(p), LWM_list_lines(p), Kill_list_lines(p)};
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const ListBox& list = *lists_[i];
            EXPECT_TRUE(list.Lines() == lines[i]) << list.objectName().toStdString();
            EXPECT_EQ(list.model()->rowCount(), static_cast<int>(lines[i].size()));
            EXPECT_LT(list.Selected(), list.model()->rowCount());
            EXPECT_TRUE(list.Selected() < 0 || list.currentIndex().row() == list.Selected());
        }
        // Without data they are enabled from the preferences' confirmation to the next refresh.
        EXPECT_TRUE((p.PrefsSet && p.LWMCount == 0) || Entry("LWMsave").isEnabled() == p.PrefsSet);
        EXPECT_TRUE((p.PrefsSet && !Has_VTP_data(p)) || Entry("VTPsave").isEnabled() == p.PrefsSet);
        // All taken back, the window is empty, and what is done then has no name yet.
        const bool has_name = !window_.Current_session().Opened.Path.empty();
        EXPECT_EQ(Entry("FileSave").isEnabled(), has_name);
    }

    RandomNumbers random_;
    int most_;
    WorkingFolder folder_;
    TidemarkMain window_;
    Status& panel_ = Control<Status>(window_, "Status");
    MapCanvas& canvas_ = Control<MapCanvas>(window_, "Picture2");
    std::array<ListBox*, 3> lists_{&Of_panel<ListBox>("VTPlistbox"),
                                   &Of_panel<ListBox>("LWMlistBox"),
                                   &Of_panel<ListBox>("KillListBox")};
    RandomAnswers answers_{random_};
    QPoint place_;
    std::map<std::string, std::unique_ptr<Project>> saved_;  // by path

    const std::vector<Qt::Key> arrows_{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
    const std::vector<Qt::KeyboardModifiers> held_{{}, Qt::ShiftModifier, Qt::ControlModifier};
    const std::vector<Qt::Key> keys_{Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home, Qt::Key_End,
                                     Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space};
    const QStringList buttons_{"NewSegment",   "ReverseButton", "ChangeButton", "EditButton",
                               "HeightOption", "ConformOption", "RefreshButton"};
    const QStringList widths_{"80", "0", "300.5", "-0.4", "x", "", "40", "301", "-1"};
    const QStringList heights_{"0", "150.5", "10000", "x", "", "7", "10000.6", "99999"};
    const QStringList entries_{"FileOpen", "BackgroundLoad",    "BackgroundProperties",
                               "CellCalc", "OutputPreferences", "LWMsave",
                               "VTPsave",  "HelpAbout",         "ShowStatus"};

    const std::vector<Action> actions_{
        {"click on the map", 400, [this] { Click_map(Qt::LeftButton); }, false},
        {"right click on the map", 40, [this] { Click_map(Qt::RightButton); }, false},
        {"Delete on the map", 30, [this] { Delete_on_map(); }, false},
        {"E on the map", 5, [this] { Press(canvas_, Qt::Key_E); }, false},
        {"look elsewhere", 40, [this] { Look_elsewhere(); }, false},
        {"pan", 10, [this] { Pan(); }, false},
        {"draw by keys", 60, [this] { Draw_by_keys(); }, false},
        {"Mend", 20, [this] { Mend(); }, false},
        {"Fill", 20, [this] { Choose("FillCoast"); }, false},
        {"Clear along the coast", 5, [this] { Choose("ClearCoast"); }, false},
        {"Import", 12, [this] { Choose("ImportCoast"); }, false},
        {"Go to", 4, [this] { Choose("GoTo"); }, false},
        {"menu entry", 12, [this] { Choose(Some(entries_)); }, false},
        {"Save", 5, [this] { Save(); }, false},
        {"Undo", 60, [this] { Travel("EditUndo"); }, false},
        {"Redo", 40, [this] { Travel("EditRedo"); }, false},
        {"Open", 2, [this] { Open(random_.One_in(2) ? "a.TDM" : "b.TDM"); }, false},
        {"resize the window", 1, [this] { Resize(window_); }, false},
        {"resize the panel", 1, [this] { Resize(panel_); }},
        {"drawing mode", 60, [this] { Choose_mode(random_.Number(0, 14)); }},
        {"click in a list", 60,
         [this] {
             QWidget& lines = *Some_list().viewport();
             const int x = random_.Number(0, lines.width() - 1);
             QTest::mouseClick(&lines, Qt::LeftButton, {},
                               {x, random_.Number(0, lines.height() - 1)});
         }},
        {"key in a list", 30, [this] { Press(Some_list(), random_.One_of(keys_)); }},
        {"Delete in a list", 60, [this] { Delete_in(Some_list()); }},
        {"scroll", 20,
         [this] { Some_list().verticalScrollBar()->setValue(random_.Number(0, 99)); }},
        {"width", 15, [this] { Of_panel<QLineEdit>("VTPwidthText").setText(Some(widths_)); }},
        {"height", 15, [this] { Of_panel<QLineEdit>("PolyHeightText").setText(Some(heights_)); }},
        {"button", 100, [this] { Click_panel(Some(buttons_)); }},
        {"Hide", 2, [this] { Click_panel("HideButton"); }},
    };
};

TEST(RandomUserTest, WhateverIsDoneTheProjectHoldsTogether) {
    RandomUser user(1, 150, Project());
    user.Play(4000);
    user.Travel_through_everything();
    user.Save_and_open_again();
    EXPECT_TRUE(user.Has_been_told("2 VTP coastline segments"));  // coastlines did cut cells
}

TEST(RandomUserTest, WhereTheTablesAreNearlyFullToo) {
    Project full = Largest_project();
    for (Int16* const count : {&full.VTPCount, &full.KillCount, &full.LWMCount}) *count -= 5;
    RandomUser user(2, 2000, full);
    user.Play(500);
    user.Travel_through_everything();
    user.Save_and_open_again();
    EXPECT_TRUE(user.Has_been_told("a project holds at most"));
}

}  // namespace tidemark
