// Open, Save, Save As and Exit over files in memory.
#include "app/project_commands.h"

#include "fakes/rules_test.h"

namespace tidemark {

TEST(ProjectCommandsTest, AProjectIsSavedUnderAGoodNameOverAnotherOnlyAfterYes) {
    const std::string unsavable =
        " cannot be saved: it holds a line end or a NUL, or it is too long.";
    const Message saved{"/c.tdm saved successfully", "Tidemark - Saved OK",
                        MessageIcon::Information, MessageButtons::OK};
    const Message question{"/c.tdm - file exists - overwrite?", "Tidemark - File Exists",
                           MessageIcon::Exclamation, MessageButtons::YesNo};
    FakePlatform fake;
    fake.choosers.Answers = {std::nullopt, "two\nlines.tdm", "/c.tdm"};
    fake.messages.Answers = {MessageAnswer::No, MessageAnswer::Yes, MessageAnswer::Yes};
    Session session;
    Document document(session);
    const Project& p = document.Now();
    const auto set = [&](auto Project::*value, auto to) {
        document.Do("change", [&](Project& project) { project.*value = to; });
    };
    const auto save = [&](bool is_saved) {
        session.DataChanged = true;
        EXPECT_EQ(Save_project(document, session, fake.platform), is_saved);
        EXPECT_EQ(session.DataChanged, !is_saved);
        return std::exchange(fake.messages.Shown, {});
    };
    EXPECT_TRUE(save(false).empty()) << "the chooser is cancelled";
    EXPECT_EQ(save(false).at(0).Text, "ProjectFile" + unsavable);
    EXPECT_EQ(p.ProjectFile, "");
    EXPECT_EQ(save(true), std::vector{saved});
    EXPECT_EQ(fake.files.Content["/c.tdm"], Project_bytes(p, "now"));
    set(&Project::BGLOD8X, 5);
    EXPECT_EQ(save(false), std::vector{question});
    EXPECT_NE(fake.files.Content["/c.tdm"], Project_bytes(p, "now"));
    EXPECT_EQ(save(true), (std::vector{question, saved}));
    EXPECT_EQ(fake.files.Content["/c.tdm"], Project_bytes(p, "now"));
    fake.files.WriteError = "No space left on device";
    EXPECT_EQ(save(false).at(1).Text, "/c.tdm could not be saved: No space left on device");
    set(&Project::FSFolder, "a\nb");
    EXPECT_EQ(save(false).at(0).Text, "FSFolder" + unsavable);
    const FileChooser& chooser = fake.choosers.Shown.at(0);
    EXPECT_EQ(chooser.Title + chooser.Filter + chooser.InitialFolder,
              "Tidemark - Save Project As*.TDM/start");
}

TEST(ProjectCommandsTest, AFileReplacesTheProjectUnlessItIsRefusedOrGone) {
    const Project saved = Project_of_all_values();
    FakePlatform fake;
    fake.files.Content = {{"/moved/c.tdm", Project_bytes(saved, "then")},
                          {"/maps/bad.tdm", "x saved on y\n1\n70000\n"},
                          {"/maps/huge.tdm", std::string(MaxProjectFileSize + 1, '7')},
                          {"/maps/none.tdm", "PK\3\4\nno lines of a project"},
                          {"/maps/short.tdm", "x saved on y\n1\n"}};
    Session session;
    Document document(session);
    const Project& p = document.Now();
    const auto open = [&](const std::string& path, bool is_opened) {
        session.DataChanged = true;
        const std::string status =
            Open_project(path, document, session, fake.platform, [](auto&&) { return true; });
        EXPECT_EQ(session.Opened.Path == path, is_opened) << path;
        EXPECT_EQ(session.DataChanged, !is_opened) << path;
        return status + fake.messages.Said();
    };
    EXPECT_EQ(open("/moved/c.tdm", true),
              "Save Project writes to /home/me/coast 1.tdm; Save VTP data starts BGLC.EXE; "
              "Save LWM data starts C:\\Scenery\\BGLC.EXE");
    EXPECT_EQ(open("/maps/bad.tdm", false),
              "bad.tdm, line 3: AreaTopVTP does not fit -32768..32767: 70000");
    EXPECT_EQ(open("/maps/huge.tdm", false), "huge.tdm: File too large");
    EXPECT_EQ(open("/maps/none.tdm", false), "none.tdm: this is no Tidemark project");
    EXPECT_TRUE(p == saved) << "the stored path, too";
    EXPECT_EQ(open("/maps/gone.tdm", false), "/maps/gone.tdm not found!");
    EXPECT_EQ(p.ProjectFile, "/maps/gone.tdm");
    EXPECT_EQ(open("/maps/short.tdm", true),
              "short.tdm, line 3: the file ends early; the values that are missing are 0, off or "
              "empty");
}

// Given: the path that is opened and the one that it stores. Made: what is said on opening, and
// where Save then writes, after its questions.
TEST(ProjectCommandsTest, SaveWritesWhereTheStoredPathSaysAndSaysSo) {
    Expect_cases("app/data/save-paths.txt", [](const Given& given) {
        FakePlatform fake;
        Project stored;
        stored.ProjectFile = given[1];
        const std::string bytes = Project_bytes(stored, "then");
        fake.files.Content = {{given[0], bytes}};
        fake.messages.Answers = {MessageAnswer::Yes, MessageAnswer::Yes};
        Session session;
        Document document(session);
        std::string made = Open_project(given[0], document, session, fake.platform, nullptr);
        EXPECT_TRUE(Save_project(document, session, fake.platform));
        const auto& questions = fake.messages.Shown;
        if (questions[0].Title == "Tidemark - Save Warning") made += " asked,";
        for (const auto& [path, content] : fake.files.Content)
            if (content != bytes) made += " " + path;
        return made.substr(made.find_first_not_of(' '));
    });
}

TEST(ProjectCommandsTest, ANameThatIsNoProjectsIsWrittenOnlyAfterYesAndAFailureCountsAsUnsaved) {
    FakePlatform fake;
    Project stored;
    stored.ProjectFile = "/home/me/.profile";
    fake.files.Content = {{"/home/me/bay.TDM", Project_bytes(stored, "then")},
                          {"/home/me/.profile", "mine"}};
    Session session;
    Document document(session);
    Open_project("/home/me/bay.TDM", document, session, fake.platform, nullptr);
    EXPECT_FALSE(Save_project(document, session, fake.platform));
    EXPECT_EQ(fake.files.Content["/home/me/.profile"], "mine");
    fake.choosers.Answers = {"/home/me/odd.name"};
    fake.messages.Shown.clear();
    EXPECT_TRUE(Choose_project_to_save(document, session, fake.platform));
    EXPECT_TRUE(Save_project(document, session, fake.platform)) << "the user chose it";
    fake.files.WriteError = "full";
    fake.messages.Answers = {MessageAnswer::Yes};
    EXPECT_FALSE(Save_project(document, session, fake.platform));
    EXPECT_TRUE(session.DataChanged);
}

TEST(ProjectCommandsTest, OnlyUnsavedChangesAreAskedAboutAtTheExit) {
    RecordingMessages messages;
    messages.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    Session p;
    EXPECT_TRUE(May_exit(p, messages));
    p.DataChanged = true;
    EXPECT_FALSE(May_exit(p, messages));
    EXPECT_EQ(messages.Said(),
              "Tidemark - Exit Warning: Data has not been saved - do you wish to exit?");
    EXPECT_TRUE(May_exit(p, messages));
}

}  // namespace tidemark
