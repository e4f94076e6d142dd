// The marks above the drawing.
#include "canvas/map_marks.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(MapMarksTest, EachKindShowsWhatItIsFor) {
    Project p;
    Place_area(p, 3, 5, 4, 7);  // one pixel to the unit: cell [ 3, 5 ] is 0..256 in both directions
    Add_segment(p, 1, 80, {{4848, 5360}, {4900, 5400}, {5000, 5500}});
    Add_segment(p, 5, 80, {{4848, 5360}, {4900, 5400}});
    Add_polygon(p, 4, 7, WaterPolygon, 0, 4);
    Add_polygon(p, 3, 5, LandPolygon, 0, 5);
    Add_polygon(p, 200, 5, LandPolygon, 0, 4);  // too far away for 16 bits
    Add_cleared_cell(p, 4, 6, ClearRivers);
    Session session;
    const auto marks = [&](MarkKinds kinds) { return Marks_of(p, session, kinds); };
    const MarkKinds none{false, false, false, false};

    MapMarks made = marks({true, false, false, false});
    EXPECT_EQ(made.Lines.size(), 3U + 4U);
    EXPECT_EQ(made.Lines.back().To, (CanvasPoint{512, 768}));
    std::string numbers;
    for (const auto& [is_column, at, number] : made.Numbers)
        numbers += (is_column ? "column " : "row ") + std::to_string(number) + " at " +
                   std::to_string(static_cast<int>(at)) + "; ";
    EXPECT_EQ(numbers,
              "column 3 at 128; column 4 at 384; row 5 at 128; row 6 at 384; row 7 at 640; ");

    made = marks({false, false, true, false});
    ASSERT_EQ(made.Areas.size(), 2U);
    EXPECT_EQ(made.Areas[0].Outline.front(), (CanvasPoint{256, 512}));
    EXPECT_FALSE(made.Areas[0].Ink == made.Areas[1].Ink) << "water and land";

    for (const auto& [point, polygon, cell, lines] : {std::tuple{-1, -1, -1, 0U},
                                                      {1, -1, -1, 2U},
                                                      {4, -1, -1, 1U},
                                                      {-1, 1, -1, 5U},
                                                      {-1, -1, 0, 4U},
                                                      {-1, 2, -1, 0U},
                                                      {0, 0, 0, 10U},
                                                      {99, 99, 99, 0U}}) {
        session.Panel.SelectedPoint = point;
        session.Panel.SelectedPolygon = polygon;
        session.Panel.SelectedCell = cell;
        EXPECT_EQ(marks({false, false, false, true}).Lines.size(), lines) << point << polygon;
    }
    EXPECT_TRUE(marks(none).Lines.empty() && marks(none).Areas.empty());
    session.CursorCellX = 4;
    session.CursorCellY = 7;
    EXPECT_EQ(Pointer_frame(p, session).at(0).From, (CanvasPoint{256, 512}));
    session.CursorCellX = 5;
    EXPECT_TRUE(Pointer_frame(p, session).empty()) << "beside the map";
    p.ScaleX = 0;
    EXPECT_TRUE(marks({}).Lines.empty()) << "without scale";
}

}  // namespace tidemark
