// The gate: steps, their undoing and redoing, exceptions, and the size of the history.
#include "model/document.h"

#include "fakes/rules_test.h"
#include "lwm/lwm_commands.h"
#include "lwm/lwm_list.h"
#include "vtp_edit/vtp_commands.h"

namespace tidemark {

// What a user can do without a window, at random.
class RandomEditing {
  public:
    RandomEditing(unsigned seed, Document& document, Session& session)
        : random_(seed), document_(document), session_(session) {
        document_.Settle([](Project& p) { Place_area(p, 0, 0, 31, 31); });
    }

    void Do_something() {
        const Project& p = document_.Now();
        session_.Panel.SelectedPoint = random_.Number(-1, p.VTPCount - 1);
        session_.Panel.SelectedPolygon = random_.Number(-1, p.LWMCount - 1);
        session_.Panel.SelectedCell = random_.Number(-1, p.KillCount - 1);
        session_.Panel.NewSegment = random_.One_in(3);
        Move_cursor();
        switch (random_.Number(0, 9)) {
            case 0:
                return Delete_selected_point(document_, session_);
            case 1:
                return Change_selected_width(document_, session_, random_.Number(0, 300));
            case 2:
                return Reverse_selected_segment(document_, session_);
            case 3:
                session_.DrawMode = random_.Number(WaterPolygon, LandPolygon);
                Click_polygon(document_, session_, HeightChoice::Conform, "", messages_);
                return;
            case 4:
                return Delete_selected_polygon(document_, session_);
            case 5:
                session_.DrawMode = ClearRivers;
                return Click_cleared_cell(document_, session_, messages_);
            case 6:
                return Delete_selected_cleared_cell(document_, session_);
            case 7:
                return document_.Do("values", [&](Project& project) {
                    project.ScaleX = project.ScaleX == 0 ? -0.0F : 0.0F;
                    project.BackgroundFile += 'x';
                    project.PrefsSet = !project.PrefsSet;
                    project.CellLatitude = random_.Number(-90, 90);
                });
            default:
                session_.DrawMode = random_.Number(0, 2);
                return Click_point(document_, session_, 80, messages_);
        }
    }

  private:
    // In a few cells, so that coastlines cross them.
    void Move_cursor() {
        session_.CursorVTPX = FirstVTP + random_.Number(0, 1023);
        session_.CursorVTPY = FirstVTP + random_.Number(0, 1023);
        session_.CursorCellX = random_.Number(0, 3);
        session_.CursorCellY = random_.Number(0, 3);
        session_.CursorInCellX = random_.Number(1, 254);
        session_.CursorInCellY = random_.Number(1, 254);
    }

    RandomNumbers random_;
    Document& document_;
    Session& session_;
    RecordingMessages messages_;
};

// The whole memory of a project: every slot of every table, used or not.
static std::string Bytes_of(const Project& p) {
    std::string bytes = Project_bytes(p, "");
    const auto add = [&](const auto& table) {
        bytes.append(reinterpret_cast<const char*>(&table), sizeof table);
    };
    add(p.VTPPoint);
    add(p.VTPSegStart);
    add(p.VTPSegEnd);
    add(p.VTPMode);
    add(p.VTPWidth);
    add(p.KillCell);
    add(p.KillType);
    add(p.LWMPointCount);
    add(p.LWMPoint);
    add(p.LWMCell);
    add(p.LWMType);
    add(p.LWMHeight);
    return bytes;
}

class DocumentTest : public testing::Test {
  protected:
    DocumentTest() {
        document.Announce_to([this] { ++announced; });
    }

