// Between the project's positions and the canvas's pixels.
#include "canvas/map_frame.h"

#include <gtest/gtest.h>

#include "fakes/sample_projects.h"

namespace tidemark {
namespace {

// An image of 3 x 1 cells from column 3, row 4.
Project Project_at_scale(float scale_x, float scale_y) {
    Project p;
    p.BGLOD13tlX = 3;
    p.BGLOD13tlY = 4;
    p.BGLOD13brX = 5;
    p.BGLOD13brY = 4;
    p.AreaLeftVTP = 4848;
    p.AreaTopVTP = 5104;
    p.AreaWidth = 768;
    p.AreaHeight = 256;
    p.ScaleX = scale_x;
    p.ScaleY = scale_y;
    return p;
}

TEST(MapFrameTest, BothMappingsPlaceAPointAlikeAndKeepFractions) {
    const Project p = Project_at_scale(2, 1.3F);
    EXPECT_EQ(VTP_to_canvas(p, 4848, 5104), (CanvasPoint{0, 0}));
    EXPECT_EQ(VTP_to_canvas(p, 4840, 5105), (CanvasPoint{-16, 1.3F}));
    EXPECT_EQ(Cell_to_canvas(p, 5, 4, 255, 3), VTP_to_canvas(p, 4080 + 5 * 256 + 255, 5107));
    // The product is a 32-bit one.
    EXPECT_EQ(VTP_to_canvas(p, 4848, 5109).Y, double{5 * 1.3F});
    EXPECT_NE(VTP_to_canvas(p, 4848, 5109).Y, 5 * double{1.3F});
    EXPECT_THROW(Cell_to_canvas(p, 200, 4, 0, 0), Overflow);
}

TEST(MapFrameTest, TheMouseFindsOffsetPositionAndCell) {
    struct Case {
        float X;
        int Offset, Cell, InCell;
    };
    Project p = Project_at_scale(2, 1);
    for (const auto& [x, offset, cell, in_cell] : {Case{0, 0, 3, 0},
                                                   {1, 1, 3, 1},
                                                   {2, 2, 3, 2},
                                                   {3, 2, 3, 2},
                                                   {4, 2, 3, 2},
                                                   {5, 3, 3, 3},
                                                   {510, 256, 4, 0},
                                                   {509, 255, 3, 255},
                                                   {1535, 768, 6, 0},  // the last pixel column
                                                   {-3, -1, 2, 255}}) {
        ASSERT_TRUE(Move_cursor(p, x, 0));
        EXPECT_EQ(p.CursorOffsetX, offset) << x;
        EXPECT_EQ(p.CursorVTPX, 4848 + offset) << x;
        EXPECT_EQ(p.CursorCellX, cell) << x;
        EXPECT_EQ(p.CursorInCellX, in_cell) << x;
    }
}

TEST(MapFrameTest, TheStatusPanelIsToldWhereTheCursorIs) {
    Project p = Project_at_scale(1, 1);
    auto texts = Move_cursor(p, 0, 0);
    ASSERT_TRUE(texts);
    EXPECT_EQ(texts->VTP, " 4848, 5104");
    EXPECT_EQ(texts->Cell, "[ 3, 4 ]  0, 0");
    p.BGLOD13tlX = 12;
    p.BGLOD13tlY = 7;
    p.AreaLeftVTP = -200;
    texts = Move_cursor(p, 100, 37.2F);
    ASSERT_TRUE(texts);
    EXPECT_EQ(texts->VTP, "-100, 5142");
    EXPECT_EQ(texts->Cell, "[ 12, 7 ]  100, 38");
}

TEST(MapFrameTest, AMapWithoutUsableScaleLeavesTheCursorAlone) {
    for (const float scale : {0.0F, -1.0F, 1e-6F}) {
        Project p = Project_at_scale(1, 1);
        ASSERT_TRUE(Move_cursor(p, 10, 20));
        p.ScaleX = scale;
        EXPECT_FALSE(Move_cursor(p, 500, 21)) << scale;
        EXPECT_EQ(p.CursorOffsetX, 10) << scale;
        EXPECT_EQ(p.CursorOffsetY, 20) << scale;
    }
}

TEST(MapFrameTest, TheNearestPointIsTheFirstOfThoseEquallyNear) {
    Project p = Project_at_scale(1, 1);
    EXPECT_FALSE(Nearest_point(p));
    Add_segment(p, 0, 80, {{12272, 12272}, {5000, 5003}, {5003, 5000}, {5000, 4997}});
    p.CursorVTPX = 5000;
    p.CursorVTPY = 5000;
    EXPECT_EQ(Nearest_point(p), 2);
    p.CursorVTPX = 12000;
    EXPECT_EQ(Nearest_point(p), 3);
    p.CursorVTPY = 12000;
    EXPECT_EQ(Nearest_point(p), 1);
}

}  // namespace
}  // namespace tidemark
