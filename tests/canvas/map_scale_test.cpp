// Between the screen and the map at every zoom.
#include "canvas/map_scale.h"

#include <cmath>

#include "canvas/map_frame.h"
#include "fakes/rules_test.h"

namespace tidemark {

static std::vector<double> Levels() {
    std::vector<double> levels{SmallestLevel};
    while (Next_level(levels.back()) != levels.back()) levels.push_back(Next_level(levels.back()));
    return levels;
}

TEST(MapScaleTest, EveryPositionIsFoundUnderThePixelThatShowsIt) {
    Project project;
    Place_area(project, 3, 4, 30, 30);
    project.ScaleX = 1.3F;
    project.ScaleY = 0.7F;
    Session session;
    for (const double zoom : Levels())
        for (const double ratio : {1.0, 1.5, 2.0})  // the screen's own pixels to a pixel
            for (const int left : {0, 137, 4001})
                for (int offset = 1; offset < 7000; offset += 311) {
                    MapScale scale;
                    scale.Zoom_to(zoom, {});
                    scale.Scroll_to(left, 3 * left);
                    const double middle = offset - 0.5;
                    const ScreenPoint exact = scale.To_screen(
                        {middle * double{project.ScaleX}, middle * double{project.ScaleY}});
                    const auto reported = [ratio](double at) {
                        return std::floor(at * ratio + 0.5) / ratio;
                    };
                    const CanvasPoint found =
                        scale.To_canvas({reported(exact.X), reported(exact.Y)});
                    ASSERT_TRUE(Move_cursor(project, session, static_cast<float>(found.X),
                                            static_cast<float>(found.Y)));
                    for (const auto& [at, pixels] :
                         {std::pair{session.CursorOffsetX, project.ScaleX},
                          {session.CursorOffsetY, project.ScaleY}}) {
                        const double unit = double{pixels} * zoom * ratio;
                        ASSERT_LE(std::abs(at - offset), std::floor(0.5 / unit + 0.51))
                            << zoom << " " << ratio << " " << left << " " << offset;
                    }
                }
}

TEST(MapScaleTest, LevelsFollowEachOtherAndZoomingHoldsAPlace) {
    std::string texts;
    for (const double from : Levels()) {
        for (const double to : Levels()) {
            MapScale scale;
            scale.Zoom_to(from, {});
            scale.Scroll_to(1234, 777);
            const ScreenPoint fixed{301.5, 44};
            const CanvasPoint held = scale.To_canvas(fixed);
            scale.Zoom_to(to, fixed);
            EXPECT_NEAR(scale.To_screen(held).X, fixed.X, 0.5);
            EXPECT_NEAR(scale.To_screen(held).Y, fixed.Y, 0.5);
            if (from == 1) texts += scale.Percent() + ", ";
            EXPECT_TRUE(from >= to || Next_level(from) <= to);
            EXPECT_TRUE(from <= to || Previous_level(from) >= to);
        }
        EXPECT_EQ(Nearest_level(from * 1.1), from);
    }
    EXPECT_EQ(texts,
              "12.5 %, 16.7 %, 25 %, 33.3 %, 50 %, 66.7 %, 100 %, 150 %, 200 %, 300 %, 400 %, "
              "600 %, 800 %, 1200 %, 1600 %, ");
    MapScale whole;
    whole.Zoom_to(Zoom_of_whole({33000, 500}, {799, 600}), {});
    EXPECT_EQ(whole.Percent(), "2.4 %");
    EXPECT_EQ(whole.Shown_size({33000, 500}).Width, 799);
    EXPECT_EQ(Next_level(whole.Zoom()), SmallestLevel);
    EXPECT_EQ(Previous_level(whole.Zoom()), whole.Zoom());
}

}  // namespace tidemark
