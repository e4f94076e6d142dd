// The sequence after saving, step by step, with files and programs that are only written down.
#include "output/after_save.h"

#include <gtest/gtest.h>

#include "fakes/fake_platform.h"
#include "fakes/sample_projects.h"

namespace tidemark {
namespace {

using Texts = std::vector<std::string>;

const std::string notepad_problem = "There was a problem opening the external program Notepad!";
const std::string compiler_problem =
    "There was a problem opening the external program BGLC.EXE.\n"
    "Please ensure that Flight Simulator 2002 is not currently running, and try saving the file "
    "again.";
const std::string compiler_missing =
    "/s/BGLC.EXE was not found!\n"
    "You need to have BGLC.EXE and the associated include files in the\n"
    "same folder as your Tidemark assembler files.";
const std::string copied = "Skye-VTP.BGL successfully copied to /fs/";
const std::string not_found = "Skye-VTP.BGL not found!";
const std::string advice = "Please install wine";
const std::string bgl = "/s/Skye-VTP.BGL";

// Everything is to be done, and the compiled file of an earlier run is there.
struct Sequence : FakePlatform {
    Sequence() {
        files.Content = {{"/s/BGLC.EXE", ""}, {task.File, ""}, {"/fs/", ""}, {bgl, "old"}};
    }

    Texts Run() {
        messages.Shown.clear();
        After_save(task, messages, files, programs, patience);
        return messages.Texts();
    }

    AfterSaveTask task{"/s/Skye-VTP.asm", true, true, true, "/fs/"};
    FakePatience patience;
};

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

TEST(AfterSaveTest, ShowsThenCompilesThenCopiesWhatIsAskedFor) {
    Sequence all;
    all.patience.Meanwhile = [&](int waited) {
        EXPECT_FALSE(waited == 100 && all.files.Exists(bgl)) << "the old one is gone";
        if (waited == 1000) all.files.Content[bgl] = "half";
        if (waited == 5000) all.files.Content[bgl] = "the whole";
        all.programs.Ended = waited >= 5000;
    };
    EXPECT_EQ(all.Run(), Texts{copied});
    EXPECT_EQ(all.messages.Shown[0].Title, "Tidemark - File OK");
    EXPECT_EQ(all.programs.Shown, Texts{"/s/Skye-VTP.asm"});
    EXPECT_EQ(all.programs.Started,
              std::vector({Command{"/s/BGLC.EXE", {"/s/Skye-VTP.asm"}, "/s/"}}));
    EXPECT_EQ(all.files.Content["/fs/Skye-VTP.BGL"], "the whole");

    Sequence copy;  // over the file of that name, whatever its case
    copy.files.Content["/fs/skye-vtp.bgl"] = "";
    copy.task = {copy.task.File, false, false, true, "/fs\\"};
    EXPECT_EQ(copy.Run(), Texts{"Skye-VTP.BGL successfully copied to /fs\\"});
    EXPECT_EQ(copy.files.Content["/fs/skye-vtp.bgl"], "old");
    EXPECT_EQ(copy.files.Content.size(), 5U);
    EXPECT_TRUE(copy.patience.Waited == 0 && copy.programs.Started.empty());

    Sequence named_like_it;
    named_like_it.task = {"/s/Coast.BGL", false, true, false, ""};
    named_like_it.files.Content["/s/Coast.BGL"] = "text";
    EXPECT_EQ(named_like_it.Run(), Texts());
    EXPECT_TRUE(named_like_it.files.Exists("/s/Coast.BGL")) << "never deleted";

    Sequence nothing;
    nothing.task = {nothing.task.File, false, false, false, ""};
    EXPECT_EQ(nothing.Run(), Texts());
    nothing.files.Content.erase("/s/BGLC.EXE");
    EXPECT_EQ(nothing.Run(), Texts{compiler_missing});
}

TEST(AfterSaveTest, EachFailureEndsTheSequence) {
    using Break = void (*)(Sequence&);
    for (const auto& [break_it, warning, started, old_file_stays] :
         {std::tuple{Break{[](Sequence& s) { s.programs.CanShow = false; }}, notepad_problem, 0U,
                     true},
          {[](Sequence& s) { s.files.Undeletable = {bgl}; }, compiler_problem, 0U, true},
          {[](Sequence& s) { s.files.Content.erase("/s/BGLC.EXE"); }, compiler_missing, 0U, false},
          {[](Sequence& s) { s.programs.CanStart = false; }, compiler_problem, 1U, false},
          {[](Sequence& s) { s.programs.Advice = advice; }, advice, 1U, false},
          {[](Sequence&) {}, not_found, 1U, false}}) {
        Sequence sequence;
        break_it(sequence);
        EXPECT_EQ(sequence.Run(), Texts{warning});
        EXPECT_EQ(sequence.messages.Shown[0].Title, "Tidemark - Warning") << warning;
        EXPECT_EQ(sequence.programs.Started.size(), started) << warning;
        EXPECT_EQ(sequence.files.Exists(bgl), old_file_stays) << warning;
        EXPECT_TRUE(sequence.files.Exists("/s/Skye-VTP.asm")) << warning;
    }
    for (const std::string folder : {"", "/no", "/fs/"}) {  // the last one is full
        Sequence copying;
        copying.task = {copying.task.File, false, false, true, folder};
        if (folder == "/fs/") copying.files.WriteError = "No space left on device";
        EXPECT_EQ(copying.Run(), Texts{compiler_problem}) << folder;
    }
}

// Times in seconds; a negative one is never.
TEST(AfterSaveTest, TheWaitEndsWhenTheFileIsCompleteOrNotToBeExpected) {
    struct Case {
        double Ends;
        std::vector<double> Writes;  // each makes the file longer
        std::size_t Copied;          // its length when it is copied, 0 when it is given up
        double Longest;              // for the whole wait
    };
    for (const Case& c : {Case{10, {9.9}, 1, 11},        // all at the end
                          {31, {1, 10, 20, 30}, 4, 32},  // in pieces
                          {-1, {2, 3}, 2, 20},           // writes, then stays
                          {0.1, {1, 1.2, 1.4}, 3, 2},    // starts another program and ends
                          {5, {}, 0, 9},                 // ends without writing
                          {-1, {}, 0, 61}}) {            // never writes and never ends
        Sequence sequence;
        std::size_t written = 0;
        sequence.patience.Meanwhile = [&](int waited) {
            while (written < c.Writes.size() && waited >= 1000 * c.Writes[written])
                sequence.files.Content[bgl] = std::string(++written, 'x');
            sequence.programs.Ended = c.Ends >= 0 && waited >= 1000 * c.Ends;
        };
        EXPECT_EQ(sequence.Run(), Texts{c.Copied > 0 ? copied : not_found});
        EXPECT_EQ(sequence.files.Content["/fs/Skye-VTP.BGL"].size(), c.Copied) << c.Longest;
        EXPECT_LE(sequence.patience.Waited, 1000 * c.Longest);
    }
}

}  // namespace
}  // namespace tidemark
