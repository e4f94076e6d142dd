// The sequence after saving with a real compiler, real folders and real time.
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

class RealPatience : public Patience {
    void Wait(const std::string&, int milliseconds) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
};

class CompilingTest : public testing::Test {
  protected:
    CompilingTest() {
        fs::create_directory(scenery_);
        fs::create_directory(simulator_);
        fs::copy_file(STANDIN_COMPILER, scenery_ + "/bglc.exe");
        Add_segment(project_, 1, 80, {{5460, 6000}, {5500, 6100}});
        project_.VTPFileName = scenery_ + "/-VTP a;$(b)'.asm";
        project_.VTPCompile = project_.CopyToFS = true;
        project_.FSFolder = simulator_;
        Write_file(copy_, "of an earlier run");
    }

    std::string Save() {
        RecordingMessages messages;
        EXPECT_TRUE(Save_VTP_file(project_, messages, files_));
        After_save(VTP_after_save(project_), messages, files_, programs_, patience_);
        return messages.Shown.back().Text;
    }

    void Expect_copied_whole() {
        EXPECT_EQ(Save(), "-VTP a;$(b)'.BGL successfully copied to " + simulator_);
        EXPECT_EQ(File_content(copy_),
                  "BGL begins\n" + File_content(project_.VTPFileName) + "BGL ends");
    }

    const TemporaryFolder folder_;
    const std::string scenery_ = folder_ / "my scenery", simulator_ = folder_ / "FS 2002";
    const std::string compiled_ = scenery_ + "/-VTP a;$(b)'.BGL";
    const std::string copy_ = simulator_ + "/-VTP a;$(b)'.BGL";
    const std::string problem_ =
        "There was a problem opening the external program BGLC.EXE.\n"
        "Please ensure that Flight Simulator 2002 is not currently running, and try saving the "
        "file again.";
    Project project_;
    DiskFiles files_;
    SystemPrograms programs_;
    RealPatience patience_;
};

TEST_F(CompilingTest, ASlowCompilersFileIsCopiedWholeOverTheOldOne) {
    const Variable delay("STANDIN_DELAY", "1"), pieces("STANDIN_PIECES", "6");
    Write_file(compiled_, "of an earlier run");
    Expect_copied_whole();
}

TEST_F(CompilingTest, NamesOfAnyCaseAreFoundAndADashAtTheBeginningDoesNoHarm) {
    const Variable lower("STANDIN_LOWER_CASE", "1");
    const fs::path before = fs::current_path();
    fs::current_path(scenery_);
    project_.VTPFileName = "-VTP a;$(b)'.asm";
    Write_file("-vtp A;$(B)'.bgl", "of an earlier run");
    Expect_copied_whole();
    fs::current_path(before);
}

TEST_F(CompilingTest, WhatCannotBeExecutedOrDeletedIsTold) {
    fs::permissions(scenery_ + "/bglc.exe", fs::perms::owner_read);
    EXPECT_EQ(Save(), problem_);
    fs::create_directory(compiled_);
    EXPECT_EQ(Save(), problem_);
}

TEST_F(CompilingTest, ADestinationThatIsFullOrNotThereIsToldAndKeepsItsOldFile) {
    project_.VTPCompile = false;
    Write_file(compiled_, std::string(100000, 'x'));
    struct rlimit before {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const struct rlimit small { 50000, before.rlim_max };
    ::setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(Save(), problem_);
    ::setrlimit(RLIMIT_FSIZE, &before);
    EXPECT_EQ(File_content(copy_), "of an earlier run");
    for (const std::string& folder : {copy_, std::string(), std::string("C:\\FS2002\\")}) {
        project_.FSFolder = folder;
        EXPECT_EQ(Save(), problem_) << folder;
    }
}

}  // namespace
}  // namespace tidemark
