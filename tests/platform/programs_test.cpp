// Really started programs: what reaches them, when they have ended, and what cannot be started.
#include "platform/programs.h"

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "fakes/environment.h"
#include "fakes/temporary_folder.h"

namespace tidemark {
namespace {

class ProgramsTest : public testing::Test {
  protected:
    std::string Recorded(const std::string& record) {
        EXPECT_TRUE(Comes_true([&] { return std::filesystem::exists(record); })) << record;
        return File_content(record);
    }

    TemporaryFolder folder_;
    SystemPrograms programs_;
};

TEST_F(ProgramsTest, ArgumentsArriveAsTheyAre) {
    const std::string program = folder_ / "a program; $(touch x)";
    Write_recorder(program, folder_ / "record");
    const std::vector<std::string> arguments{
        "two words", "\"quoted\"", "it's", ";",  "$(touch x)", "`touch x`", "-rf",
        "*",         "",           "a\\b", "|x", "&",          "%",         "K\xC3\xBCste"};
    ASSERT_TRUE(programs_.Start({program, arguments, folder_.Path()}).Program);
    std::string expected = folder_.Path() + "\n";
    for (const std::string& argument : arguments) expected += argument + "\n";
    EXPECT_EQ(Recorded(folder_ / "record"), expected);
    EXPECT_FALSE(std::filesystem::exists(folder_ / "x")) << "nothing of it ran";
}

TEST_F(ProgramsTest, SaysWhetherAProgramHasEndedAndLeavesNoChildBehind) {
    Write_program(folder_ / "waits", "#!/bin/sh\nwhile [ ! -e go ]; do sleep 0.02; done\n");
    const ProgramStart start = programs_.Start({folder_ / "waits", {}, folder_.Path()});
    ASSERT_TRUE(start.Program);
    EXPECT_FALSE(start.Program->Has_ended());
    Write_file(folder_ / "go", "");
    EXPECT_TRUE(Comes_true([&] { return start.Program->Has_ended(); }));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no child, so none to become a zombie";
}

TEST_F(ProgramsTest, AProgramGetsNoDescriptorOfOurs) {
    ASSERT_EQ(::dup2(STDOUT_FILENO, 9), 9);  // without O_CLOEXEC
    Write_program(folder_ / "looks",
                  "#!/bin/sh\n[ -e /proc/$$/fd/9 ] && echo leaks > part || echo none > part\n"
                  "mv part found\n");
    ASSERT_TRUE(programs_.Start({folder_ / "looks", {}, folder_.Path()}).Program);
    ::close(9);
    EXPECT_EQ(Recorded(folder_ / "found"), "none\n");
}

TEST_F(ProgramsTest, WhatCannotBeStartedIsReported) {
    const Variable path("PATH", folder_.Path());
    Write_file(folder_ / "not executable", "#!/bin/sh\n");
    Write_program(folder_ / "no interpreter", "#!/no/such/interpreter\n");
    Write_program(folder_ / "no program", "touch x\n");  // a shell would run it
    for (const std::string& program :
         {folder_ / "none", folder_ / "not executable", folder_ / "no interpreter",
          folder_ / "no program", folder_.Path(), std::string("none"), std::string()}) {
        const ProgramStart start = programs_.Start({program, {}, ""});
        EXPECT_FALSE(start.Program) << program;
        EXPECT_EQ(start.Advice, "") << program;
    }
    Write_recorder(folder_ / "records", folder_ / "record");
    EXPECT_FALSE(programs_.Start({folder_ / "records", {}, folder_ / "no such folder"}).Program);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST_F(ProgramsTest, AWindowsProgramGoesThroughWine) {
    const Variable path("PATH", folder_.Path() + ":/usr/bin:/bin");
    const std::string compiler = folder_ / "BGLC.EXE";
    for (const bool executable : {false, true}) {
        Write_file(compiler, "MZ\x90");
        if (executable) std::filesystem::permissions(compiler, std::filesystem::perms::owner_all);
        const Command command{compiler, {"/a b/Skye.asm", "-x"}, folder_.Path()};

        std::filesystem::remove(folder_ / "wine");
        const ProgramStart without = programs_.Start(command);
        EXPECT_FALSE(without.Program);
        EXPECT_EQ(without.Advice,
                  compiler +
                      " is a Windows program, which this system runs through wine.\n"
                      "Please install wine and try again.");

        Write_recorder(folder_ / "wine", folder_ / "record");
        EXPECT_TRUE(programs_.Start(command).Program);
        EXPECT_EQ(Recorded(folder_ / "record"),
                  folder_.Path() + "\n" + compiler + "\nZ:\\a b\\Skye.asm\n-x\n");
        std::filesystem::remove(folder_ / "record");
    }
}

TEST_F(ProgramsTest, DocumentsAreShownByTheDesktopsOpener) {
    const Variable path("PATH", folder_.Path());
    EXPECT_FALSE(programs_.Show("/x y.asm")) << "no opener";
    Write_recorder(folder_ / "xdg-open", folder_ / "record");
    const Variable with_tools("PATH", folder_.Path() + ":/usr/bin:/bin");
    EXPECT_TRUE(programs_.Show("/x y.asm"));
    EXPECT_TRUE(Recorded(folder_ / "record").ends_with("\n/x y.asm\n"));
}

}  // namespace
}  // namespace tidemark
