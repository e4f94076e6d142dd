// Between the project's positions and the canvas's pixels.
#include "canvas/map_frame.h"

#include "fakes/rules_test.h"

namespace tidemark {

class MapFrameTest : public testing::Test {
  protected:
    MapFrameTest() {
        Place_area(project_, 3, 4, 9, 9);
        project_.ScaleX = 2;
        project_.ScaleY = 1.3F;
    }

    Project project_;
    Session session_;
};

TEST_F(MapFrameTest, BothMappingsPlaceAPointAlikeAndKeepFractions) {
    EXPECT_EQ(VTP_to_canvas(project_, 4840, 5105), (CanvasPoint{-16, 1.3F}));
    EXPECT_EQ(Cell_to_canvas(project_, 5, 4, 255, 3), VTP_to_canvas(project_, 5615, 5107));
    EXPECT_EQ(VTP_to_canvas(project_, 4848, 5109).Y, double{5 * 1.3F});  // in 32 bits
    EXPECT_THROW(Cell_to_canvas(project_, 200, 4, 0, 0), Overflow);
}

TEST_F(MapFrameTest, TheMouseFindsPositionAndCellWhereThereIsAScale) {
    Expect_cases("canvas/data/cursor.txt", [this](const Given& given) {
        const auto texts = Move_cursor(project_, session_, std::stof(given[0]), 0);
        return texts.value().VTP + " " + texts.value().Cell;
    });
    for (const float scale : {0.0F, -1.0F, 1e-6F}) {
        project_.ScaleX = scale;
        EXPECT_FALSE(Move_cursor(project_, session_, 500, 21)) << scale;
        EXPECT_EQ(session_.CursorOffsetX, -1) << scale;
        EXPECT_EQ(session_.CursorVTPY, 5104) << scale;
    }
}

TEST_F(MapFrameTest, TheNearestPointIsTheFirstOfThoseEquallyNear) {
    EXPECT_FALSE(Nearest_point(project_, session_));
    Add_segment(project_, 0, 80, {{12272, 12272}, {5000, 5003}, {5003, 5000}, {5000, 4997}});
    for (const auto& [x, y, nearest] :
         {std::tuple{5000, 5000, 2}, {12000, 5000, 3}, {12000, 12000, 1}}) {
        session_.CursorVTPX = x;
        session_.CursorVTPY = y;
        EXPECT_EQ(Nearest_point(project_, session_), nearest);
    }
}

}  // namespace tidemark
