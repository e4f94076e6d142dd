// The viewport and the scroll bars in a client area of 816 x 616 with bars 16 pixels thick: a
// viewport of 800 x 600.
#include "canvas/view_layout.h"

#include <gtest/gtest.h>

namespace tidemark {
namespace {

TEST(ViewLayoutTest, BarsShowAndMoveByTheSizeOfTheImage) {
    struct Case {
        const char* What;
        ViewSize Image;
        int MaximumX, MaximumY;
        bool Wide, High;
        int HorizontalTop, VerticalLeft;
    };
    for (const Case& c : {Case{"larger", {1000, 900}, 200, 300, true, true, 600, 800},
                          {"smaller", {300, 200}, -500, -400, false, false, 200, 300},
                          {"wider only", {1000, 200}, 200, -400, true, false, 200, 800},
                          {"higher only", {300, 900}, -500, 300, false, true, 600, 300},
                          {"just as large", {800, 600}, 0, 0, false, false, 600, 800},
                          {"largest", {33567, 33367}, 32767, 32767, true, true, 600, 800}}) {
        const auto layout = Lay_out_view({816, 616}, c.Image, 16);
        ASSERT_TRUE(layout) << c.What;
        EXPECT_EQ(layout->Viewport, (ViewRect{0, 0, 800, 600})) << c.What;
        EXPECT_EQ(layout->Horizontal.Maximum, c.MaximumX) << c.What;
        EXPECT_EQ(layout->Vertical.Maximum, c.MaximumY) << c.What;
        EXPECT_EQ(layout->Horizontal.Visible, c.Wide) << c.What;
        EXPECT_EQ(layout->Vertical.Visible, c.High) << c.What;
        EXPECT_EQ(layout->Horizontal.Place, (ViewRect{0, c.HorizontalTop, 800, 16})) << c.What;
        EXPECT_EQ(layout->Vertical.Place, (ViewRect{c.VerticalLeft, 0, 16, 600})) << c.What;
    }
}

TEST(ViewLayoutTest, AnImageBeyondTheScrollRangeIsRefused) {
    EXPECT_FALSE(Lay_out_view({816, 616}, {33568, 10}, 16));
    EXPECT_FALSE(Lay_out_view({816, 616}, {10, 33368}, 16));
    EXPECT_TRUE(Lay_out_view({10, 10}, {100, 100}, 16));  // no room at all is no failure
}

}  // namespace
}  // namespace tidemark