    Session session;
    Document document{session};
    int announced = 0;
};

TEST_F(DocumentTest, EveryStateComesBackOnTheWayDownAndUp) {
    RandomEditing editing(1, document, session);
    struct State {
        Project Kept;
        PanelState Panel;
        std::string Step;  // that led here
    };
    std::vector<std::unique_ptr<State>> states;
    const auto remember = [&] {
        states.push_back(
            std::make_unique<State>(State{document.Now(), session.Panel, document.What_undo()}));
    };
    remember();
    while (states.size() < 600) {
        const std::size_t bytes = document.History_bytes();
        const Project before = document.Now();
        const int before_announced = announced;
        editing.Do_something();
        if (document.History_bytes() == bytes) {  // it was refused, or nothing was selected
            states.back()->Kept = document.Now();
            continue;
        }
        EXPECT_EQ(announced, before_announced + 1);
        remember();
    }
    for (int round = 0; round < 2; ++round) {
        for (std::size_t i = states.size() - 1; i > 0; --i) {
            EXPECT_EQ(document.What_undo(), states[i]->Step);
            document.Undo();
            ASSERT_TRUE(document.Now() == states[i - 1]->Kept) << i << states[i]->Step;
        }
        EXPECT_FALSE(document.Can_undo());
        for (std::size_t i = 1; i < states.size(); ++i) {
            EXPECT_EQ(document.What_redo(), states[i]->Step);
            document.Redo();
            ASSERT_TRUE(document.Now() == states[i]->Kept) << i << states[i]->Step;
            EXPECT_EQ(session.Panel, states[i]->Panel);
        }
        EXPECT_FALSE(document.Can_redo());
    }
}

TEST_F(DocumentTest, ThePointAfterAnUndoGoesWhereItWouldHaveGone) {
    RecordingMessages messages;
    for (const int x : {5000, 5100, 5200}) {
        session.CursorVTPX = x;
        Click_point(document, session, 80, messages);
    }
    session.Panel = {.NewSegment = false, .SelectedPoint = 1};
    Delete_selected_point(document, session);
    session.Panel = {};  // what the user looks at meanwhile
    document.Undo();
    EXPECT_EQ(document.Now().VTPPoint(2, 0), 5100);
    session.CursorVTPX = 5050;
    Click_point(document, session, 80, messages);
    EXPECT_EQ(document.Now().VTPPoint(2, 0), 5050) << "inserted before the selected point";
    EXPECT_FALSE(document.Can_redo()) << "a new step ends what could be redone";
}

TEST_F(DocumentTest, AnExceptionInTheMiddleOfAStepLeavesEverythingAsItWas) {
    RandomEditing editing(2, document, session);
    for (int i = 0; i < 300; ++i) editing.Do_something();
    const std::string before = Bytes_of(document.Now());
    const PanelState panel = session.Panel;
    const std::size_t history = document.History_bytes();
    announced = 0;
    using Change = void (*)(Project&);
    for (const Change change : std::initializer_list<Change>{
             [](Project& p) { p.VTPPoint(++p.VTPCount, 0) = 7; },
             [](Project& p) { p.VTPPoint(1, 0) = p.VTPPoint(1000, 1) = 7; },
             [](Project& p) { p.LWMPoint(200, 200, 1) = 7; },
             [](Project& p) { p.KillCount = p.LWMCount = 0; },
             [](Project& p) { p.BackgroundFile = "x"; },
             [](Project& p) { p = Largest_project(); }}) {
        const auto fail = [&](Project& p) {
            change(p);
            session.Panel.SelectedPoint = 77;
            throw Overflow();
        };
        EXPECT_THROW(document.Do("fail", fail), Overflow);
        EXPECT_THROW(document.Settle(fail), Overflow);
        EXPECT_EQ(Bytes_of(document.Now()), before);
        EXPECT_EQ(session.Panel, panel);
    }
    EXPECT_EQ(announced, 12) << "what the screen shows may be of the change that failed";
    EXPECT_EQ(document.History_bytes(), history);

    // Within a step, what fails is taken back alone.
    document.Do("outer", [&](Project& p) {
        p.KillCount = 0;
        EXPECT_THROW(document.Do("inner",
                                 [](Project& inner) {
                                     inner.VTPCount = 0;
                                     throw Overflow();
                                 }),
                     Overflow);
        document.Undo();  // not now
    });
    EXPECT_TRUE(document.Now().KillCount == 0 && document.Now().VTPCount > 0);
    EXPECT_EQ(document.What_undo(), "outer");
    document.Undo();
    EXPECT_EQ(Project_bytes(document.Now(), ""), before.substr(0, before.find("END OF FILE") + 13));
}

TEST_F(DocumentTest, OnlyWhatAStepChangedItselfIsTakenBack) {
    const auto name = [&](const char* path) {
        document.Settle([&](Project& p) { p.ProjectFile = session.Opened.Path = path; });
    };
    document.Do("open", [&](Project& p) { p.ProjectFile = session.Opened.Path = "opened"; });
    document.Do("draw", [](Project& p) { p.KillCount = 1; });
    name("saved as");
    document.Mark_saved();
    EXPECT_FALSE(session.DataChanged);
    document.Undo();
    EXPECT_EQ(document.Now().ProjectFile + session.Opened.Path, "saved assaved as");
    EXPECT_TRUE(session.DataChanged) << "the file holds the step that was undone";
    document.Redo();
    EXPECT_FALSE(session.DataChanged);
    document.Undo();
    document.Undo();
    EXPECT_EQ(document.Now().ProjectFile + session.Opened.Path, "");
    document.Redo();
    EXPECT_EQ(session.Opened.Path, "saved as") << "as it was left";
    document.Undo();
    document.Do("nothing", [](Project&) {});
    EXPECT_TRUE(document.Can_redo()) << "what changed nothing is no step";
}

TEST_F(DocumentTest, AProjectKeepsTheNameThatItWasSavedUnder) {
    const auto open = [&](const char* path, int content) {
        document.Do("open", [&](Project& p) {
            ++session.Opened.Opening;
            p.BGLOD8X = content;
            p.ProjectFile = session.Opened.Path = path;
            document.Mark_saved();
        });
    };
    open("a", 1);
    document.Settle([&](Project& p) { p.ProjectFile = session.Opened.Path = "b"; });
    open("b", 2);
    for (int travel = 0; travel < 2; ++travel) document.Undo();
    EXPECT_TRUE(document.Now() == Project());
    for (int travel = 0; travel < 2; ++travel) document.Redo();
    EXPECT_EQ(document.Now().ProjectFile + session.Opened.Path, "bb");
    EXPECT_EQ(document.Now().BGLOD8X, 2);
    EXPECT_FALSE(session.DataChanged);
}

TEST_F(DocumentTest, AStepWithinWhatIsNoneIsAStep) {
    document.Settle([&](Project&) { document.Do("open", [](Project& p) { p.KillCount = 1; }); });
    EXPECT_EQ(document.What_undo(), "open");
    document.Undo();
    EXPECT_EQ(document.Now().KillCount, 0);
}

TEST_F(DocumentTest, TheHistoryIsSmallAndDropsItsOldestSteps) {
    Project sample;
    Read_project(Source_file("sample/golden-gate.TDM"), sample);
    document.Settle([&](Project& p) { p = sample; });
    RecordingMessages messages;
    for (int step = 0; step < 5000; ++step) {
        session.Panel = {.NewSegment = false, .SelectedPoint = step % 500};
        Click_point(document, session, 80, messages);
        Delete_selected_point(document, session);
    }
    EXPECT_LT(document.History_bytes(), std::size_t{8} << 20);

    Session other;
    Document limited(other, 2000);
    for (int step = 1; step <= 100; ++step)
        limited.Do(std::to_string(step), [](Project& p) { ++p.BGLOD8X; });
    for (int step = 1; step <= 100; ++step) {
        limited.Undo();
        limited.Do("again", [](Project& p) { ++p.BGLOD8X; });
    }
    EXPECT_LE(limited.History_bytes(), 2000U);
    while (limited.Can_undo()) limited.Undo();
    EXPECT_GT(limited.Now().BGLOD8X, 80);
    EXPECT_LT(limited.Now().BGLOD8X, 99) << "what was undone has no bytes any more";
}

}  // namespace tidemark
