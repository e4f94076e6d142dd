// Instructions, Tutorial and About.
#include "output/help.h"

#include <gtest/gtest.h>

#include "fakes/memory_files.h"
#include "fakes/recording_messages.h"
#include "fakes/recording_programs.h"

namespace tidemark {
namespace {

TEST(HelpTest, AddressesCarryAnyPath) {
    struct Case {
        const char *Path, *Address;
    };
    for (const auto& [path, address] :
         {Case{R"(C:\Tools/Documentation/Tutorial.html)",
               R"(file://C:\Tools/Documentation/Tutorial.html)"},
          {"/home/me/Documentation", "file:///home/me/Documentation"},
          {"/a b/100%/#1?/K\xC3\xBC\"<>", "file:///a%20b/100%25/%231%3F/K%C3%BC%22%3C%3E"},
          {R"(/a\b)", "file:///a%5Cb"}})
        EXPECT_EQ(File_address(path), address);
}

TEST(HelpTest, DocumentsBelowTheCurrentFolderComeBeforeInstalledOnes) {
    const HelpPlaces places{"/home/me", "/opt/tidemark/bin"};
    const std::string here = "/home/me/Documentation/Tutorial.html";
    const std::string installed = "/opt/tidemark/share/doc/tidemark/Documentation/Tutorial.html";
    MemoryFiles files;
    EXPECT_EQ(Find_help(TutorialDocument, places, files), here) << "neither is there";
    files.Content[installed] = "";
    EXPECT_EQ(Find_help(TutorialDocument, places, files), installed);
    files.Content[here] = "";
    EXPECT_EQ(Find_help(TutorialDocument, places, files), here);
}

TEST(HelpTest, WithoutABrowserTheUserIsToldToOpenTheDocument) {
    RecordingMessages messages;
    MemoryFiles files;
    RecordingPrograms programs;
    const HelpPlaces places{"/my tools", "/usr/bin"};
    Show_help(InstructionsDocument, places, messages, files, programs);
    EXPECT_TRUE(messages.Shown.empty());
    programs.CanShow = false;
    Show_help(InstructionsDocument, places, messages, files, programs);
    Show_help(TutorialDocument, places, messages, files, programs);
    EXPECT_EQ(messages.Texts(),
              (std::vector<std::string>{
                  "External program Internet Explorer not found!\n"
                  "Please open the file INSTRUCTIONS.HTML with your web browser manually!",
                  "External program Internet Explorer not found!\n"
                  "Please open the file TUTORIAL.HTML with your web browser manually!"}));
    EXPECT_EQ(programs.Shown[0], "file:///my%20tools/Documentation/Instructions.html");
    EXPECT_EQ(programs.Shown[2], "file:///my%20tools/Documentation/Tutorial.html");
}

TEST(HelpTest, AboutHasElevenLines) {
    RecordingMessages messages;
    Show_about(messages);
    const Message& about = messages.Shown.at(0);
    EXPECT_EQ(about.Title, "About Tidemark");
    EXPECT_EQ(about.Icon, MessageIcon::Information);
    EXPECT_EQ(std::count(about.Text.begin(), about.Text.end(), '\n'), 10);
    EXPECT_TRUE(about.Text.starts_with("Tidemark ( V 1.1 - 27th January 2003 )\n\n"));
    EXPECT_NE(about.Text.find("\nPlease e-mail any comments or bug reports to:\n     "),
              about.Text.npos);
}

}  // namespace
}  // namespace tidemark
