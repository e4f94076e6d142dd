// The output names and the Output Preferences dialog's rules.
#include "output/output_preferences.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "fakes/sample_projects.h"
#include "output/output_names.h"

namespace tidemark {
namespace {

TEST(OutputNamesTest, TheLabelsFollowTheRoot) {
    struct Case {
        const char *Root, *LWM, *VTP;
    };
    for (const auto& [root, lwm, vtp] :
         {Case{R"(C:\Scenery\Skye.asm)", R"(C:\Scenery\Skye-LWM.asm)",
               R"(C:\Scenery\Skye-VTP.asm)"},
          {R"(C:\my.files\skye)", R"(C:\my-LWM.files\skye)", R"(C:\my-VTP.files\skye)"},
          {"/a.b/c.d.asm", "/a.b/c.d-LWM.asm", "/a.b/c.d-VTP.asm"},
          {".asm", "-LWM.asm", "-VTP.asm"},
          {"skye.", "skye-LWM.", "skye-VTP."},
          {R"(C:\Scenery\Skye)", "not available", "not available"},
          {"", "not available", "not available"}}) {
        EXPECT_EQ(Output_label(LWMOutput, root), std::string("LWM output filename is ") + lwm);
        EXPECT_EQ(Output_label(VTPOutput, root), std::string("VTP output filename is ") + vtp);
    }
}

TEST(OutputNamesTest, TheCompilersFilesAreNamedAfterTheAssemblerFile) {
    struct Case {
        const char *File, *BGL, *Compiler;
    };
    for (const auto& [file, bgl, compiler] :
         {Case{R"(C:\Scenery\Skye-VTP.asm)", R"(C:\Scenery\Skye-VTP.BGL)",
               R"(C:\Scenery\BGLC.EXE)"},
          {"/home/me/Skye-VTP.asm", "/home/me/Skye-VTP.BGL", "/home/me/BGLC.EXE"},
          {"x.as", "xBGL", "BGLC.EXE"},
          {"s", "BGL", "BGLC.EXE"}}) {
        EXPECT_EQ(BGL_name(file), bgl);
        EXPECT_EQ(Compiler_path(file), compiler);
    }
}

OutputPreferences Everything_set() {
    return {.RootText = "/out/Skye.asm",
            .FSname = "/fs/Scenery",
            .FScopy = true,
            .Check1 = true,
            .Check2 = false,
            .Check3 = true,
            .Check4 = true};
}

TEST(OutputPreferencesTest, ConfirmingStoresWhatIsShownNextTime) {
    Project project;
    EXPECT_EQ(Shown_preferences(project), OutputPreferences());
    const OutputPreferences preferences = Everything_set();
    Store_preferences(preferences, project);
    EXPECT_EQ(project.OutputRoot, "/out/Skye.asm");
    EXPECT_EQ(project.LWMFileName, "/out/Skye-LWM.asm");
    EXPECT_EQ(project.VTPFileName, "/out/Skye-VTP.asm");
    EXPECT_EQ(project.FSFolder, "/fs/Scenery");
    EXPECT_TRUE(project.CopyToFS && project.LWMNotepad && !project.LWMCompile);
    EXPECT_TRUE(project.VTPNotepad && project.VTPCompile);
    EXPECT_TRUE(project.PrefsSet && project.DataChanged);
    EXPECT_EQ(Shown_preferences(project), preferences);

    project.DataChanged = false;
    Store_preferences(preferences, project);
    EXPECT_TRUE(project.DataChanged) << "even when nothing was changed";
}

TEST(OutputPreferencesTest, OKRefusesWhatIsNoNameOrCannotBeSaved) {
    const std::string unusable =
        "This name cannot be used: it holds a line end or a NUL, or it is too long.";
    struct Case {
        std::string Root, Folder, Warning;
    };
    for (const auto& [root, folder, warning] :
         {Case{"/out/Skye.asm", "", ""},
          {"/out/Skye", "/fs", "Selected filename root is not valid"},
          {"", "/fs", "Selected filename root is not valid"},
          {"/out/Sk\nye.asm", "/fs", unusable},
          {"/out/Skye.asm", "/fs\r", unusable},
          {std::string("a\0.asm", 6), "/fs", unusable},
          {std::string(32764, 'a') + ".", "/fs", unusable}}) {
        OutputPreferences preferences = Everything_set();
        preferences.RootText = root;
        preferences.FSname = folder;
        RecordingMessages messages;
        EXPECT_EQ(Check_preferences(preferences, messages), warning.empty()) << root;
        if (warning.empty()) {
            EXPECT_TRUE(messages.Shown.empty());
        } else {
            EXPECT_EQ(
                messages.Shown,
                std::vector({Message{warning, "Tidemark - Warning", MessageIcon::Exclamation}}));
        }
    }
}

TEST(OutputPreferencesTest, BrowsingGivesTheFileOrItsFolder) {
    FakePlatform fake;
    FileChooser root = BrowseDialog();
    FileChooser folder = FSBrowseDialog();
    fake.choosers.Answers = {"/out/Skye.asm", R"(C:\FS2002\Scenery\any.BGL)", std::nullopt,
                             "/out/Sk\nye.asm"};
    EXPECT_EQ(Browse_root(root, fake.platform), "/out/Skye.asm");
    EXPECT_EQ(Browse_folder(folder, fake.platform), R"(C:\FS2002\Scenery\)");
    EXPECT_EQ(Browse_folder(folder, fake.platform), std::nullopt) << "cancelled";
    EXPECT_EQ(Browse_root(root, fake.platform), std::nullopt) << "refused";
    EXPECT_EQ(fake.messages.Shown.size(), 1U);

    const auto& shown = fake.choosers.Shown;
    EXPECT_EQ(shown[0].Title, "Gridsmith - Save As");
    EXPECT_EQ(shown[0].FileName + shown[0].Filter + shown[0].DefaultExtension, "*.asm*.asmasm");
    EXPECT_EQ(shown[0].InitialFolder, "/start");
    EXPECT_EQ(shown[1].Title, "Gridsmith - Set FS folder");
    EXPECT_EQ(shown[1].FileName + shown[1].Filter, "*.BGL*.BGL");
    EXPECT_EQ(shown[2].FileName, R"(C:\FS2002\Scenery\any.BGL)") << "the last choice";
}

}  // namespace
}  // namespace tidemark
