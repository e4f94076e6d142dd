// The lists of LWM polygons and of cleared cells: their lines, deleting, closing points, limits.
#include "fakes/rules_test.h"
#include "lwm/kill_list.h"
#include "lwm/lwm_list.h"
#include "lwm/polygon_builder.h"

namespace tidemark {

// The polygons' lines and vertices.
static Texts Polygons(const Project& p) {
    Texts polygons = LWM_list_lines(p);
    for (int i = 1; i <= p.LWMCount; ++i)
        polygons[static_cast<std::size_t>(i - 1)] += ": " + Points_text(Stored_outline(p, i));
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
        return Points_text(Stored_outline(p, 1));
    });
}

TEST(KillListTest, EveryCodeHasItsName) {
    Project p;
    for (const int code : {ClearCoastlines, ClearRivers, ClearMinorRoads, ClearMajorRoads, 9})
        Add_cleared_cell(p, code, 0, code);
    Delete_Kill_Cell(p, 2);
    EXPECT_EQ(Kill_list_lines(p), (Texts{"[ 8, 0 ] Coast", "[ 31, 0 ] Minor Roads",
                                         "[ 32, 0 ] Major Roads", "[ 9, 0 ]"}));
}

}  // namespace tidemark
