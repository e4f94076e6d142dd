// The sequence after saving with a real compiler, real folders and real time: every failure is
// provoked for real.
#include <sys/resource.h>

#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "output/after_save.h"
#include "output/assembler_files.h"

namespace tidemark {
namespace {

namespace fs = std::filesystem;

// Sleeps for a part of what it is asked for, so that a long bound takes little time.
class HastyPatience : public Patience {
  public:
    double Part = 1;
    void Wait(const std::string&, int milliseconds) override {
        std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(milliseconds * Part));
    }
};

class CompilingTest : public testing::Test {
  protected:
    CompilingTest() {
        fs::create_directory(scenery_);
        fs::create_directory(simulator_);
        Install_compiler("BGLC.EXE");
        project_.BGLOD8X = 122;
        Add_segment(project_, 1, 80, {{5460, 6000}, {5500, 6100}});
        project_.VTPFileName = scenery_ + "/-VTP a;$(b)'.asm";
        project_.VTPCompile = project_.CopyToFS = true;
        project_.FSFolder = simulator_;
    }

    void Install_compiler(const std::string& name) {
        fs::copy_file(STANDIN_COMPILER, scenery_ + "/" + name);
    }

    std::string Save() {
        messages_.Shown.clear();
        EXPECT_TRUE(Save_VTP_file(project_, messages_, files_));
        After_save(VTP_after_save(project_), messages_, files_, programs_, patience_);
        EXPECT_TRUE(fs::exists(project_.VTPFileName));
        return messages_.Shown.empty() ? "" : messages_.Shown.back().Text;
    }

    bool Copied_whole() {
        const std::string copy = File_content(simulator_ + "/-VTP a;$(b)'.BGL");
        return copy == "BGL begins\n" + File_content(project_.VTPFileName) + "BGL ends";
    }

    const TemporaryFolder folder_;
    const std::string scenery_ = folder_ / "my scenery";
    const std::string simulator_ = folder_ / "FS 2002";
    const std::string compiled_ = scenery_ + "/-VTP a;$(b)'.BGL";
    const std::string copied_ = "-VTP a;$(b)'.BGL successfully copied to " + simulator_;
    const std::string not_found_ = "-VTP a;$(b)'.BGL not found!";
    const std::string problem_ =
        "There was a problem opening the external program BGLC.EXE.\n"
        "Please ensure that Flight Simulator 2002 is not currently running, and try saving the "
        "file again.";
    Project project_;
    RecordingMessages messages_;
    DiskFiles files_;
    SystemPrograms programs_;
    HastyPatience patience_;
};

TEST_F(CompilingTest, ASlowCompilersFileIsCopiedWholeOverTheOldOne) {
    const Variable delay("STANDIN_DELAY", "1");
    const Variable pieces("STANDIN_PIECES", "6");
    Write_file(compiled_, "of an earlier run");
    Write_file(simulator_ + "/-VTP a;$(b)'.BGL", "of an earlier run");
    EXPECT_EQ(Save(), copied_);
    EXPECT_TRUE(Copied_whole());
    EXPECT_EQ(messages_.Shown.size(), 1U);
}

TEST_F(CompilingTest, ACompilerThatStaysOpenIsNotWaitedForForever) {
    const Variable stays("STANDIN_NEVER_ENDS", "1");
    patience_.Part = 0.05;
    EXPECT_EQ(Save(), copied_);
    EXPECT_TRUE(Copied_whole());
}

TEST_F(CompilingTest, NamesOfAnyCaseAreFound) {
    const Variable lower("STANDIN_LOWER_CASE", "1");
    fs::rename(scenery_ + "/BGLC.EXE", scenery_ + "/bglc.exe");
    Write_file(scenery_ + "/-vtp A;$(B)'.bgl", "of an earlier run");
    EXPECT_EQ(Save(), copied_);
    EXPECT_TRUE(Copied_whole());
}

TEST_F(CompilingTest, ARelativeNameThatBeginsWithADashDoesNoHarm) {
    const fs::path before = fs::current_path();
    fs::current_path(scenery_);
    project_.VTPFileName = "-VTP a;$(b)'.asm";
    EXPECT_EQ(Save(), copied_);
    EXPECT_TRUE(Copied_whole());
    fs::current_path(before);
}

TEST_F(CompilingTest, ACompilerThatNeverWritesEndsInTheWarning) {
    const Variable never("STANDIN_NEVER_WRITES", "1");
    patience_.Part = 0.1;
    EXPECT_EQ(Save(), not_found_);
    const Variable stays("STANDIN_NEVER_ENDS", "1");
    patience_.Part = 0.01;
    EXPECT_EQ(Save(), not_found_);
    EXPECT_TRUE(fs::is_empty(simulator_));
}

TEST_F(CompilingTest, AMissingOpenerEndsTheSequence) {
    const Variable path("PATH", folder_.Path());
    project_.VTPNotepad = true;
    EXPECT_EQ(Save(), "There was a problem opening the external program Notepad!");
    EXPECT_FALSE(fs::exists(compiled_));
}

TEST_F(CompilingTest, ACompilerThatCannotBeExecutedIsTold) {
    fs::permissions(scenery_ + "/BGLC.EXE", fs::perms::owner_read);
    EXPECT_EQ(Save(), problem_);
    fs::remove(scenery_ + "/BGLC.EXE");
    EXPECT_EQ(Save(), scenery_ +
                          "/BGLC.EXE was not found!\n"
                          "You need to have BGLC.EXE and the associated include files in "
                          "the\nsame folder as your Tidemark assembler files.");
}

TEST_F(CompilingTest, AnOldFileThatCannotBeDeletedIsTold) {
    fs::create_directory(compiled_);
    EXPECT_EQ(Save(), problem_);
}

TEST_F(CompilingTest, ADestinationThatIsNotThereIsTold) {
    fs::remove(simulator_);
    EXPECT_EQ(Save(), problem_);
    Write_file(simulator_, "a file, not a folder");
    project_.VTPCompile = false;
    for (const std::string& folder : {simulator_, std::string(), std::string("C:\\FS2002\\")}) {
        project_.FSFolder = folder;
        EXPECT_EQ(Save(), problem_) << folder;
    }
    EXPECT_TRUE(fs::exists(compiled_));
}

TEST_F(CompilingTest, AFullDestinationIsToldAndKeepsItsOldFile) {
    const std::string old_copy = simulator_ + "/-VTP a;$(b)'.BGL";
    Write_file(old_copy, "of an earlier run");
    project_.VTPCompile = false;
    Write_file(compiled_, std::string(100000, 'x'));
    struct rlimit before {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const struct rlimit small { 50000, before.rlim_max };
    ::setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(Save(), problem_);
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(File_content(old_copy), "of an earlier run");
}

}  // namespace
}  // namespace tidemark
