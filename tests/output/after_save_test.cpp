// The sequence after saving, step by step, with files and programs that are only written down.
#include "output/after_save.h"

#include "fakes/rules_test.h"

namespace tidemark {

const std::string bgl = "/s/Skye-VTP.BGL", copied = "/fs/Skye-VTP.BGL";

// Everything is to be done, and the compiled file of an earlier run is there.
struct Sequence : FakePlatform {
    Sequence() {
        files.Content = {{"/s/BGLC.EXE", ""}, {task.File, ""}, {"/fs/", ""}, {bgl, "old"}};
        patience.Meanwhile = [this] { Compile_on(); };
    }

    void Compile_on() {
        for (; !writes.empty() && patience.Waited >= 1000 * writes.front(); writes.pop_front())
            files.Content[bgl] += 'x';
        if (patience.Waited >= 1000 * ends) programs.End = end;
    }

    // Something that happens, with its times in seconds.
    void Take(const std::string& event) {
        std::istringstream words(event);
        std::string word;
        double time = 0;
        if (event == "no opener") programs.CanShow = false;
        if (event == "undeletable") files.Undeletable = {bgl};
        if (event == "no compiler") files.Content.erase("/s/BGLC.EXE");
        if (event == "unstartable") programs.CanStart = false;
        if (event == "no wine") {
            programs.CanStart = false;
            programs.Advice = "Please install wine";
        }
        if (event == "no folder") task.FSFolder = "";
        if (event == "unknown folder") task.FSFolder = "/no";
        if (event == "backslash") task.FSFolder = "/fs\\";
        if (event == "full disk") files.WriteError = "No space left on device";
        for (words >> word; words >> time;)
            if (word == "writes") writes.push_back(time);
        if (word == "ends" || word == "fails" || word == "killed") ends = time;
        if (word == "fails") end.Status = 2;
        if (word == "killed") end.Signal = 9;
        if (word == "cancelled") patience.CancelledAfter = static_cast<int>(1000 * time);
    }

    // What came of it all.
    std::string Outcome() {
        const std::string said = messages.Said();
        std::ostringstream outcome;
        outcome << said << patience.Outcome
                << (said.empty() && patience.Outcome.empty() ? "[" : " [") << programs.Shown.size()
                << " shown, " << programs.Started.size() << " started, "
                << files.Content[bgl].size() << " compiled, " << files.Content[copied].size()
                << " copied, " << (patience.Waited + 999) / 1000 << " s]";
        return outcome.str();
    }

    void Run() { After_save(task, platform); }

    AfterSaveTask task{"/s/Skye-VTP.asm", true, true, true, "/fs/"};
    std::deque<double> writes;  // when the compiled file grows by a byte
    double ends = 1e9;          // when the compiler does
    ProgramEnd end;
};

TEST(AfterSaveTest, WhatIsAskedForIsDoneUntilAStepFails) {
    Expect_cases("output/data/after-save.txt", [](const Given& given) {
        Sequence sequence;
        sequence.task.Notepad = given[0].find("show") != std::string::npos;
        sequence.task.Compile = given[0].find("compile") != std::string::npos;
        sequence.task.CopyToFS = given[0].find("copy") != std::string::npos;
        for (const std::string& event : given) sequence.Take(event);
        sequence.Run();
        return sequence.Outcome();
    });
}

TEST(AfterSaveTest, TheRightFilesAreShownStartedAndReplaced) {
    Sequence sequence;
    sequence.files.Content["/fs/skye-vtp.bgl"] = "";
    sequence.Take("writes 1");
    sequence.Run();
    EXPECT_EQ(sequence.programs.Shown, Texts{"/s/Skye-VTP.asm"});
    EXPECT_EQ(sequence.programs.Started,
              std::vector({Command{"/s/BGLC.EXE", {"/s/Skye-VTP.asm"}, "/s/"}}));
    EXPECT_EQ(sequence.files.Content["/fs/skye-vtp.bgl"], "x") << "whatever its case";
    EXPECT_FALSE(sequence.files.Exists(copied));

    Sequence named_like_it;
    named_like_it.task = {.File = "/s/Coast.BGL", .Compile = true, .FSFolder = ""};
    named_like_it.files.Content["/s/Coast.BGL"] = "text";
    named_like_it.Run();
    EXPECT_TRUE(named_like_it.files.Exists("/s/Coast.BGL")) << "never deleted";
}

// With a real compiler, real folders and real time.
TEST(AfterSaveTest, ASlowCompilersFileIsCopiedWholeOverTheOldOneWhateverItsNamesAndTheirCase) {
    const Variable delay("STANDIN_DELAY", "1"), pieces("STANDIN_PIECES", "6");
    const Variable lower("STANDIN_LOWER_CASE", "1");
    const TemporaryFolder simulator;
    const WorkingFolder scenery;
    const std::string text = Source_file("tests/output/data/one-segment-VTP.asm");
    const std::string file = "-VTP a;$(b)'.asm", compiled = simulator / "-VTP a;$(b)'.BGL";
    std::filesystem::copy_file(STANDIN_COMPILER, "bglc.exe");
    Write_file(file, text);
    Write_file("-vtp A;$(B)'.bgl", "of an earlier run");
    Write_file(compiled, "of an earlier run");
    FakePlatform fake;
    DiskFiles files;
    fake.patience.Meanwhile = [] { std::this_thread::sleep_for(std::chrono::milliseconds(100)); };
    SystemPrograms programs(fake.patience);
    Platform platform{fake.messages, fake.choosers, files, fake.clock, programs, fake.patience, ""};
    const AfterSaveTask task{
        .File = file, .Compile = true, .CopyToFS = true, .FSFolder = simulator.Path()};
    After_save(task, platform);
    EXPECT_EQ(fake.messages.Said(),
              "Tidemark - File OK: -VTP a;$(b)'.BGL successfully copied to " + simulator.Path());
    EXPECT_EQ(File_content(compiled), "BGL begins\n" + text + "BGL ends");
}

TEST(AfterSaveTest, TheTasksAreThoseOfTheProject) {
    Project project = Project_of_all_values();
    project.LWMNotepad = true;
    project.VTPCompile = false;
    const AfterSaveTask lwm = LWM_after_save(project), vtp = VTP_after_save(project);
    EXPECT_EQ(lwm.File + lwm.FSFolder, project.LWMFileName + project.FSFolder);
    EXPECT_EQ(vtp.File + vtp.FSFolder, project.VTPFileName + project.FSFolder);
    EXPECT_TRUE(lwm.Notepad && lwm.Compile && lwm.CopyToFS);
    EXPECT_TRUE(!vtp.Notepad && !vtp.Compile && vtp.CopyToFS);
}

}  // namespace tidemark
