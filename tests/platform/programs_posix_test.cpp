// What POSIX adds to programs: descriptors, children, permissions, and wine.
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/temporary_folder.h"
#include "platform/programs.h"

namespace tidemark {
namespace {

class PosixProgramsTest : public testing::Test {
  protected:
    std::string Recorded() {
        EXPECT_TRUE(Comes_true([&] { return std::filesystem::exists(record_); }));
        const std::string content = File_content(record_);
        std::filesystem::remove(record_);
        return content;
    }

    TemporaryFolder folder_;
    const std::string record_ = folder_ / "record";
    SystemPrograms programs_;
};

TEST_F(PosixProgramsTest, AStartedProgramIsNobodysChildHasNoDescriptorOfOursAndItsEndIsSeen) {
    ASSERT_EQ(::dup2(STDOUT_FILENO, 9), 9);  // without O_CLOEXEC
    Write_program(folder_ / "waits",
                  "#!/bin/sh\nwhile [ ! -e go ]; do sleep 0.02; done\n[ -e /proc/$$/fd/9 ] && "
                  "echo leaks > part || echo none > part\nmv part record\n");
    const ProgramStart start = programs_.Start({folder_ / "waits", {}, folder_.Path()});
    ::close(9);
    ASSERT_TRUE(start.Program);
    EXPECT_FALSE(start.Program->Has_ended());
    Write_file(folder_ / "go", "");
    EXPECT_TRUE(Comes_true([&] { return start.Program->Has_ended(); }));
    EXPECT_EQ(Recorded(), "none\n");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no child, so none to become a zombie";
}

TEST_F(PosixProgramsTest, WhatCannotBeStartedIsReported) {
    const Variable path("PATH", folder_.Path());
    Write_file(folder_ / "not executable", "#!/bin/sh\n");
    Write_program(folder_ / "no interpreter", "#!/no/such/interpreter\n");
    Write_program(folder_ / "no program", "touch x\n");  // a shell would run it
    for (const std::string& program :
         {folder_ / "none", folder_ / "not executable", folder_ / "no interpreter",
          folder_ / "no program", folder_.Path(), std::string("none"), std::string()}) {
        const ProgramStart start = programs_.Start({program, {}, ""});
        EXPECT_TRUE(!start.Program && start.Advice.empty()) << program;
    }
    Write_recorder(folder_ / "records", record_);
    EXPECT_FALSE(programs_.Start({folder_ / "records", {}, folder_ / "no such folder"}).Program);
}

TEST_F(PosixProgramsTest, AWindowsProgramGoesThroughWineAndADocumentThroughTheDesktopsOpener) {
    const Variable without_wine("PATH", folder_.Path());
    const std::string compiler = folder_ / "BGLC.EXE";
    Write_program(compiler, "MZ\x90");
    const Command command{compiler, {"/a b/Skye.asm", "-x"}, folder_.Path()};
    EXPECT_EQ(programs_.Start(command).Advice,
              compiler +
                  " is a Windows program, which this system runs through wine.\n"
                  "Please install wine and try again.");
    const Variable path("PATH", folder_.Path() + ":/usr/bin:/bin");
    Write_recorder(folder_ / "wine", record_);
    EXPECT_TRUE(programs_.Start(command).Program);
    EXPECT_EQ(Recorded(), folder_.Path() + "\n" + compiler + "\nZ:\\a b\\Skye.asm\n-x\n");

    Write_recorder(folder_ / "xdg-open", record_);
    EXPECT_TRUE(programs_.Show_document("/x y.asm"));
    EXPECT_TRUE(Recorded().ends_with("\n/x y.asm\n"));
    const Variable without_opener("PATH", "/none");
    EXPECT_FALSE(programs_.Show_text("/x y.asm"));
}

}  // namespace
}  // namespace tidemark
