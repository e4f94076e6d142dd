// Choosing a background and what its loading leaves in the project.
#include "canvas/background.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "fakes/sample_projects.h"

namespace tidemark {
namespace {

TEST(BackgroundTest, UnsavedChangesAreClearedOnlyOnYes) {
    Project project = Project_of_all_values();
    project.BackgroundFile = "/maps/old.bmp";
    const Project before = project;
    FakePlatform fake;
    const auto choose = [&] {
        return Choose_background(project, fake.messages, fake.choosers, "/maps");
    };
    project.DataChanged = true;
    EXPECT_FALSE(choose());  // No
    EXPECT_EQ(fake.messages.Shown.size(), 1U);
    EXPECT_TRUE(fake.choosers.Shown.empty());
    EXPECT_EQ(project, before);

    fake.messages.Answers = {MessageAnswer::Yes};
    EXPECT_FALSE(choose());  // Yes, then the chooser is cancelled
    Project cleared = before;
    cleared.BGLOD8X = cleared.BGLOD8Y = 0;
    cleared.BGLOD13tlX = cleared.BGLOD13tlY = cleared.BGLOD13brX = cleared.BGLOD13brY = 0;
    cleared.VTPCount = cleared.LWMCount = cleared.KillCount = 0;
    EXPECT_EQ(project, cleared);
    EXPECT_FALSE(project.DataChanged);

    fake.choosers.Answers = {"/maps/two\nlines.gif", "/maps/bay.gif"};
    EXPECT_FALSE(choose());  // no project file could hold that
    EXPECT_EQ(project, cleared);
    EXPECT_TRUE(choose());  // nothing is asked
    EXPECT_EQ(fake.messages.Shown.size(), 3U);
    EXPECT_EQ(project.BackgroundFile, "/maps/bay.gif");
    EXPECT_EQ(fake.choosers.Shown[0].InitialFolder, "/maps");
    EXPECT_EQ(fake.choosers.Shown[0].FileName, before.BackgroundFile);
}

TEST(BackgroundTest, ANameThatIsNoFullPathIsAlsoLookedForBesideTheProject) {
    struct Case {
        std::string Name;
        std::vector<std::string> Tried;  // nothing can be shown
    };
    for (const auto& [name, tried] : {Case{"bay.gif", {"bay.gif", "/p/bay.gif"}},
                                      {"/m/bay.gif", {"/m/bay.gif"}},
                                      {"C:\\bay.gif", {"C:\\bay.gif"}}}) {
        Project project;
        project.BackgroundFile = name;
        RecordingMessages messages;
        std::vector<std::string> asked;
        Load_background_file(project, messages, "/p/", [&](const std::string& path) {
            asked.push_back(path);
            return false;
        });
        EXPECT_EQ(asked, tried);
        EXPECT_EQ(messages.Texts(), std::vector{"An error occurred when trying to load " + name});
        EXPECT_EQ(project.BackgroundFile, name);
    }
}

}  // namespace
}  // namespace tidemark
