// The lists of LWM polygons and of cleared cells: their lines, deleting, closing points, limits.
#include <gtest/gtest.h>

#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "model/drawing_modes.h"
#include "model/list_selection.h"

namespace tidemark {
namespace {

using Texts = std::vector<std::string>;

TEST(LWMListTest, OneLineToAPolygon) {
    Project p;
    Add_polygon(p, 12, 7, WaterPolygon, ConformsHeight, 4);
    Add_polygon(p, 3, 30, LandPolygon, 150, 4);
    Add_polygon(p, 12, 7, LandPolygon, 0, 4);
    Add_polygon(p, 12, 7, 0, 10000, 4);  // an odd type counts as land
    Add_polygon(p, 32, -1, WaterPolygon, -3, 4);
    EXPECT_EQ(LWM_list_lines(p),
              (Texts{"[ 12, 7 ] Water, conforms", "[ 3, 30 ] Land @ 150m", "[ 12, 7 ] Land @ 0m",
                     "[ 12, 7 ] Land @ 10000m", "[ 32, -1 ] Water @-3m"}));
}

TEST(LWMListTest, AClosingPointIsDroppedAtEveryRefresh) {
    struct Case {
        const char* Before;
        const char* After;
    };
    for (const auto& [before, after] : {Case{"1,1 9,1 9,9 1,1", "1,1 9,1 9,9"},
                                        {"1,1 9,1 1,1 1,1", "1,1 9,1 1,1"},
                                        {"1,1 9,1 9,9 1,2", "1,1 9,1 9,9 1,2"},
                                        {"5,5", ""},
                                        {"", ""}}) {
        Project p;
        p.LWMCount = 1;
        for (const CellPoint& vertex : Points_from(before)) {
            const int k = ++p.LWMPointCount(1);
            p.LWMPoint(1, k, 0) = vertex.X;
            p.LWMPoint(1, k, 1) = vertex.Y;
        }
        Drop_closing_points(p);
        EXPECT_EQ(Points_text(LWM_outline(p, 1)), after);
    }
}

// A list of `count` entries is worked on until it is empty; an entry is told by its column.
template <class Add, class Delete, class Lines>
void Expect_deletions(int count, int selected, const std::vector<Texts>& expected, Add add,
                      Delete delete_entry, Lines lines) {
    Project p;
    p.DataChanged = false;
    for (int i = 1; i <= count; ++i) add(p, i);
    for (const Texts& left : expected) {
        delete_entry(p, selected + 1);
        EXPECT_EQ(lines(p), left);
        selected = Selected_after_delete(selected, static_cast<int>(left.size()));
    }
    EXPECT_EQ(selected, -1);
    EXPECT_FALSE(p.DataChanged);
}

TEST(LWMListTest, DeletingMovesTheLaterPolygonsDown) {
    const auto add = [](Project& p, int i) { Add_polygon(p, i, 1, 10 + i % 2, 100 * i, 2 + i); };
    const Texts one{"[ 1, 1 ] Land @ 100m"};
    const Texts two{"[ 2, 1 ] Water @ 200m"};
    const Texts three{"[ 3, 1 ] Land @ 300m"};
    Expect_deletions(3, 0, {{two[0], three[0]}, three, {}}, add, Delete_LWM_Poly, LWM_list_lines);
    Expect_deletions(3, 2, {{one[0], two[0]}, one, {}}, add, Delete_LWM_Poly, LWM_list_lines);

    Project p;
    for (int i = 1; i <= 3; ++i) add(p, i);
    Delete_LWM_Poly(p, 1);
    EXPECT_EQ(Points_text(LWM_outline(p, 1)), "0,0 255,0 255,255 0,255");
    EXPECT_EQ(Points_text(LWM_outline(p, 2)), "0,0 255,0 255,255 0,255 0,249");
    Delete_LWM_Poly(p, 2);
    Delete_LWM_Poly(p, 1);
    EXPECT_EQ(p.LWMPointCount(1), 0);
}

TEST(KillListTest, CellsAreAddedAndListed) {
    Project p;
    RecordingMessages messages;
    p.CursorCellX = 5;
    p.CursorCellY = 17;
    for (const int code : {ClearCoastlines, ClearCoastlines, ClearRivers, ClearMinorRoads,
                           ClearMajorRoads, 9, WaterPolygon}) {
        p.DrawMode = code;
        EXPECT_TRUE(Add_Kill_Cell(p, messages));
    }
    EXPECT_EQ(Kill_list_lines(p),
              (Texts{"[ 5, 17 ] Coast", "[ 5, 17 ] Coast", "[ 5, 17 ] Rivers/Streams",
                     "[ 5, 17 ] Minor Roads", "[ 5, 17 ] Major Roads", "[ 5, 17 ]", "[ 5, 17 ]"}));
    EXPECT_FALSE(p.DataChanged);

    while (p.KillCount < 1000) Add_Kill_Cell(p, messages);
    EXPECT_TRUE(messages.Shown.empty());
    EXPECT_FALSE(Add_Kill_Cell(p, messages));
    EXPECT_EQ(p.KillCount, 1000);
    EXPECT_EQ(messages.Texts(), (Texts{"The cell has not been cleared: a project holds at most "
                                       "1000 cleared cells."}));
}

TEST(KillListTest, DeletingMovesTheLaterEntriesDown) {
    const auto add = [](Project& p, int i) {
        Add_cleared_cell(p, i, 1, i == 2 ? ClearRivers : ClearCoastlines);
    };
    const Texts one{"[ 1, 1 ] Coast"};
    const Texts two{"[ 2, 1 ] Rivers/Streams"};
    const Texts three{"[ 3, 1 ] Coast"};
    Expect_deletions(3, 0, {{two[0], three[0]}, three, {}}, add, Delete_Kill_Cell, Kill_list_lines);
    Expect_deletions(3, 1, {{one[0], three[0]}, three, {}}, add, Delete_Kill_Cell, Kill_list_lines);
}

}  // namespace
}  // namespace tidemark
