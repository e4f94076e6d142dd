// Choosing a background and what its loading leaves in the project.
#include "canvas/background.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "fakes/sample_projects.h"

namespace tidemark {
namespace {

class BackgroundTest : public testing::Test {
  protected:
    bool Choose() { return Choose_background(project_, messages_, choosers_, "/maps"); }

    Project project_ = Project_of_all_values();
    RecordingMessages messages_;
    RecordingChoosers choosers_;
};

TEST_F(BackgroundTest, WithoutUnsavedChangesNothingIsAskedOrCleared) {
    choosers_.Answers = {"/maps/bay.gif"};
    project_.DataChanged = false;
    Project expected = project_;
    expected.BackgroundFile = "/maps/bay.gif";
    EXPECT_TRUE(Choose());
    EXPECT_TRUE(messages_.Shown.empty());
    EXPECT_EQ(project_, expected);
    ASSERT_EQ(choosers_.Shown.size(), 1U);
    EXPECT_EQ(choosers_.Shown[0].Title, "Tidemark - Open background image");
    EXPECT_EQ(choosers_.Shown[0].Filter, "*.BMP;*.GIF;*.JPG");
    EXPECT_EQ(choosers_.Shown[0].InitialFolder, "/maps");
}

TEST_F(BackgroundTest, UnsavedChangesAreClearedOnlyOnYes) {
    const Project before = project_;
    project_.DataChanged = true;
    EXPECT_FALSE(Choose());  // No
    EXPECT_EQ(messages_.Shown,
              (std::vector<Message>{
                  {"This will clear all of your current data - do you wish to continue?",
                   "Tidemark - Load warning", MessageIcon::Exclamation, MessageButtons::YesNo}}));
    EXPECT_TRUE(choosers_.Shown.empty());
    EXPECT_EQ(project_, before);
    EXPECT_TRUE(project_.DataChanged);

    messages_.Answers = {MessageAnswer::Yes};
    EXPECT_FALSE(Choose());  // Yes, then the chooser is cancelled
    Project cleared = before;
    cleared.BGLOD8X = cleared.BGLOD8Y = 0;
    cleared.BGLOD13tlX = cleared.BGLOD13tlY = cleared.BGLOD13brX = cleared.BGLOD13brY = 0;
    cleared.VTPCount = cleared.LWMCount = cleared.KillCount = 0;
    EXPECT_EQ(project_, cleared);
    EXPECT_FALSE(project_.DataChanged);
}

TEST_F(BackgroundTest, APathThatNoProjectFileCouldHoldIsRefused) {
    choosers_.Answers = {"/maps/two\nlines.gif"};
    const Project before = project_;
    EXPECT_FALSE(Choose());
    EXPECT_EQ(project_, before);
    EXPECT_EQ(messages_.Shown.size(), 1U);
}

TEST_F(BackgroundTest, LoadingTellsWhetherItWorked) {
    project_.BackgroundFile = "/maps/bay.jpg";
    project_.BackgroundLoaded = true;
    Load_background_file(project_, messages_, [&](const std::string& path) {
        EXPECT_FALSE(project_.BackgroundLoaded);
        EXPECT_EQ(path, "/maps/bay.jpg");
        return false;
    });
    EXPECT_FALSE(project_.BackgroundLoaded);
    EXPECT_FALSE(project_.DataChanged);
    EXPECT_EQ(messages_.Texts(),
              (std::vector<std::string>{"An error occurred when trying to load /maps/bay.jpg"}));

    Load_background_file(project_, messages_, [](const std::string&) { return true; });
    EXPECT_TRUE(project_.BackgroundLoaded);
    EXPECT_TRUE(project_.DataChanged);
    EXPECT_EQ(messages_.Shown.size(), 1U);
}

}  // namespace
}  // namespace tidemark
