// The viewport and the scroll bars in a client area of 816 x 616 with bars 16 pixels thick: a
// viewport of 800 x 600.
#include "canvas/view_layout.h"

#include <gtest/gtest.h>

namespace tidemark {
namespace {

TEST(ViewLayoutTest, BarsShowAndMoveByTheSizeOfTheImage) {
    for (const auto& [image, across, top, down, left] :
         {std::tuple{ViewSize{1000, 900}, 200, 600, 300, 800},
          {{300, 200}, -500, 200, -400, 300},
          {{1000, 200}, 200, 200, -400, 800},
          {{300, 900}, -500, 600, 300, 300},
          {{800, 600}, 0, 600, 0, 800},
          {{33567, 33367}, 32767, 600, 32767, 800}}) {
        const auto layout = Lay_out_view({816, 616}, image, 16);
        ASSERT_TRUE(layout);
        const auto& [viewport, horizontal, vertical] = *layout;
        EXPECT_EQ(viewport, (ViewRect{0, 0, 800, 600}));
        EXPECT_EQ(horizontal.Maximum, across);
        EXPECT_EQ(horizontal.Visible, across > 0);
        EXPECT_EQ(horizontal.Place, (ViewRect{0, top, 800, 16}));
        EXPECT_EQ(vertical.Maximum, down);
        EXPECT_EQ(vertical.Visible, down > 0);
        EXPECT_EQ(vertical.Place, (ViewRect{left, 0, 16, 600}));
    }
    EXPECT_FALSE(Lay_out_view({816, 616}, {33568, 10}, 16));
    EXPECT_FALSE(Lay_out_view({816, 616}, {10, 33368}, 16));
    EXPECT_TRUE(Lay_out_view({10, 10}, {100, 100}, 16));  // no room at all is no failure
}

}  // namespace
}  // namespace tidemark
