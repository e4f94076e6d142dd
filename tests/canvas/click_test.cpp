// The left click on the map.
#include "canvas/click.h"

#include <gtest/gtest.h>

#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(LeftClickTest, TheItemTextDecidesWhatIsAdded) {
    struct Case {
        const char* Item;
        int Code;
        std::optional<Adds> What;
        float Scale = 2;
    };
    for (const auto& [item, code, what, scale] :
         {Case{"Road (2 lane concrete)", 9, Adds::Point},
          {"Road (dirt)", 6, std::nullopt, 0},
          {"Land polygon", 11, Adds::Polygon},
          {"Clear existing major roads in LOD13 cell", 32, Adds::ClearedCell},
          {"water polygon", 5, std::nullopt}}) {
        Project project;
        project.DrawMode = 5;
        project.ScaleX = 2;
        project.ScaleY = scale;
        RecordingMessages messages;
        EXPECT_EQ(Take_left_click(project, item, messages), what) << item;
        EXPECT_EQ(project.DrawMode, code) << item;
        EXPECT_TRUE(project.DataChanged);
        EXPECT_EQ(messages.Shown.size(), code == 5 ? 1U : 0U);  // no such mode
    }
}

}  // namespace
}  // namespace tidemark
