// A user who does this and that by chance on the real windows. After every action the project must
// be one that editing can make, and the panel and the menu must show it.
//
// TIDEMARK_RANDOM_ACTIONS in the environment makes the runs longer than they are in the tests.
#include <cstdlib>
#include <map>
#include <memory>

#include <QCheckBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <gtest/gtest.h>

#include "app/random_answers.h"
#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "fakes/environment.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "model/drawing_modes.h"
#include "model/list_selection.h"
#include "model/project_file.h"
#include "platform/qt_list_box.h"
#include "vtp_edit/vtp_list.h"

namespace tidemark {
namespace {

bool Is_within(int value, int lowest, int highest) {
    return lowest <= value && value <= highest;
}

// What no editing makes, in words; empty when all is well. Columns and rows run to 32: the map's
// last pixel can lie just beyond its area.
std::string Fault_in(const Project& p) {
    const auto is_cell = [](const auto& cell, int i) {
        return Is_within(cell(i, 0), 0, LastLOD13 + 1) && Is_within(cell(i, 1), 0, LastLOD13 + 1);
    };
    const auto is_point = [&p](int i) {
        constexpr int last = FirstVTP + (LastLOD13 + 2) * CellSizeVTP - 1;
        const bool ends = i == p.VTPCount || p.VTPSegStart(i + 1);
        return Is_within(p.VTPPoint(i, 0), FirstVTP, last) &&
               Is_within(p.VTPPoint(i, 1), FirstVTP, last) && p.VTPSegEnd(i) == ends &&
               Find_mode(p.VTPMode(i), Adds::Point) && Is_within(p.VTPWidth(i), 0, MaxVTPWidth);
    };
    const auto is_polygon = [&](int i) {
        bool is_good = is_cell(p.LWMCell, i) && Find_mode(p.LWMType(i), Adds::Polygon);
        is_good &= p.LWMHeight(i) == ConformsHeight || Is_within(p.LWMHeight(i), 0, MaxLWMHeight);
        is_good &= Is_within(p.LWMPointCount(i), 0, MaxLWMPointCount);
        for (int k = 1; is_good && k <= p.LWMPointCount(i); ++k)
            for (const int axis : {0, 1}) is_good &= Is_within(p.LWMPoint(i, k, axis), 0, 255);
        return is_good;
    };
    if (!Is_within(p.VTPCount, 0, MaxVTPCount) || !Is_within(p.KillCount, 0, MaxKillCount) ||
        !Is_within(p.LWMCount, 0, MaxLWMCount))
        return "a count";
    if (p.VTPCount > 0 && (!p.VTPSegStart(1) || p.VTPSegStart(p.VTPCount + 1))) return "a start";
    for (int i = 1; i <= p.VTPCount; ++i)
        if (!is_point(i)) return "point " + std::to_string(i);
    for (int k = 1; k <= p.KillCount; ++k)
        if (!is_cell(p.KillCell, k) || !Find_mode(p.KillType(k), Adds::ClearedCell))
            return "cleared cell " + std::to_string(k);
    for (int i = 1; i <= p.LWMCount; ++i)
        if (!is_polygon(i)) return "polygon " + std::to_string(i);
    return "";
}

class RandomUser {
  public:
    // Opens the project, with a map that is loaded and georeferenced. At about `most` entries a
    // list is rather emptied than filled further.
    RandomUser(unsigned seed, int most, Project project) : random_(seed), most_(most) {
        for (const char* map : {"map.bmp", "map2.bmp"})
            Write_file(folder_ / map, BMP_bytes(768, 768).toStdString());
        Write_file(folder_ / "broken.bmp", "BM");
        Place_area(project, 3, 5, 5, 7);
        project.BackgroundFile = folder_ / "map.bmp";
        project.BackgroundLoaded = true;
        project.PrefsSet = false;
        project.ProjectFile = folder_ / "a.TDM";
        Write_file(project.ProjectFile, Project_bytes(project, "then"));
        window_.show();
        window_.Open(QString::fromStdString(project.ProjectFile));
    }

