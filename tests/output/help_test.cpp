// Instructions, Tutorial and About.
#include "output/help.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"

namespace tidemark {
namespace {

TEST(HelpTest, AddressesCarryAnyPath) {
    for (const auto& [path, address] :
         {std::pair{R"(C:\Tools/Tutorial.html)", R"(file://C:\Tools/Tutorial.html)"},
          {"/a b/100%/#1?/K\xC3\xBC\"<>", "file:///a%20b/100%25/%231%3F/K%C3%BC%22%3C%3E"},
          {R"(/a\b)", "file:///a%5Cb"}})
        EXPECT_EQ(File_address(path), address);
}

TEST(HelpTest, ADocumentBelowTheCurrentFolderComesFirstAndWithoutABrowserItsNameIsTold) {
    const HelpPlaces places{"/home/me", "/opt/tidemark/bin"};
    const std::string here = "/home/me/Documentation/Tutorial.html";
    const std::string installed = "/opt/tidemark/share/doc/tidemark/Documentation/Tutorial.html";
    FakePlatform fake;
    const auto show = [&](const HelpDocument& document) {
        Show_help(document, places, fake.messages, fake.files, fake.programs);
        return fake.programs.Shown.back();
    };
    EXPECT_EQ(show(TutorialDocument), "file://" + here) << "neither is there";
    fake.files.Content[installed] = "";
    EXPECT_EQ(show(TutorialDocument), "file://" + installed);
    fake.files.Content[here] = "";
    EXPECT_EQ(show(TutorialDocument), "file://" + here);
    EXPECT_TRUE(fake.messages.Shown.empty());
    fake.programs.CanShow = false;
    EXPECT_EQ(show(InstructionsDocument), "file:///home/me/Documentation/Instructions.html");
    EXPECT_EQ(fake.messages.Shown.at(0).Text,
              "External program Internet Explorer not found!\n"
              "Please open the file INSTRUCTIONS.HTML with your web browser manually!");
}

TEST(HelpTest, AboutHasElevenLines) {
    RecordingMessages messages;
    Show_about(messages);
    EXPECT_EQ(std::count(messages.Shown[0].Text.begin(), messages.Shown[0].Text.end(), '\n'), 10);
    EXPECT_TRUE(messages.Shown[0].Text.starts_with("Tidemark ( V 1.1 - 27th January 2003 )\n\n"));
}

}  // namespace
}  // namespace tidemark
