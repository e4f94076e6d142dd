// The lists of LWM polygons and of cleared cells: their lines, deleting, closing points, limits.
#include "fakes/cases.h"
#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "model/drawing_modes.h"

namespace tidemark {
namespace {

// The polygons' lines and vertices.
Texts Polygons(const Project& p) {
    Texts polygons = LWM_list_lines(p);
    for (int i = 1; i <= p.LWMCount; ++i)
        polygons[static_cast<std::size_t>(i - 1)] += ": " + Points_text(LWM_outline(p, i));
    return polygons;
}

TEST(LWMListTest, DeletingMovesAllOfTheLaterPolygonsDown) {
    Project p;
    Add_polygon(p, 3, 30, LandPolygon, 150, 4);
    Add_polygon(p, 12, 7, WaterPolygon, ConformsHeight, 5);
    Add_polygon(p, 32, -1, 0, -3, 3);  // an odd type counts as land
    Texts left{"[ 3, 30 ] Land @ 150m: 0,0 255,0 255,255 0,255",
               "[ 12, 7 ] Water, conforms: 0,0 255,0 255,255 0,255 0,249",
               "[ 32, -1 ] Land @-3m: 0,0 255,0 255,255"};
    EXPECT_EQ(Polygons(p), left);
    for (const int deleted : {1, 2, 1}) {
        Delete_LWM_Poly(p, deleted);
        left.erase(left.begin() + deleted - 1);
        EXPECT_EQ(Polygons(p), left);
    }
    EXPECT_EQ(p.LWMPointCount(1), 0);
}

TEST(LWMListTest, AClosingPointIsDroppedAtEveryRefresh) {
    Expect_cases("lwm/data/closing-points.txt", [](const Given& given) {
        Project p;
        p.LWMCount = 1;
        for (const auto& [x, y] : Points_from(given[0])) {
            const int k = ++p.LWMPointCount(1);
            p.LWMPoint(1, k, 0) = x;
            p.LWMPoint(1, k, 1) = y;
        }
        Drop_closing_points(p);
        return Points_text(LWM_outline(p, 1));
    });
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
    while (Add_Kill_Cell(p, messages)) continue;
    EXPECT_EQ(p.KillCount, 1000);
    EXPECT_EQ(messages.Said(),
              "The cell has not been cleared: a project holds at most 1000 cleared cells.");
}

}  // namespace
}  // namespace tidemark
