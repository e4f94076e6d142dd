// The left click on the map.
#include "canvas/click.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(LeftClickTest, TheItemTextDecidesWhatIsAdded) {
    struct Case {
        const char* Item;
        int Code;
        Adds What;
    };
    for (const auto& [item, code, what] :
         {Case{"Plain segment (LWM edge only)", 0, Adds::Point},
          {"Road (2 lane concrete)", 9, Adds::Point},
          {"Water polygon", 10, Adds::Polygon},
          {"Land polygon", 11, Adds::Polygon},
          {"Clear existing coastlines in LOD13 cell", 8, Adds::ClearedCell},
          {"Clear existing major roads in LOD13 cell", 32, Adds::ClearedCell}}) {
        Project project;
        project.ScaleX = project.ScaleY = 2;
        RecordingMessages messages;
        EXPECT_EQ(Take_left_click(project, item, messages), what) << item;
        EXPECT_EQ(project.DrawMode, code) << item;
        EXPECT_TRUE(project.DataChanged);
        EXPECT_TRUE(messages.Shown.empty());
    }
}

TEST(LeftClickTest, AnUnknownModeAndAMapWithoutScaleAddNothing) {
    Project project;
    project.DrawMode = 5;
    RecordingMessages messages;
    EXPECT_EQ(Take_left_click(project, "water polygon", messages), std::nullopt);
    EXPECT_EQ(project.DrawMode, 5);
    EXPECT_TRUE(project.DataChanged);
    EXPECT_THAT(messages.Shown, testing::ElementsAre(
                                    Message{"Unknown drawing mode case encountered.", "Tidemark"}));

    project.ScaleX = 2;
    EXPECT_EQ(Take_left_click(project, "Road (dirt)", messages), std::nullopt);
    EXPECT_EQ(project.DrawMode, 6);
}

}  // namespace
}  // namespace tidemark
