// A user who does this and that by chance on the real windows. After every action the project must
// be one that editing can make, and the panel and the menu must show it.
//
// TIDEMARK_RANDOM_ACTIONS in the environment makes the runs longer than they are in the tests.
#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <memory>
#include <tuple>

#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <gtest/gtest.h>

#include "app/random_answers.h"
#include "app/tidemark_main_window.h"
#include "canvas/test_images.h"
#include "fakes/random_numbers.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "fakes/valid_project.h"
#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "model/list_selection.h"
#include "model/project_file.h"
#include "platform/qt_list_box.h"
#include "vtp_edit/vtp_list.h"
#include "walk/driver.h"

namespace tidemark {
namespace {

int Actions(int in_the_tests) {
    const char* const asked = std::getenv("TIDEMARK_RANDOM_ACTIONS");
    return asked ? std::atoi(asked) : in_the_tests;
}

class RandomUser {
  public:
    // At about `most` entries a list is rather emptied than filled further.
    RandomUser(unsigned seed, int most) : random_(seed), most_(most) {
        Write_file(folder_ / "map.bmp", BMP_bytes(768, 768));
        Write_file(folder_ / "map2.bmp", BMP_bytes(768, 768));
        Write_file(folder_ / "broken.bmp", "BM");
        window_.show();
    }

    // Opens a project whose map is loaded and georeferenced.
    void Begin(Project project) {
        project.BackgroundFile = folder_ / "map.bmp";
        project.BackgroundLoaded = true;
        project.BGLOD13tlX = 3;
        project.BGLOD13tlY = 5;
        project.BGLOD13brX = 5;
        project.BGLOD13brY = 7;
        project.AreaLeftVTP = 4848;
        project.AreaTopVTP = 5360;
        project.AreaRightVTP = 5616;
        project.AreaBottomVTP = 6128;
        project.AreaWidth = project.AreaHeight = 768;
        project.ScaleX = project.ScaleY = 1;
        project.PrefsSet = false;
        project.ProjectFile = folder_ / "a.TDM";
        DiskFiles().Replace(project.ProjectFile, Project_bytes(project, "then"));
        window_.Open(Path("a.TDM"));
    }

    void Play(int actions);
    void Save_and_open_again();

    int Most_polygon_points() const { return most_polygon_points_; }
    bool Has_been_told(const QRegularExpression& part) const {
        return !answers_.Messages.filter(part).isEmpty();
    }

  private:
    struct Action {
        const char* Name;
        int Weight;
        void (RandomUser::*Do)();
    };
    static const std::array<Action, 21> AllActions;

    struct ListState {
        int Selected;
        bool Visible;  // shown again, it goes to the line that was selected meanwhile
        int Height, Scrolled;
    };

    QString Path(const char* name) const { return QString::fromStdString(folder_ / name); }
    const Project& Now() const { return window_.Current_project(); }
    template <class T>
    T& Of_panel(const char* name) {
        return Control<T>(panel_, name);
    }

    void Click_panel(const char* button) {
        if (panel_.isVisible()) Click(Of_panel<QPushButton>(button));
    }
    void Trigger(const char* entry) {
        if (auto& action = *window_.findChild<QAction*>(entry); action.isEnabled())
            action.trigger();
    }

    QPoint Some_place();
    void Point_at(QPoint place);
    ListBox& Some_list() { return *lists_[static_cast<std::size_t>(random_.Number(0, 2))]; }
    int Count_in(const ListBox& list) const { return static_cast<int>(list.Lines().size()); }

    void Click_map();
    void Right_click_map();
    void Choose_mode();
    void Click_list();
    void Scroll_list();
    void Press_key_in_list();
    void Delete_in_list();
    void Delete_on_map();
    void Edit_point();
    void Reverse();
    void Change_width();
    void Check_new_segment();
    void Choose_height();
    void Look_at_panel();
    void Resize();
    void Save();
    void Open();
    void Set_preferences();
    void Save_assembler_files();
    void Set_background();
    void Get_help();

    std::array<ListState, 3> List_states() const;
    void Check_project();
    void Check_lists();
    void Check_scrolling(const std::array<ListState, 3>& before);
    void Check_menu();

