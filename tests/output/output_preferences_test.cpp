// The output names and the Output Preferences dialog's rules.
#include "output/output_preferences.h"

#include "fakes/rules_test.h"
#include "output/help.h"
#include "output/output_names.h"

namespace tidemark {

const std::string unusable =
    "This name cannot be used: it holds a line end or a NUL, or it is too long.";

TEST(OutputNamesTest, AreMadeOfTheRootAndOfTheAssemblerFile) {
    const std::map<std::string, std::string (*)(const std::string&)> names{
        {"LWM label", [](auto& root) { return Output_label(LWMOutput, root); }},
        {"VTP label", [](auto& root) { return Output_label(VTPOutput, root); }},
        {"compiled file", [](auto& file) { return BGL_name(file); }},
        {"compiler", [](auto& file) { return Compiler_path(file); }},
        {"address", [](auto& path) { return File_address(path); }}};
    Expect_cases("output/data/names.txt",
                 [&](const Given& given) { return names.at(given[0])(given[1]); });
}

TEST(OutputPreferencesTest, ConfirmingStoresWhatIsShownNextTime) {
    using Preferences = OutputPreferences;
    for (bool Preferences::*flag :
         {&Preferences::FScopy, &Preferences::LWMNotepad, &Preferences::LWMCompile,
          &Preferences::VTPNotepad, &Preferences::VTPCompile}) {
        Session session;
        Document document(session);
        Preferences preferences{.RootText = "/out/Skye.asm", .FSname = "/fs"};
        preferences.*flag = true;
        Confirm_preferences(document, session, preferences);
        const Project& project = document.Now();
        EXPECT_EQ(project.LWMFileName + project.VTPFileName, "/out/Skye-LWM.asm/out/Skye-VTP.asm");
        EXPECT_EQ(project.LWMNotepad, flag == &Preferences::LWMNotepad);
        EXPECT_EQ(project.VTPCompile, flag == &Preferences::VTPCompile);
        EXPECT_TRUE(project.PrefsSet && session.DataChanged);
        EXPECT_TRUE(session.Panel.LWMsave && session.Panel.VTPsave);
        EXPECT_EQ(Shown_preferences(project), preferences);
    }
}

TEST(OutputPreferencesTest, OKRefusesWhatIsNoNameOrCannotBeSaved) {
    RecordingMessages messages;
    const auto said = [&](const std::string& root, const std::string& folder) {
        const bool is_good = Check_preferences({.RootText = root, .FSname = folder}, messages);
        EXPECT_EQ(is_good, messages.Shown.empty());
        return messages.Said();
    };
    EXPECT_EQ(said("/out/Skye.asm", ""), "");
    EXPECT_EQ(said("/out/Skye", "/fs"), "Selected filename root is not valid");
    for (const std::string& root :
         {std::string("/out/Sk\nye.asm"), std::string("a\0.asm", 6), std::string(32764, 'a') + "."})
        EXPECT_EQ(said(root, "/fs"), unusable);
    EXPECT_EQ(said("/out/Skye.asm", "/fs\r"), unusable);
}

TEST(OutputPreferencesTest, BrowsingGivesTheFileOrItsFolder) {
    FakePlatform fake;
    FileChooser root = BrowseDialog(), folder = FSBrowseDialog();
    fake.choosers.Answers = {"/out/Skye.asm", R"(C:\Scenery\any.BGL)", std::nullopt, "/Sk\nye.asm"};
    EXPECT_EQ(Browse_root(root, fake.platform), "/out/Skye.asm");
    EXPECT_EQ(Browse_folder(folder, fake.platform), R"(C:\Scenery\)");
    EXPECT_EQ(Browse_folder(folder, fake.platform), std::nullopt) << "cancelled";
    EXPECT_EQ(Browse_root(root, fake.platform), std::nullopt) << "refused";
    EXPECT_EQ(fake.messages.Said(), unusable);
    const auto& shown = fake.choosers.Shown;
    EXPECT_EQ(shown[0].Title + shown[0].FileName, "Gridsmith - Save As*.asm");
    EXPECT_EQ(shown[1].Title + shown[1].FileName, "Gridsmith - Set FS folder*.BGL");
    EXPECT_EQ(shown[2].InitialFolder + shown[2].FileName, R"(/startC:\Scenery\any.BGL)");
}

}  // namespace tidemark
