// The viewport and the scroll bars around images of many sizes.
#include "canvas/view_layout.h"

#include "fakes/cases.h"

namespace tidemark {

static std::string Text(const ScrollBarLayout& bar) {
    std::ostringstream text;
    text << bar.Place.Left << ',' << bar.Place.Top << ' ' << bar.Place.Width << 'x'
         << bar.Place.Height << " to " << bar.Maximum << (bar.Visible ? " shown" : " hidden");
    return text.str();
}

TEST(ViewLayoutTest, BarsShowAndMoveByTheSizeOfTheImage) {
    Expect_cases("canvas/data/views.txt", [](const Given& given) -> std::string {
        const auto layout =
            Lay_out_view({816, 616}, {std::stoi(given[0]), std::stoi(given[1])}, 16);
        if (!layout) return "no room";
        EXPECT_EQ(layout->Viewport, (ViewRect{0, 0, 800, 600}));
        return Text(layout->Horizontal) + ", " + Text(layout->Vertical);
    });
    EXPECT_TRUE(Lay_out_view({10, 10}, {100, 100}, 16));  // a window of no size is no failure
}

}  // namespace tidemark
