// Open, Save and Save As over files in memory.
#include "app/project_commands.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "fakes/sample_projects.h"
#include "model/project_file.h"

namespace tidemark {
namespace {

using Texts = std::vector<std::string>;

TEST(SaveProjectTest, AnUnnamedProjectIsSavedUnderTheChosenName) {
    FakePlatform fake;
    fake.choosers.Answers = {"/maps/coast1.tdm"};
    Project p;
    p.DataChanged = true;
    EXPECT_TRUE(Save_project(p, fake.platform));
    EXPECT_EQ(p.ProjectFile, "/maps/coast1.tdm");
    EXPECT_FALSE(p.DataChanged);
    EXPECT_EQ(fake.files.Content["/maps/coast1.tdm"], Project_bytes(p, "now"));
    EXPECT_EQ(fake.messages.Shown,
              std::vector<Message>({{"/maps/coast1.tdm saved successfully", "Tidemark - Saved OK",
                                     MessageIcon::Information, MessageButtons::OK}}));
    const FileChooser& shown = fake.choosers.Shown.at(0);
    EXPECT_EQ(shown.Title, "Tidemark - Save Project As");
    EXPECT_EQ(shown.Filter + " " + shown.DefaultExtension, "*.TDM TDM");
    EXPECT_EQ(shown.InitialFolder, "/start");
}

TEST(SaveProjectTest, AnExistingFileIsReplacedOnlyAfterYes) {
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
        FakePlatform fake;
        fake.messages.Answers = {answer};
        fake.files.Content["c.tdm"] = "old";
        Project p;
        p.ProjectFile = "c.tdm";
        p.DataChanged = true;
        EXPECT_EQ(Save_project(p, fake.platform), answer == MessageAnswer::Yes);
        EXPECT_EQ(p.DataChanged, answer == MessageAnswer::No);
        EXPECT_EQ(fake.files.Content["c.tdm"] == "old", answer == MessageAnswer::No);
        EXPECT_EQ(fake.messages.Shown[0],
                  (Message{"c.tdm - file exists - overwrite?", "Tidemark - File Exists",
                           MessageIcon::Exclamation, MessageButtons::YesNo}));
    }
}

TEST(SaveProjectTest, WhatCannotBeSavedIsToldAndStaysUnsaved) {
    struct Case {
        std::string Folder, WriteError, Text;
    };
    for (const auto& [folder, error, text] :
         {Case{"", "No space left on device", "c.tdm could not be saved: No space left on device"},
          Case{"a\nb", "",
               "FSFolder cannot be saved: it holds a line end or a NUL, or it is too "
               "long."}}) {
        FakePlatform fake;
        fake.files.WriteError = error;
        Project p;
        p.ProjectFile = "c.tdm";
        p.FSFolder = folder;
        p.DataChanged = true;
        EXPECT_FALSE(Save_project(p, fake.platform));
        EXPECT_TRUE(p.DataChanged);
        EXPECT_EQ(fake.messages.Texts(), Texts{text});
        EXPECT_TRUE(fake.files.Content.empty());
    }
}

TEST(SaveProjectTest, ACancelledOrUnusableChoiceChangesNothing) {
    FakePlatform fake;
    fake.choosers.Answers = {std::nullopt, "two\nlines.tdm"};
    Project p;
    EXPECT_FALSE(Save_project(p, fake.platform));
    EXPECT_FALSE(Choose_project_to_save(p, fake.platform));
    EXPECT_EQ(p.ProjectFile, "");
    EXPECT_EQ(fake.messages.Texts().size(), 1U);
}

TEST(OpenProjectTest, TheStoredPathReplacesTheChosenOne) {
    FakePlatform fake;
    const Project saved = Project_of_all_values();
    fake.files.Content["/moved/c.tdm"] = Project_bytes(saved, "then");
    Project p;
    p.DataChanged = true;
    const OpenResult result = Open_project("/moved/c.tdm", p, fake.platform);
    EXPECT_TRUE(result.Opened);
    EXPECT_EQ(result.Status, "");
    EXPECT_TRUE(p == saved);
    EXPECT_TRUE(fake.messages.Shown.empty());
}

TEST(OpenProjectTest, ARefusedFileLeavesTheProjectAndNamesThePlace) {
    FakePlatform fake;
    fake.files.Content["/maps/bad.tdm"] = "x saved on y\n1\n70000\n";
    fake.files.Content["/maps/short.tdm"] = "x saved on y\n1\n";
    fake.files.Content["/maps/huge.tdm"] = std::string(MaxProjectFileSize + 1, '7');
    const Project before = Project_of_all_values();
    Project p = before;
    OpenResult result = Open_project("/maps/bad.tdm", p, fake.platform);
    EXPECT_FALSE(result.Opened);
    EXPECT_EQ(result.Status, "bad.tdm, line 3: AreaTopVTP does not fit -32768..32767: 70000");
    result = Open_project("/maps/huge.tdm", p, fake.platform);
    EXPECT_FALSE(result.Opened);
    EXPECT_EQ(result.Status, "huge.tdm, line 1: File too large");
    EXPECT_TRUE(p == before);
    EXPECT_TRUE(fake.messages.Shown.empty());

    Open_project("/maps/gone.tdm", p, fake.platform);
    EXPECT_EQ(fake.messages.Texts(), Texts{"/maps/gone.tdm not found!"});
    EXPECT_EQ(p.ProjectFile, "/maps/gone.tdm");

    result = Open_project("/maps/short.tdm", p, fake.platform);
    EXPECT_TRUE(result.Opened);
    EXPECT_EQ(result.Status,
              "short.tdm, line 3: the file ends early; the values that are missing "
              "are 0, off or empty");
}

TEST(ExitTest, OnlyUnsavedChangesAreAskedAbout) {
    RecordingMessages messages;
    messages.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    Project p;
    EXPECT_TRUE(May_exit(p, messages));
    p.DataChanged = true;
    EXPECT_FALSE(May_exit(p, messages));
    EXPECT_TRUE(May_exit(p, messages));
    EXPECT_EQ(messages.Shown,
              std::vector<Message>(
                  2, {"Data has not been saved - do you wish to exit?", "Tidemark - Exit Warning",
                      MessageIcon::Exclamation, MessageButtons::YesNo}));
}

}  // namespace
}  // namespace tidemark
