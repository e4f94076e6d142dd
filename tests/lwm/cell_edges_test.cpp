// The work lists of a polygon build: points in the cell, crossings, links, overflow.
#include "lwm/cell_edges.h"

#include <random>

#include <gtest/gtest.h>

#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(CellEdgesTest, APointBelongsToTheCellOfItsWestAndNorthEdge) {
    struct Case {
        const char* Point;
        bool InCell;
    };
    for (const auto& [point, in_cell] : {Case{"0,0", true},
                                         {"255,255", true},
                                         {"-1,0", false},
                                         {"0,-1", false},
                                         {"256,100", false},
                                         {"100,256", false}}) {
        const auto project = Cell_project(point);
        project->PointInCellX = 77;
        RecordingMessages messages;
        CellEdges edges(*project, messages);
        EXPECT_EQ(edges.Point_in_cell(1), in_cell) << point;
        const CellPoint kept{77, 0};
        EXPECT_EQ(edges.PointInCell(), in_cell ? Points_from(point)[0] : kept) << point;
        EXPECT_FALSE(edges.Point_in_cell(0) || edges.Point_in_cell(2));
    }
}

TEST(CellEdgesTest, WestOfTheAreaLiesTheColumnBefore) {
    const auto project = Cell_project("-513,0");  // the area begins two columns west of the cell
    project->CursorCellX = PictureColumn - 3;
    RecordingMessages messages;
    CellEdges edges(*project, messages);
    EXPECT_TRUE(edges.Point_in_cell(1));
    EXPECT_EQ(edges.PointInCell(), (CellPoint{255, 0}));
}

TEST(CellEdgesTest, AStepCrossesTheBoundaryWhereItsLineDoes) {
    struct Case {
        const char* Inside;
        const char* Outside;
        const char* Crossing;
    };
    for (const auto& [inside, outside, crossing] : {Case{"100,50", "-100,250", "0,150"},
                                                    {"60,110", "-20,100", "0,102"},  // 102.5
                                                    {"10,13", "-10,14", "0,14"},     // 13.5
                                                    {"10,12", "-10,13", "0,12"},     // 12.5
                                                    {"150,120", "300,130", "255,127"},
                                                    {"100,200", "140,300", "122,255"},
                                                    {"10,100", "-90,-20", "-73,0"},  // top wins
                                                    {"250,250", "400,300", "265,255"},
                                                    {"128,1", "128,-1", "128,0"}}) {
        for (const bool enters : {false, true}) {
            const std::string line =
                enters ? std::string(outside) + " " + inside : std::string(inside) + " " + outside;
            const auto project = Cell_project(line);
            RecordingMessages messages;
            CellEdges edges(*project, messages);
            edges.Point_in_cell(1);
            edges.Add_Edge_Crossing(2, false);
            EXPECT_EQ(Points_text({{edges.EdgePoint(1)}}), crossing) << line;
            EXPECT_EQ(edges.EdgePointType(1), EdgeType::Boundary);
        }
    }
}

// The quotient is taken first, so a half can miss itself by the last bit of a double.
TEST(CellEdgesTest, AHalfMayBeRoundedOtherwiseInTheOtherDirection) {
    for (const auto& [line, crossing] : {std::pair{"-165,76 85,1", "0,27"},
                                         {"85,1 -165,76", "0,26"},
                                         {"-99,202 55,27", "0,90"},
                                         {"55,27 -99,202", "0,89"}}) {
        const auto project = Cell_project(line);
        RecordingMessages messages;
        CellEdges edges(*project, messages);
        edges.Point_in_cell(1);
        edges.Add_Edge_Crossing(2, false);
        EXPECT_EQ(Points_text({{edges.EdgePoint(1)}}), crossing) << line;
    }
}

TEST(CellEdgesTest, TheNextEdgePointIsTheLastThatIsLinked) {
    const auto project = Cell_project("");
    RecordingMessages messages;
    CellEdges edges(*project, messages);
    EXPECT_EQ(edges.Next_edge_point(1), 0);
    std::mt19937 random(1);
    const auto number = [&](int lowest, int highest) {
        return std::uniform_int_distribution(lowest, highest)(random);
    };
    for (int e = 1; e <= 40; ++e)
        edges.Add_Edge_Point({e, e}, EdgeType::Interior, number(0, 4) > 0);
    for (int change = 0; change < 1000; ++change) {
        edges.Set_link(number(1, 40), number(0, 10));
        for (int e = 1; e <= 40; ++e) {
            int last = 0;
            for (int j = 1; j <= 40; ++j)
                if (edges.EdgePointLink(j) == e) last = j;
            ASSERT_EQ(edges.Next_edge_point(e), last);
        }
    }
}

TEST(CellEdgesTest, FullListsKeepWhatTheyHave) {
    const auto project = Cell_project("");
    RecordingMessages messages;
    CellEdges edges(*project, messages);
    edges.PolyNumber = 20;
    for (int n = 1; n <= 200; ++n) {
        edges.Add_Edge_Point({n, 1}, EdgeType::Interior, true);
        edges.Add_Poly_Edge_Point(n);
    }
    EXPECT_TRUE(messages.Shown.empty() && !edges.EdgePointsLost);
    edges.Add_Edge_Point({201, 1}, EdgeType::Interior, true);
    EXPECT_EQ(edges.EdgePointCount, 200);
    EXPECT_TRUE(edges.EdgePointsLost);
    edges.Add_Poly_Edge_Point(1);
    edges.Add_Poly_Point({5, 5});
    const Message overflow{
        "Fatal error - polygon overflow\n"
        "Likely cause is a VTP segment without a point in a cell through which it passes",
        "Tidemark - Warning", MessageIcon::Exclamation, MessageButtons::OK};
    EXPECT_EQ(messages.Shown, (std::vector{overflow, overflow}));
    EXPECT_EQ(edges.PolyPoint[20].size(), 200U);
    EXPECT_EQ(edges.PolyPoint[20].back(), (CellPoint{200, 1}));
}

}  // namespace
}  // namespace tidemark