    RandomNumbers random_;
    int most_;
    TemporaryFolder folder_;
    TidemarkMain window_;
    Status& panel_ = Control<Status>(window_, "Status");
    MapCanvas& canvas_ = Control<MapCanvas>(window_, "Picture2");
    std::array<ListBox*, 3> lists_{&Control<ListBox>(panel_, "VTPlistbox"),
                                   &Control<ListBox>(panel_, "LWMlistBox"),
                                   &Control<ListBox>(panel_, "KillListBox")};
    RandomAnswers answers_{random_, QString::fromStdString(folder_.Path())};
    QPoint place_;
    int most_polygon_points_ = 0;
    std::map<std::string, std::unique_ptr<Project>> saved_;  // by path
};

const std::array<RandomUser::Action, 21> RandomUser::AllActions{{
    {"click on the map", 400, &RandomUser::Click_map},
    {"right click on the map", 40, &RandomUser::Right_click_map},
    {"drawing mode", 60, &RandomUser::Choose_mode},
    {"click in a list", 60, &RandomUser::Click_list},
    {"scroll a list", 20, &RandomUser::Scroll_list},
    {"key in a list", 30, &RandomUser::Press_key_in_list},
    {"Delete in a list", 60, &RandomUser::Delete_in_list},
    {"Delete on the map", 30, &RandomUser::Delete_on_map},
    {"Edit Point", 10, &RandomUser::Edit_point},
    {"Reverse", 30, &RandomUser::Reverse},
    {"Change width", 30, &RandomUser::Change_width},
    {"Start new segment", 30, &RandomUser::Check_new_segment},
    {"height options", 20, &RandomUser::Choose_height},
    {"Refresh, hide or show", 10, &RandomUser::Look_at_panel},
    {"resize", 2, &RandomUser::Resize},
    {"Save", 5, &RandomUser::Save},
    {"Open", 2, &RandomUser::Open},
    {"Output Preferences", 3, &RandomUser::Set_preferences},
    {"assembler files", 4, &RandomUser::Save_assembler_files},
    {"background", 1, &RandomUser::Set_background},
    {"help", 2, &RandomUser::Get_help},
}};

// Mostly a step away from the last place, as a coast is drawn.
QPoint RandomUser::Some_place() {
    const QRect seen =
        QRect(-canvas_.pos(), canvas_.parentWidget()->size()).intersected(canvas_.rect());
    if (random_.One_in(4))
        place_ = {random_.Number(0, canvas_.width()), random_.Number(0, canvas_.height())};
    else
        place_ += QPoint(random_.Number(-120, 120), random_.Number(-120, 120));
    place_ = {std::clamp(place_.x(), seen.left(), seen.right()),
              std::clamp(place_.y(), seen.top(), seen.bottom())};
    return place_;
}

void RandomUser::Point_at(QPoint place) {
    QMouseEvent move(QEvent::MouseMove, place, canvas_.mapToGlobal(place), Qt::NoButton, {}, {});
    qApp->notify(&canvas_, &move);
}

void RandomUser::Click_map() {
    const QPoint place = Some_place();
    Point_at(place);
    QTest::mouseClick(&canvas_, Qt::LeftButton, {}, place);
    EXPECT_TRUE(Now().DataChanged);
}

void RandomUser::Right_click_map() {
    const QPoint place = Some_place();
    Point_at(place);
    QTest::mouseClick(&canvas_, Qt::RightButton, {}, place);
    EXPECT_EQ(lists_[0]->Selected() >= 0, Now().VTPCount > 0);
}

void RandomUser::Choose_mode() {
    if (!panel_.isVisible()) return;
    auto& modes = Of_panel<QComboBox>("DrawModeCombo");
    const int mode = random_.Number(0, modes.count() - 1);
    const bool another = mode != 0 || modes.currentIndex() != 0;
    Press(modes, Qt::Key_Home);
    for (int i = 0; i < mode; ++i) Press(modes, Qt::Key_Down);
    EXPECT_EQ(modes.currentIndex(), mode);
    EXPECT_TRUE(!another || Of_panel<QCheckBox>("NewSegment").isChecked());
}

void RandomUser::Click_list() {
    ListBox& list = Some_list();
    QWidget& lines = *list.viewport();
    if (panel_.isVisible())
        QTest::mouseClick(
            &lines, Qt::LeftButton, {},
            {random_.Number(0, lines.width() - 1), random_.Number(0, lines.height() - 1)});
}

void RandomUser::Scroll_list() {
    QScrollBar& bar = *Some_list().verticalScrollBar();
    bar.setValue(random_.Number(bar.minimum(), bar.maximum()));
}

void RandomUser::Press_key_in_list() {
    static constexpr std::array keys{Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Home, Qt::Key_End,
                                     Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Space};
    if (panel_.isVisible()) Press(Some_list(), random_.One_of(keys));
}

void RandomUser::Delete_in_list() {
    ListBox& list = Some_list();
    if (!panel_.isVisible()) return;
    const bool changed = Now().DataChanged;
    list.setFocus();
    for (int presses = random_.Number(1, Count_in(list) > most_ ? 12 : 2); presses > 0; --presses)
        Press(list, Qt::Key_Delete);
    EXPECT_EQ(Now().DataChanged, changed);
    EXPECT_EQ(panel_.focusWidget(), &list);
}

void RandomUser::Delete_on_map() {
    const int count = Now().VTPCount;
    const bool selected = lists_[0]->Selected() >= 0;
    Press(canvas_, Qt::Key_Delete);
    EXPECT_EQ(Now().VTPCount, selected ? count - 1 : count);
}

void RandomUser::Edit_point() {
    if (random_.One_in(2))
        Press(canvas_, Qt::Key_E);
    else
        Click_panel("EditButton");
}

void RandomUser::Reverse() {
    Click_panel("ReverseButton");
}

void RandomUser::Change_width() {
    static const QStringList good{"80", "0", "300", "300.5", "-0.4", "x", ""};
    static const QStringList bad{"301", "-1", "1e9"};
    if (!panel_.isVisible()) return;
    Of_panel<QLineEdit>("VTPwidthText").setText(random_.One_of(random_.One_in(10) ? bad : good));
    if (random_.One_in(2)) Click_panel("ChangeButton");
}

void RandomUser::Check_new_segment() {
    if (panel_.isVisible()) Click(Of_panel<QCheckBox>("NewSegment"));
}

void RandomUser::Choose_height() {
    static const QStringList good{"0", "150.5", "10000", "x", ""};
    static const QStringList bad{"10000.6", "-1", "99999"};
    if (!panel_.isVisible()) return;
    Click(Of_panel<QRadioButton>(random_.One_in(2) ? "HeightOption" : "ConformOption"));
    auto& height = Of_panel<QLineEdit>("PolyHeightText");
    EXPECT_EQ(height.isEnabled(), Of_panel<QRadioButton>("HeightOption").isChecked());
    if (height.isEnabled()) height.setText(random_.One_of(random_.One_in(10) ? bad : good));
}

void RandomUser::Look_at_panel() {
    if (!panel_.isVisible())
        Trigger("ShowStatus");
    else
        Click_panel(random_.One_in(3) ? "HideButton" : "RefreshButton");
}

void RandomUser::Resize() {
    QWidget& widget = random_.One_in(2) ? static_cast<QWidget&>(window_) : panel_;
    widget.resize(widget.width() + random_.Number(-60, 60),
                  std::clamp(widget.height() + random_.Number(-60, 60), 500, 900));
    QApplication::processEvents();
}

void RandomUser::Save() {
    const auto messages = answers_.Messages.size();
    Trigger(random_.One_in(6) ? "FileSaveAs" : "FileSave");
    const QStringList told = answers_.Messages.mid(messages);
    if (told.filter("Tidemark - Saved OK").isEmpty()) return;
    EXPECT_FALSE(Now().DataChanged);
    saved_[Now().ProjectFile] = std::make_unique<Project>(Now());
}

void RandomUser::Open() {
    if (random_.One_in(4)) return Trigger("FileOpen");
    const auto messages = answers_.Messages.size();
    const char* const name = random_.One_in(2) ? "a.TDM" : "b.TDM";
    window_.Open(Path(name));
    const auto saved = saved_.find(folder_ / name);
    if (saved == saved_.end() || answers_.Messages.size() != messages) return;
    Drop_closing_points(*saved->second);  // as the list refresh does
    EXPECT_TRUE(Now() == *saved->second);
}

void RandomUser::Set_preferences() {
    Trigger("OutputPreferences");
}

void RandomUser::Save_assembler_files() {
    Trigger(random_.One_in(2) ? "LWMsave" : "VTPsave");
}

void RandomUser::Set_background() {
    Trigger(random_.One_in(2) ? "BackgroundLoad" : "BackgroundProperties");
}

void RandomUser::Get_help() {
    Trigger(random_.One_in(2) ? "CellCalc" : "HelpAbout");
}

void RandomUser::Check_project() {
    EXPECT_EQ(Fault_in(Now()), "");
    if (Now().LWMCount > 0)
        most_polygon_points_ =
            std::max<int>(most_polygon_points_, Now().LWMPointCount(Now().LWMCount));
}

void RandomUser::Check_lists() {
    EXPECT_TRUE(lists_[0]->Lines() == VTP_list_lines(Now()));
    EXPECT_TRUE(lists_[1]->Lines() == LWM_list_lines(Now()));
    EXPECT_TRUE(lists_[2]->Lines() == Kill_list_lines(Now()));
    for (const ListBox* list : lists_) {
        EXPECT_LT(list->Selected(), Count_in(*list));
        EXPECT_EQ(list->model()->rowCount(), Count_in(*list));
        EXPECT_TRUE(list->Selected() < 0 || list->currentIndex().row() == list->Selected());
    }
}

std::array<RandomUser::ListState, 3> RandomUser::List_states() const {
    std::array<ListState, 3> states;
    for (std::size_t i = 0; i < states.size(); ++i) {
        ListBox& list = *lists_[i];
        list.indexAt({});  // lays the lines out
        states[i] = {list.Selected(), list.isVisible(), list.height(),
                     list.verticalScrollBar()->value()};
    }
    return states;
}

// A list whose selection stays does not move under the user's eyes.
void RandomUser::Check_scrolling(const std::array<ListState, 3>& before) {
    const auto now = List_states();
    for (std::size_t i = 0; i < now.size(); ++i) {
        if (std::tie(now[i].Selected, now[i].Visible, now[i].Height) !=
            std::tie(before[i].Selected, before[i].Visible, before[i].Height))
            continue;
        const int last = lists_[i]->verticalScrollBar()->maximum();
        EXPECT_EQ(now[i].Scrolled, std::min(before[i].Scrolled, last))
            << lists_[i]->objectName().toStdString();
    }
}

void RandomUser::Check_menu() {
    const auto enabled = [this](const char* entry) {
        return window_.findChild<QAction*>(entry)->isEnabled();
    };
    const Project& p = Now();
    // Without data they are enabled from the preferences' confirmation to the next refresh.
    EXPECT_TRUE((p.PrefsSet && p.LWMCount == 0) || enabled("LWMsave") == p.PrefsSet);
    EXPECT_TRUE((p.PrefsSet && !Has_VTP_data(p)) || enabled("VTPsave") == p.PrefsSet);
    EXPECT_TRUE(enabled("FileSave"));
}

void RandomUser::Play(int actions) {
    std::vector<int> weights;
    for (const Action& action : AllActions) weights.push_back(action.Weight);
    for (int count = 0; count < actions && !testing::Test::HasFailure(); ++count) {
        const Action& action = AllActions[random_.Weighted(weights)];
        SCOPED_TRACE(testing::Message() << "action " << count << ": " << action.Name);
        // The lists are not always laid out before the next action: events come faster than that.
        const bool scrolling = action.Do != &RandomUser::Scroll_list && random_.One_in(3);
        const auto lists = scrolling ? List_states() : decltype(List_states())();
        (this->*action.Do)();
        Check_project();
        Check_lists();
        if (scrolling) Check_scrolling(lists);
        Check_menu();
        if (count % 64 == 0) QApplication::processEvents();
    }
    EXPECT_FALSE(Has_been_told(QRegularExpression("^Tidemark: ")));  // the plain box
}

void RandomUser::Save_and_open_again() {
    for (saved_.clear(); saved_.empty();) Save();  // until no question is answered with No
    const Project before = Now();
    TidemarkMain other;
    other.Open(QString::fromStdString(before.ProjectFile));
    EXPECT_TRUE(other.Current_project() == before);
}

TEST(RandomUserTest, WhateverIsDoneTheProjectHoldsTogether) {
    RandomUser user(1, 150);
    user.Begin({});
    user.Play(Actions(6000));
    user.Save_and_open_again();
    EXPECT_GT(user.Most_polygon_points(), 6);  // coastlines did cut cells
}

TEST(RandomUserTest, WhereTheTablesAreNearlyFullToo) {
    RandomUser user(2, 2000);
    Project full = Largest_project();
    for (Int16* const count : {&full.VTPCount, &full.KillCount, &full.LWMCount}) *count -= 5;
    user.Begin(full);
    user.Play(Actions(500));
    user.Save_and_open_again();
    EXPECT_TRUE(user.Has_been_told(QRegularExpression("a project holds at most")));
}

}  // namespace
}  // namespace tidemark
