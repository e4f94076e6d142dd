// Open, Save and Save As over files in memory.
#include "app/project_commands.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "fakes/sample_projects.h"
#include "model/project_file.h"

namespace tidemark {
namespace {

using Texts = std::vector<std::string>;

Project Changed_project(const std::string& path) {
    Project p;
    p.ProjectFile = path;
    p.DataChanged = true;
    return p;
}

TEST(SaveProjectTest, AnUnnamedProjectIsSavedUnderTheChosenName) {
    FakePlatform fake;
    fake.choosers.Answers = {std::nullopt, "two\nlines.tdm", "/maps/coast1.tdm"};
    Project p = Changed_project("");
    EXPECT_FALSE(Save_project(p, fake.platform)) << "cancelled";
    EXPECT_FALSE(Choose_project_to_save(p, fake.platform)) << "refused";
    EXPECT_TRUE(p.ProjectFile.empty() && p.DataChanged && fake.messages.Shown.size() == 1);
    EXPECT_TRUE(Save_project(p, fake.platform));
    EXPECT_EQ(p.ProjectFile, "/maps/coast1.tdm");
    EXPECT_FALSE(p.DataChanged);
    EXPECT_EQ(fake.files.Content["/maps/coast1.tdm"], Project_bytes(p, "now"));
    EXPECT_EQ(fake.messages.Shown.back(),
              (Message{"/maps/coast1.tdm saved successfully", "Tidemark - Saved OK",
                       MessageIcon::Information, MessageButtons::OK}));
    EXPECT_EQ(fake.choosers.Shown[0].Title, "Tidemark - Save Project As");
    EXPECT_EQ(fake.choosers.Shown[0].Filter + fake.choosers.Shown[0].InitialFolder, "*.TDM/start");
}

TEST(SaveProjectTest, AnExistingFileIsReplacedOnlyAfterYes) {
    FakePlatform fake;
    fake.messages.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    fake.files.Content["c.tdm"] = "old";
    Project p = Changed_project("c.tdm");
    EXPECT_FALSE(Save_project(p, fake.platform));
    EXPECT_TRUE(p.DataChanged && fake.files.Content["c.tdm"] == "old");
    EXPECT_EQ(fake.messages.Shown[0],
              (Message{"c.tdm - file exists - overwrite?", "Tidemark - File Exists",
                       MessageIcon::Exclamation, MessageButtons::YesNo}));
    EXPECT_TRUE(Save_project(p, fake.platform));
    EXPECT_TRUE(!p.DataChanged && fake.files.Content["c.tdm"] != "old");
}

TEST(SaveProjectTest, WhatCannotBeSavedIsToldAndStaysUnsaved) {
    FakePlatform fake;
    fake.files.WriteError = "No space left on device";
    Project p = Changed_project("c.tdm");
    EXPECT_FALSE(Save_project(p, fake.platform));
    fake.files.WriteError = "";
    p.FSFolder = "a\nb";
    EXPECT_FALSE(Save_project(p, fake.platform));
    EXPECT_EQ(
        fake.messages.Texts(),
        (Texts{"c.tdm could not be saved: No space left on device",
               "FSFolder cannot be saved: it holds a line end or a NUL, or it is too long."}));
    EXPECT_TRUE(p.DataChanged && fake.files.Content.empty());
}

TEST(OpenProjectTest, AFileReplacesTheProjectUnlessItIsRefusedOrGone) {
    const Project saved = Project_of_all_values();
    FakePlatform fake;
    fake.files.Content = {{"/moved/c.tdm", Project_bytes(saved, "then")},
                          {"/maps/bad.tdm", "x saved on y\n1\n70000\n"},
                          {"/maps/huge.tdm", std::string(MaxProjectFileSize + 1, '7')},
                          {"/maps/short.tdm", "x saved on y\n1\n"}};
    Project p;
    const auto open = [&](const char* path, bool opened) {
        const OpenResult result = Open_project(path, p, fake.platform);
        EXPECT_EQ(result.Opened, opened) << path;
        return result.Status;
    };
    EXPECT_EQ(open("/moved/c.tdm", true), "");
    EXPECT_EQ(open("/maps/bad.tdm", false),
              "bad.tdm, line 3: AreaTopVTP does not fit -32768..32767: 70000");
    EXPECT_EQ(open("/maps/huge.tdm", false), "huge.tdm, line 1: File too large");
    EXPECT_TRUE(p == saved) << "the stored path, too";
    EXPECT_TRUE(fake.messages.Shown.empty());
    EXPECT_EQ(open("/maps/gone.tdm", false), "");
    EXPECT_EQ(fake.messages.Texts(), Texts{"/maps/gone.tdm not found!"});
    EXPECT_EQ(p.ProjectFile, "/maps/gone.tdm");
    EXPECT_EQ(open("/maps/short.tdm", true),
              "short.tdm, line 3: the file ends early; the values that are missing are 0, off or "
              "empty");
}

TEST(ExitTest, OnlyUnsavedChangesAreAskedAbout) {
    RecordingMessages messages;
    messages.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    EXPECT_TRUE(May_exit(Project(), messages));
    EXPECT_FALSE(May_exit(Changed_project(""), messages));
    EXPECT_TRUE(May_exit(Changed_project(""), messages));
    const Message question{"Data has not been saved - do you wish to exit?",
                           "Tidemark - Exit Warning", MessageIcon::Exclamation,
                           MessageButtons::YesNo};
    EXPECT_EQ(messages.Shown, std::vector<Message>(2, question));
}

}  // namespace
}  // namespace tidemark
