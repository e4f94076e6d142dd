// The sequence after saving, step by step, with files and programs that are only written down.
#include "output/after_save.h"

#include <gtest/gtest.h>

#include "fakes/memory_files.h"
#include "fakes/recording_messages.h"
#include "fakes/recording_programs.h"
#include "fakes/sample_projects.h"

namespace tidemark {
namespace {

const std::string notepad_problem = "There was a problem opening the external program Notepad!";
const std::string compiler_problem =
    "There was a problem opening the external program BGLC.EXE.\n"
    "Please ensure that Flight Simulator 2002 is not currently running, and try saving the file "
    "again.";
const std::string compiler_missing =
    "/s/BGLC.EXE was not found!\n"
    "You need to have BGLC.EXE and the associated include files in the\n"
    "same folder as your Tidemark assembler files.";

class AfterSaveTest : public testing::Test {
  protected:
    AfterSaveTest() {
        files_.Content = {{"/s/BGLC.EXE", ""}, {"/s/Skye-VTP.asm", "text"}, {"/fs/", ""}};
    }

    std::vector<std::string> Run() {
        messages_.Shown.clear();
        After_save(task_, messages_, files_, programs_, patience_);
        return messages_.Texts();
    }

    using Texts = std::vector<std::string>;

    AfterSaveTask task_{.File = "/s/Skye-VTP.asm", .CopyToFS = false, .FSFolder = "/fs/"};
    RecordingMessages messages_;
    MemoryFiles files_;
    RecordingPrograms programs_;
    FakePatience patience_;
};

TEST_F(AfterSaveTest, TheTasksAreThoseOfTheProject) {
    Project project = Project_of_all_values();
    project.LWMNotepad = true;
    const AfterSaveTask lwm = LWM_after_save(project);
    const AfterSaveTask vtp = VTP_after_save(project);
    EXPECT_EQ(lwm.File + vtp.File + lwm.FSFolder + vtp.FSFolder,
              project.LWMFileName + project.VTPFileName + project.FSFolder + project.FSFolder);
    EXPECT_TRUE(lwm.Notepad && lwm.Compile && lwm.CopyToFS);
    EXPECT_TRUE(!vtp.Notepad && vtp.Compile && vtp.CopyToFS);
}

TEST_F(AfterSaveTest, NothingToDoStillAsksForTheCompiler) {
    EXPECT_EQ(Run(), Texts());
    files_.Content.erase("/s/BGLC.EXE");
    EXPECT_EQ(Run(), Texts{compiler_missing});
    EXPECT_TRUE(programs_.Shown.empty() && programs_.Started.empty());
}

TEST_F(AfterSaveTest, ShowsThenCompilesThenCopies) {
    task_.Notepad = task_.Compile = task_.CopyToFS = true;
    files_.Content["/s/Skye-VTP.BGL"] = "old";
    patience_.Meanwhile = [&](int waited) {
        EXPECT_EQ(patience_.WhatFor, "Waiting for BGLC.EXE to compile Skye-VTP.asm");
        EXPECT_FALSE(waited == 100 && files_.Exists("/s/Skye-VTP.BGL")) << "the old one is gone";
        if (waited == 1000) files_.Content["/s/Skye-VTP.BGL"] = "half";
        if (waited == 5000) files_.Content["/s/Skye-VTP.BGL"] = "the whole";
        programs_.Ended = waited >= 5000;
    };
    EXPECT_EQ(Run(), Texts{"Skye-VTP.BGL successfully copied to /fs/"});
    EXPECT_EQ(messages_.Shown[0].Title, "Tidemark - File OK");
    EXPECT_EQ(messages_.Shown[0].Icon, MessageIcon::Information);
    EXPECT_EQ(programs_.Shown, Texts{"/s/Skye-VTP.asm"});
    EXPECT_EQ(programs_.Started, std::vector({Command{"/s/BGLC.EXE", {"/s/Skye-VTP.asm"}, "/s/"}}));
    EXPECT_EQ(files_.Content["/fs/Skye-VTP.BGL"], "the whole");
}

TEST_F(AfterSaveTest, WithoutCompilingTheFileOfAnEarlierRunIsCopiedAtOnce) {
    task_.CopyToFS = true;
    EXPECT_EQ(Run(), Texts{"Skye-VTP.BGL not found!"});
    files_.Content["/s/Skye-VTP.BGL"] = "earlier";
    EXPECT_EQ(Run(), Texts{"Skye-VTP.BGL successfully copied to /fs/"});
    EXPECT_EQ(files_.Content["/fs/Skye-VTP.BGL"], "earlier");
    EXPECT_EQ(patience_.Waited, 0);
    EXPECT_TRUE(programs_.Started.empty());
}

TEST_F(AfterSaveTest, EachFailureEndsTheSequence) {
    struct Case {
        const char* What;
        std::function<void()> Break;
        std::string Warning;
        std::size_t Started;
        bool OldFileStays;
    };
    const auto files_before = files_.Content;
    for (const auto& [what, break_it, warning, started, old_file_stays] : {
             Case{"no opener", [&] { programs_.CanShow = false; }, notepad_problem, 0, true},
             {"old file cannot be deleted", [&] { files_.Undeletable = {"/s/Skye-VTP.BGL"}; },
              compiler_problem, 0, true},
             {"no compiler", [&] { files_.Content.erase("/s/BGLC.EXE"); }, compiler_missing, 0,
              false},
             {"compiler cannot start", [&] { programs_.CanStart = false; }, compiler_problem, 1,
              false},
             {"compiler cannot start here",
              [&] {
                  programs_.CanStart = false;
                  programs_.Advice = "Please install wine";
              },
              "Please install wine", 1, false},
             {"compiler never writes", [] {}, "Skye-VTP.BGL not found!", 1, false},
         }) {
        files_.Content = files_before;
        files_.Content["/s/Skye-VTP.BGL"] = "old";
        files_.Undeletable.clear();
        programs_ = RecordingPrograms();
        task_.Notepad = task_.Compile = task_.CopyToFS = true;
        break_it();
        EXPECT_EQ(Run(), Texts{warning}) << what;
        EXPECT_EQ(messages_.Shown[0].Title, "Tidemark - Warning") << what;
        EXPECT_EQ(programs_.Started.size(), started) << what;
        EXPECT_EQ(files_.Exists("/s/Skye-VTP.BGL"), old_file_stays) << what;
        EXPECT_TRUE(files_.Exists("/s/Skye-VTP.asm")) << what;
    }
}

TEST_F(AfterSaveTest, TheDestinationNeedsNoLastSeparatorAndKeepsItsFilesCase) {
    task_.CopyToFS = true;
    files_.Content["/s/Skye-VTP.BGL"] = "new";
    files_.Content["/fs/skye-vtp.bgl"] = "old";
    for (const char* folder : {"/fs", "/fs/", "/fs\\"}) {
        task_.FSFolder = folder;
        EXPECT_EQ(Run(), Texts{std::string("Skye-VTP.BGL successfully copied to ") + folder});
        EXPECT_EQ(std::exchange(files_.Content["/fs/skye-vtp.bgl"], "old"), "new");
    }
    EXPECT_FALSE(files_.Exists("/fs/Skye-VTP.BGL"));
}

TEST_F(AfterSaveTest, AnAssemblerFileNamedLikeTheCompiledOneIsNeverDeleted) {
    task_.Compile = true;
    for (const char* file : {"/s/Skye-VTP.bgl", "/s/Skye-VTP.BGL"}) {
        task_.File = file;
        files_.Content[file] = "text";
        EXPECT_EQ(Run(), Texts()) << file;
        EXPECT_TRUE(files_.Exists(file)) << file;
        files_.Content.erase(file);
    }
}

// Times in seconds; a negative one is never.
TEST_F(AfterSaveTest, TheWaitEndsWhenTheFileIsCompleteOrNotToBeExpected) {
    struct Case {
        const char* What;
        double Ends;
        std::vector<double> Writes;  // each makes the file longer
        std::size_t Copied;          // its length when it is copied, 0 when it is given up
        double Longest;              // for the whole wait
    };
    for (const auto& [what, ends, writes, copied, longest] :
         {Case{"ten seconds, all at the end", 10, {9.9}, 1, 11},
          {"writes for half a minute in pieces", 31, {1, 10, 20, 30}, 4, 32},
          {"writes, then stays", -1, {2, 3}, 2, 20},
          {"starts another program and ends", 0.1, {1, 1.2, 1.4}, 3, 2},
          {"ends without writing", 5, {}, 0, 9},
          {"never writes and never ends", -1, {}, 0, 61}}) {
        task_.Compile = task_.CopyToFS = true;
        files_.Content.erase("/s/Skye-VTP.BGL");
        files_.Content.erase("/fs/Skye-VTP.BGL");
        programs_.Ended = false;
        patience_ = FakePatience();
        std::size_t written = 0;
        patience_.Meanwhile = [&](int waited) {
            while (written < writes.size() && waited >= 1000 * writes[written])
                files_.Content["/s/Skye-VTP.BGL"] = std::string(++written, 'x');
            programs_.Ended = ends >= 0 && waited >= 1000 * ends;
        };
        EXPECT_EQ(Run(), Texts{copied > 0 ? "Skye-VTP.BGL successfully copied to /fs/"
                                          : "Skye-VTP.BGL not found!"})
            << what;
        EXPECT_EQ(files_.Content["/fs/Skye-VTP.BGL"].size(), copied) << what;
        EXPECT_LE(patience_.Waited, 1000 * longest) << what;
    }
}

}  // namespace
}  // namespace tidemark
