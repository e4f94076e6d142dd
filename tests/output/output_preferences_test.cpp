// The output names and the Output Preferences dialog's rules.
#include "output/output_preferences.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "output/output_names.h"

namespace tidemark {
namespace {

TEST(OutputNamesTest, AreMadeOfTheRootAndOfTheAssemblerFile) {
    for (const auto& [root, lwm] :
         {std::pair{R"(C:\Scenery\Skye.asm)", R"(C:\Scenery\Skye-LWM.asm)"},
          {R"(C:\my.files\skye)", R"(C:\my-LWM.files\skye)"},
          {"/a.b/c.d.asm", "/a.b/c.d-LWM.asm"},
          {"skye.", "skye-LWM."},
          {R"(C:\Scenery\Skye)", "not available"}})
        EXPECT_EQ(Output_label(LWMOutput, root), std::string("LWM output filename is ") + lwm);
    EXPECT_EQ(Output_label(VTPOutput, ".asm"), "VTP output filename is -VTP.asm");
    EXPECT_EQ(BGL_name("/me/Skye-VTP.asm") + Compiler_path(R"(C:\me\Skye.asm)"),
              R"(/me/Skye-VTP.BGLC:\me\BGLC.EXE)");
    EXPECT_EQ(BGL_name("x.as") + Compiler_path("s"), "xBGLBGLC.EXE");
}

TEST(OutputPreferencesTest, ConfirmingStoresWhatIsShownNextTime) {
    using Preferences = OutputPreferences;
    for (bool Preferences::*flag :
         {&Preferences::FScopy, &Preferences::Check1, &Preferences::Check2, &Preferences::Check3,
          &Preferences::Check4}) {
        Project project;
        Preferences preferences{.RootText = "/out/Skye.asm", .FSname = "/fs"};
        preferences.*flag = true;
        Store_preferences(preferences, project);
        EXPECT_EQ(project.LWMFileName + project.VTPFileName, "/out/Skye-LWM.asm/out/Skye-VTP.asm");
        EXPECT_EQ(project.LWMNotepad, flag == &Preferences::Check1);
        EXPECT_EQ(project.VTPCompile, flag == &Preferences::Check4);
        EXPECT_TRUE(project.PrefsSet && project.DataChanged);
        EXPECT_EQ(Shown_preferences(project), preferences);
    }
}

TEST(OutputPreferencesTest, OKRefusesWhatIsNoNameOrCannotBeSaved) {
    const std::string invalid = "Selected filename root is not valid";
    const std::string unusable =
        "This name cannot be used: it holds a line end or a NUL, or it is too long.";
    for (const auto& [root, folder, warning] : {std::array<std::string, 3>{"/out/Skye.asm", "", ""},
                                                {"/out/Skye", "/fs", invalid},
                                                {"/out/Sk\nye.asm", "/fs", unusable},
                                                {"/out/Skye.asm", "/fs\r", unusable},
                                                {std::string("a\0.asm", 6), "/fs", unusable},
                                                {std::string(32764, 'a') + ".", "", unusable}}) {
        RecordingMessages messages;
        EXPECT_EQ(Check_preferences({.RootText = root, .FSname = folder}, messages),
                  warning.empty());
        EXPECT_EQ(messages.Shown.empty() ? "" : messages.Shown.back().Text, warning);
    }
}

TEST(OutputPreferencesTest, BrowsingGivesTheFileOrItsFolder) {
    FakePlatform fake;
    FileChooser root = BrowseDialog(), folder = FSBrowseDialog();
    fake.choosers.Answers = {"/out/Skye.asm", R"(C:\Scenery\any.BGL)", std::nullopt, "/Sk\nye.asm"};
    EXPECT_EQ(Browse_root(root, fake.platform), "/out/Skye.asm");
    EXPECT_EQ(Browse_folder(folder, fake.platform), R"(C:\Scenery\)");
    EXPECT_EQ(Browse_folder(folder, fake.platform), std::nullopt) << "cancelled";
    EXPECT_EQ(Browse_root(root, fake.platform), std::nullopt) << "refused";
    EXPECT_EQ(fake.messages.Shown.size(), 1U);
    const auto& shown = fake.choosers.Shown;
    EXPECT_EQ(shown[0].Title + shown[0].FileName, "Gridsmith - Save As*.asm");
    EXPECT_EQ(shown[1].Title + shown[1].FileName, "Gridsmith - Set FS folder*.BGL");
    EXPECT_EQ(shown[2].InitialFolder + shown[2].FileName, R"(/startC:\Scenery\any.BGL)");
}

}  // namespace
}  // namespace tidemark
