// Choosing a background.
#include "canvas/background.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(BackgroundTest, UnsavedChangesAreClearedOnlyOnYes) {
    Project before = Project_of_all_values();
    before.BackgroundFile = "/maps/old.bmp";
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
    Session session;
    session.DataChanged = true;
    for (const auto& [chosen, left, said] :
         {std::tuple{false, &before, question},  // No
          {false, &cleared, question},           // Yes, and the chooser is cancelled
          {false, &cleared,
           "This name cannot be used: it holds a line end or a NUL, or it is too long."}}) {
        EXPECT_EQ(Choose_background(project, session, fake.platform), chosen);
        EXPECT_EQ(project, *left);
        EXPECT_EQ(fake.messages.Said(), said);
    }
    EXPECT_TRUE(Choose_background(project, session, fake.platform));
    EXPECT_EQ(project.BackgroundFile + fake.messages.Said(), "/maps/bay.gif");
    EXPECT_FALSE(session.DataChanged);
    EXPECT_EQ(fake.choosers.Shown.at(0).InitialFolder, "/start");
    EXPECT_EQ(fake.choosers.Shown.at(0).FileName, before.BackgroundFile);
    EXPECT_EQ(fake.choosers.Shown.size(), 3U);
}

TEST(BackgroundTest, ANameThatIsNoFullPathIsAlsoLookedForBesideTheProject) {
    for (const auto& [name, tried] : {std::pair{"bay.gif", Texts{"bay.gif", "/p/bay.gif"}},
                                      {"/m/bay.gif", {"/m/bay.gif"}},
                                      {"C:\\bay.gif", {"C:\\bay.gif"}}}) {
        Project project;
        project.BackgroundFile = name;
        Session session;
        session.Opened.Folder = "/p/";
        RecordingMessages messages;
        Texts asked;
        Load_background_file(project, session, messages, [&](const std::string& path) {
            asked.push_back(path);
            return false;
        });
        EXPECT_EQ(asked, tried);
        EXPECT_EQ(messages.Said(), std::string("An error occurred when trying to load ") + name);
        EXPECT_EQ(project.BackgroundFile, name);
    }
}

}  // namespace tidemark
