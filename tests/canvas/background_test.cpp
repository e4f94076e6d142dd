// Choosing a background.
#include "canvas/background.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(BackgroundTest, UnsavedChangesAreClearedOnlyOnYes) {
    const Project before = Project_of_all_values();
    Project project = before, cleared = before;
    cleared.BGLOD8X = cleared.BGLOD8Y = 0;
    cleared.BGLOD13tlX = cleared.BGLOD13tlY = cleared.BGLOD13brX = cleared.BGLOD13brY = 0;
    cleared.VTPCount = cleared.LWMCount = cleared.KillCount = 0;
    const std::string question =
        "Tidemark - Load warning: This will clear all of your current data - do you wish to "
        "continue?";
    FakePlatform fake;
    fake.messages.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    fake.choosers.Answers = {std::nullopt, "/maps/two\nlines.gif", "/maps/bay.gif"};
    project.DataChanged = true;
    for (const auto& [chosen, left, said] :
         {std::tuple{false, &before, question},  // No
          {false, &cleared, question},           // Yes, and the chooser is cancelled
          {false, &cleared,
           "This name cannot be used: it holds a line end or a NUL, or it is too long."}}) {
        EXPECT_EQ(Choose_background(project, fake.messages, fake.choosers, "/maps"), chosen);
        EXPECT_EQ(project, *left);
        EXPECT_EQ(fake.messages.Said(), said);
    }
    EXPECT_TRUE(Choose_background(project, fake.messages, fake.choosers, "/maps"));
    EXPECT_EQ(project.BackgroundFile + fake.messages.Said(), "/maps/bay.gif");
    EXPECT_FALSE(project.DataChanged);
    EXPECT_EQ(fake.choosers.Shown.at(0).InitialFolder, "/maps");
    EXPECT_EQ(fake.choosers.Shown.size(), 3U);
}

}  // namespace tidemark
