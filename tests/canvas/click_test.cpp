// The left click on the map.
#include "canvas/click.h"

#include <gtest/gtest.h>

#include "fakes/recording_messages.h"

namespace tidemark {
namespace {

TEST(LeftClickTest, TheItemTextDecidesWhatIsAdded) {
    const char* const no_mode = "Tidemark: Unknown drawing mode case encountered.";
    for (const auto& [item, scale, code, what, said] :
         {std::tuple{"Road (2 lane concrete)", 2.0F, 9, std::optional(Adds::Point), ""},
          {"Road (dirt)", 0.0F, 6, {}, ""},
          {"Land polygon", 2.0F, 11, Adds::Polygon, ""},
          {"Clear existing major roads in LOD13 cell", 2.0F, 32, Adds::ClearedCell, ""},
          {"water polygon", 2.0F, 5, {}, no_mode}}) {
        Project project;
        project.DrawMode = 5;
        project.ScaleX = 2;
        project.ScaleY = scale;
        RecordingMessages messages;
        EXPECT_EQ(Take_left_click(project, item, messages), what) << item;
        EXPECT_EQ(project.DrawMode, code) << item;
        EXPECT_TRUE(project.DataChanged);
        EXPECT_EQ(messages.Said(), said);
    }
}

}  // namespace
}  // namespace tidemark
