// The viewport and the scroll bars in a client area of 816 x 616 with bars 16 pixels thick: a
// viewport of 800 x 600.
#include "canvas/view_layout.h"

#include <gtest/gtest.h>

namespace tidemark {
namespace {

TEST(ViewLayoutTest, BarsShowAndMoveByTheSizeOfTheImage) {
    struct Case {
        ViewSize Image;
        int MaximumX, MaximumY;
        bool Wide, High;
        int HorizontalTop, VerticalLeft;
    };
    for (const Case& c : {Case{{1000, 900}, 200, 300, true, true, 600, 800},
                          {{300, 200}, -500, -400, false, false, 200, 300},
                          {{1000, 200}, 200, -400, true, false, 200, 800},
                          {{300, 900}, -500, 300, false, true, 600, 300},
                          {{800, 600}, 0, 0, false, false, 600, 800},
                          {{33567, 33367}, 32767, 32767, true, true, 600, 800}}) {
        const auto layout = Lay_out_view({816, 616}, c.Image, 16);
        ASSERT_TRUE(layout);
        EXPECT_EQ(layout->Viewport, (ViewRect{0, 0, 800, 600}));
        const auto& horizontal = layout->Horizontal;
        const auto& vertical = layout->Vertical;
        EXPECT_EQ(horizontal.Maximum, c.MaximumX);
        EXPECT_EQ(vertical.Maximum, c.MaximumY);
        EXPECT_EQ(horizontal.Visible, c.Wide) << c.Image.Width;
        EXPECT_EQ(vertical.Visible, c.High) << c.Image.Height;
        EXPECT_EQ(horizontal.Place, (ViewRect{0, c.HorizontalTop, 800, 16}));
        EXPECT_EQ(vertical.Place, (ViewRect{c.VerticalLeft, 0, 16, 600}));
    }
    EXPECT_FALSE(Lay_out_view({816, 616}, {33568, 10}, 16));
    EXPECT_FALSE(Lay_out_view({816, 616}, {10, 33368}, 16));
    EXPECT_TRUE(Lay_out_view({10, 10}, {100, 100}, 16));  // no room at all is no failure
}

}  // namespace
}  // namespace tidemark
