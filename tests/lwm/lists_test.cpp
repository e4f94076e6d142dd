// The lists of LWM polygons and of cleared cells: their lines, deleting, closing points, limits.
#include <gtest/gtest.h>

#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "model/drawing_modes.h"

namespace tidemark {
namespace {

using Texts = std::vector<std::string>;

TEST(LWMListTest, DeletingMovesAllOfTheLaterPolygonsDown) {
    Project p;
    Add_polygon(p, 3, 30, LandPolygon, 150, 4);
    Add_polygon(p, 12, 7, WaterPolygon, ConformsHeight, 5);
    Add_polygon(p, 32, -1, 0, -3, 3);  // an odd type counts as land
    const Texts lines{"[ 3, 30 ] Land @ 150m", "[ 12, 7 ] Water, conforms", "[ 32, -1 ] Land @-3m"};
    EXPECT_EQ(LWM_list_lines(p), lines);
    Delete_LWM_Poly(p, 1);
    EXPECT_EQ(LWM_list_lines(p), (Texts{lines[1], lines[2]}));
    EXPECT_EQ(Points_text(LWM_outline(p, 1)), "0,0 255,0 255,255 0,255 0,249");
    EXPECT_EQ(Points_text(LWM_outline(p, 2)), "0,0 255,0 255,255");
    Delete_LWM_Poly(p, 2);
    EXPECT_EQ(LWM_list_lines(p), Texts{lines[1]});
    Delete_LWM_Poly(p, 1);
    EXPECT_EQ(LWM_list_lines(p), Texts{});
    EXPECT_EQ(p.LWMPointCount(1), 0);
}

TEST(LWMListTest, AClosingPointIsDroppedAtEveryRefresh) {
    for (const auto& [before, after] :
         std::vector<std::pair<const char*, const char*>>{{"1,1 9,1 9,9 1,1", "1,1 9,1 9,9"},
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

TEST(KillListTest, CellsAreAddedListedAndDeleted) {
    Project p;
    RecordingMessages messages;
    for (const int code : {ClearCoastlines, ClearRivers, ClearMinorRoads, ClearMajorRoads, 9}) {
        p.DrawMode = p.CursorCellX = code;
        EXPECT_TRUE(Add_Kill_Cell(p, messages));
    }
    Delete_Kill_Cell(p, 2);
    EXPECT_EQ(Kill_list_lines(p), (Texts{"[ 8, 0 ] Coast", "[ 31, 0 ] Minor Roads",
                                         "[ 32, 0 ] Major Roads", "[ 9, 0 ]"}));
    while (p.KillCount < 1000) Add_Kill_Cell(p, messages);
    EXPECT_TRUE(messages.Shown.empty());
    EXPECT_FALSE(Add_Kill_Cell(p, messages));
    EXPECT_EQ(p.KillCount, 1000);
    EXPECT_EQ(messages.Shown.size(), 1U);
}

}  // namespace
}  // namespace tidemark