    void Play(int actions);
    void Save_and_open_again();

    int Most_polygon_points() const { return most_polygon_points_; }
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

    const Project& Now() const { return window_.Current_project(); }
    QAction& Entry(const QString& name) const { return *window_.findChild<QAction*>(name); }
    void Choose(const QString& entry) {
        if (Entry(entry).isEnabled()) Entry(entry).trigger();
    }
    template <class T>
    T& Of_panel(const char* name) {
        return Control<T>(panel_, name);
    }
    void Click_panel(const char* button) { Click(Of_panel<QAbstractButton>(button)); }
    ListBox& Some_list() { return *random_.One_of(lists_); }

    void Click_map(Qt::MouseButton button);
    void Choose_mode(int mode);
    void Delete_in(ListBox& list);
    void Delete_on_map();
    void Resize(QWidget& widget);
    void Save();
    void Open(const char* name);
    void Check();

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
    int most_polygon_points_ = 0;
    std::map<std::string, std::unique_ptr<Project>> saved_;  // by path

    const std::vector<Qt::Key> keys_{Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home, Qt::Key_End,
                                     Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space};
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
        {"menu entry", 12, [this] { Choose(random_.One_of(entries_)); }, false},
        {"Save", 5, [this] { Save(); }, false},
        {"Open", 2, [this] { Open(random_.One_in(2) ? "a.TDM" : "b.TDM"); }, false},
        {"resize the window", 1, [this] { Resize(window_); }, false},
        {"resize the panel", 1, [this] { Resize(panel_); }},
        {"drawing mode", 60, [this] { Choose_mode(random_.Number(0, 14)); }},
        {"click in a list", 60,
         [this] {
             QWidget& lines = *Some_list().viewport();
             Click_at(lines, {random_.Number(0, lines.width() - 1),
                              random_.Number(0, lines.height() - 1)});
         }},
        {"key in a list", 30, [this] { Press(Some_list(), random_.One_of(keys_)); }},
        {"Delete in a list", 60, [this] { Delete_in(Some_list()); }},
        {"scroll", 20,
         [this] { Some_list().verticalScrollBar()->setValue(random_.Number(0, most_)); }},
        {"Start new segment", 30, [this] { Click_panel("NewSegment"); }},
        {"width", 15,
         [this] { Of_panel<QLineEdit>("VTPwidthText").setText(random_.One_of(widths_)); }},
        {"Change width", 15, [this] { Click_panel("ChangeButton"); }},
        {"Reverse", 30, [this] { Click_panel("ReverseButton"); }},
        {"Edit point", 5, [this] { Click_panel("EditButton"); }},
        {"height", 15,
         [this] { Of_panel<QLineEdit>("PolyHeightText").setText(random_.One_of(heights_)); }},
        {"Set to height", 5, [this] { Click_panel("HeightOption"); }},
        {"Conform", 5, [this] { Click_panel("ConformOption"); }},
        {"Refresh", 5, [this] { Click_panel("RefreshButton"); }},
        {"Hide", 2, [this] { Click_panel("HideButton"); }},
    };
};

// Mostly a step away from the last place, as a coast is drawn.
void RandomUser::Click_map(Qt::MouseButton button) {
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
        EXPECT_TRUE(Now().DataChanged);
    else
        EXPECT_EQ(lists_[0]->Selected() >= 0, Now().VTPCount > 0);
}

void RandomUser::Choose_mode(int mode) {
    auto& modes = Of_panel<QComboBox>("DrawModeCombo");
    Press(modes, Qt::Key_Home);
    for (int i = 0; i < mode; ++i) Press(modes, Qt::Key_Down);
    EXPECT_EQ(modes.currentIndex(), mode);
    EXPECT_TRUE(mode == 0 || Of_panel<QCheckBox>("NewSegment").isChecked());
    const int code = DrawingModes[static_cast<std::size_t>(mode)].Code;
    EXPECT_TRUE(code != WaterPolygon || Of_panel<QRadioButton>("HeightOption").isChecked());
    EXPECT_TRUE(code != LandPolygon || Of_panel<QRadioButton>("ConformOption").isChecked());
}

void RandomUser::Delete_in(ListBox& list) {
    const bool changed = Now().DataChanged;
    const bool is_full = static_cast<int>(list.Lines().size()) > most_;
    list.setFocus();
    for (int presses = random_.Number(1, is_full ? 12 : 2); presses > 0; --presses) {
        const int selected = list.Selected(), count = static_cast<int>(list.Lines().size());
        Press(list, Qt::Key_Delete);
        EXPECT_EQ(list.Selected(), count > 1 && selected == 0 ? 0 : std::max(selected - 1, -1));
    }
    EXPECT_EQ(Now().DataChanged, changed);
    EXPECT_EQ(panel_.focusWidget(), &list);
}

void RandomUser::Delete_on_map() {
    const int gone = lists_[0]->Selected() >= 0 ? 1 : 0, before = Now().VTPCount;
    Press(canvas_, Qt::Key_Delete);
    EXPECT_EQ(Now().VTPCount, before - gone);
}

void RandomUser::Resize(QWidget& widget) {
    widget.resize(widget.width() + random_.Number(-60, 60),
                  std::clamp(widget.height() + random_.Number(-60, 60), 500, 900));
    QApplication::processEvents();
    EXPECT_TRUE(&widget != &panel_ || Of_panel<QComboBox>("DrawModeCombo").currentIndex() == 0);
}

void RandomUser::Save() {
    const auto messages = answers_.Messages.size();
    Choose(random_.One_in(6) ? "FileSaveAs" : "FileSave");
    if (answers_.Messages.mid(messages).filter("Tidemark - Saved OK").isEmpty()) return;
    EXPECT_FALSE(Now().DataChanged);
    saved_[Now().ProjectFile] = std::make_unique<Project>(Now());
}

void RandomUser::Open(const char* name) {
    const auto messages = answers_.Messages.size();
    window_.Open(QString::fromStdString(folder_ / name));
    const auto saved = saved_.find(folder_ / name);
    if (saved == saved_.end() || answers_.Messages.size() != messages) return;
    Drop_closing_points(*saved->second);  // as the list refresh does
    EXPECT_TRUE(Now() == *saved->second);
}

void RandomUser::Check() {
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
    EXPECT_TRUE(Entry("FileSave").isEnabled());
    const int points = p.LWMCount > 0 ? p.LWMPointCount(p.LWMCount) : Int16(0);
    most_polygon_points_ = std::max(most_polygon_points_, points);
}

void RandomUser::Play(int actions) {
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

void RandomUser::Save_and_open_again() {
    for (saved_.clear(); saved_.empty();) Save();  // until no question is answered with No
    const Project before = Now();
    TidemarkMain other;
    other.Open(QString::fromStdString(before.ProjectFile));
    EXPECT_TRUE(other.Current_project() == before);
}

TEST(RandomUserTest, WhateverIsDoneTheProjectHoldsTogether) {
    RandomUser user(1, 150, Project());
    user.Play(6000);
    user.Save_and_open_again();
    EXPECT_GT(user.Most_polygon_points(), 6);  // coastlines did cut cells
}

TEST(RandomUserTest, WhereTheTablesAreNearlyFullToo) {
    Project full = Largest_project();
    for (Int16* const count : {&full.VTPCount, &full.KillCount, &full.LWMCount}) *count -= 5;
    RandomUser user(2, 2000, full);
    user.Play(500);
    user.Save_and_open_again();
    EXPECT_TRUE(user.Has_been_told("a project holds at most"));
}

}  // namespace
}  // namespace tidemark
