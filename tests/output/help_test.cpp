// Instructions, Tutorial and About.
#include "output/help.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(HelpTest, ADocumentBelowTheCurrentFolderComesFirstAndWithoutABrowserItsNameIsTold) {
    const std::string here = "/home/me/Documentation/Tutorial.html";
    const std::string beside = "/opt/tidemark/bin/Documentation/Tutorial.html";
    const std::string installed = "/opt/tidemark/share/doc/tidemark/Documentation/Tutorial.html";
    FakePlatform fake;
    const auto show = [&](const HelpDocument& document) {
        Show_help(document, {"/home/me", "/opt/tidemark/bin"}, fake.platform);
        return fake.programs.Shown.back();
    };
    EXPECT_EQ(show(TutorialDocument), "file://" + here) << "neither is there";
    fake.files.Content[installed] = "";
    EXPECT_EQ(show(TutorialDocument), "file://" + installed);
    fake.files.Content[beside] = "";
    EXPECT_EQ(show(TutorialDocument), "file://" + beside);
    fake.files.Content[here] = "";
    EXPECT_EQ(show(TutorialDocument), "file://" + here);
    EXPECT_EQ(fake.messages.Said(), "");
    fake.programs.CanShow = false;
    EXPECT_EQ(show(InstructionsDocument), "file:///home/me/Documentation/Instructions.html");
    EXPECT_EQ(fake.messages.Said(),
              "External program Internet Explorer not found!\n"
              "Please open the file INSTRUCTIONS.HTML with your web browser manually!");
}

TEST(HelpTest, AboutHasElevenLines) {
    RecordingMessages messages;
    Show_about(messages);
    EXPECT_EQ(std::ranges::count(messages.Shown[0].Text, '\n'), 10);
    EXPECT_TRUE(
        messages.Said().starts_with("About Tidemark: Tidemark ( V 1.1 - 27th January 2003 )\n\n"));
}

}  // namespace tidemark
