// The cross that the keys move, at every zoom.
#include "canvas/key_cross.h"

#include <cmath>

#include "canvas/map_frame.h"
#include "fakes/rules_test.h"

namespace tidemark {

TEST(KeyCrossTest, EveryStepIsOfTheLengthItIsSaidToBeAndStaysOnTheMap) {
    Project project;
    Place_area(project, 3, 4, 12, 13);
    project.ScaleX = 0.3F;
    project.ScaleY = 1.7F;
    const ViewSize image{768, 4352};  // ten cells, each way
    const auto cursor_at = [&](CanvasPoint place) {
        Session session;
        Move_cursor(project, session, static_cast<float>(place.X), static_cast<float>(place.Y));
        return session;
    };
    RandomNumbers random(7);
    double zoom = SmallestLevel;
    for (bool is_more = true; is_more; is_more = Next_level(zoom) != zoom, zoom = Next_level(zoom))
        for (const double ratio : {1.0, 1.5, 2.0}) {
            ShownMap map{{}, image, {300, 200}, ratio};
            map.Scale.Zoom_to(zoom, {});
            map.Scale.Scroll_to(random.Number(0, 60), random.Number(0, 300));
            CanvasPoint at = Start_of_cross(project, -1, map);
            for (int i = 0; i < 400; ++i) {
                const int way = random.One_in(2) ? 1 : -1;
                const bool is_across = random.One_in(2);
                const CrossMove move{is_across ? way : 0, is_across ? 0 : way,
                                     static_cast<CrossStep>(random.Number(0, 2))};
                const CanvasPoint to = Moved_cross(at, move, project, map);
                EXPECT_EQ(is_across ? to.Y : to.X, is_across ? at.Y : at.X);
                const auto along = [&](CanvasPoint p) { return is_across ? p.X : p.Y; };
                const double pixels = along(to) * zoom * ratio;
                const double length = (is_across ? image.Width : image.Height);
                ASSERT_TRUE(along(to) >= 0 && along(to) < length) << zoom << " " << along(to);
                const Session before = cursor_at(at), after = cursor_at(to);
                const int moved = after.CursorOffsetX - before.CursorOffsetX + after.CursorOffsetY -
                                  before.CursorOffsetY;
                if (move.Step == CrossStep::Pixel) {
                    if (to == at) continue;  // at the border
                    EXPECT_NEAR(pixels, std::round(pixels), 1e-6) << "where a mouse can be";
                    EXPECT_LE(std::abs(pixels - along(at) * zoom * ratio - way), 1.0 + 1e-6);
                } else if (to != at) {
                    EXPECT_EQ(moved, move.Step == CrossStep::Unit ? way : 256 * way);
                } else {
                    const int step = move.Step == CrossStep::Unit ? 1 : 256;
                    const int offset = is_across ? before.CursorOffsetX : before.CursorOffsetY;
                    EXPECT_TRUE(offset + way * step < 0 || offset + way * step > 2560) << offset;
                }
                at = to;
            }
        }
    Add_segment(project, 1, 80, {{5000, 5300}});
    const ShownMap whole{{}, image, {9999, 9999}, 1};
    const Session start = cursor_at(Start_of_cross(project, 0, whole));
    EXPECT_TRUE(start.CursorVTPX == 5000 && start.CursorVTPY == 5300) << "the selected point";
}

}  // namespace tidemark
