// What POSIX adds to programs: descriptors, children, permissions, and wine.
#include <sys/wait.h>
#include <unistd.h>

#include "fakes/rules_test.h"
#include "platform/programs.h"

namespace tidemark {

class PosixProgramsTest : public testing::Test {
  protected:
    std::string Program(const std::string& name, const std::string& content) {
        Write_file(folder_ / name, content);
        std::filesystem::permissions(folder_ / name, std::filesystem::perms::owner_all);
        return folder_ / name;
    }

    // A program that writes the folder it runs in and its arguments into the record, one a line.
    std::string Recorder(const std::string& name) {
        return Program(name, "#!/bin/sh\n{ pwd; printf '%s\\n' \"$@\"; } > '" + record_ +
                                 ".part'\n/bin/mv '" + record_ + ".part' '" + record_ + "'\n");
    }

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
    const std::string waits =
        Program("waits",
                "#!/bin/sh\nwhile [ ! -e go ]; do sleep 0.02; done\n[ -e /proc/$$/fd/9 ] && "
                "echo leaks > part || echo none > part\nmv part record\n");
    const ProgramStart start = programs_.Start({waits, {}, folder_.Path()});
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
    for (const std::string& program :
         {folder_ / "not executable", folder_.Path(), std::string("none"), std::string(),
          Program("no interpreter", "#!/no/such/interpreter\n"),
          Program("no program", "touch x\n")}) {  // a shell would run it
        const ProgramStart start = programs_.Start({program, {}, ""});
        EXPECT_TRUE(!start.Program && start.Advice.empty()) << program;
    }
}

TEST_F(PosixProgramsTest, AWindowsProgramGoesThroughWineAndADocumentThroughTheDesktopsOpener) {
    const Variable path("PATH", folder_.Path());  // whatever this system has installed
    const std::string compiler = Program("BGLC.EXE", "MZ\x90");
    const Command command{compiler, {"/a b/Skye.asm", "-x"}, folder_.Path()};
    EXPECT_EQ(programs_.Start(command).Advice,
              compiler +
                  " is a Windows program, which this system runs through wine.\n"
                  "Please install wine and try again.");
    Recorder("wine");
    EXPECT_TRUE(programs_.Start(command).Program);
    EXPECT_EQ(Recorded(), folder_.Path() + "\n" + compiler + "\nZ:\\a b\\Skye.asm\n-x\n");
    EXPECT_FALSE(programs_.Show_text("/x y.asm"));
    Recorder("xdg-open");
    EXPECT_TRUE(programs_.Show_document("/x y.asm"));
    EXPECT_TRUE(Recorded().ends_with("\n/x y.asm\n"));
}

}  // namespace tidemark
