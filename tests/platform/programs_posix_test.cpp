// What POSIX adds to programs: descriptors, children, permissions, and wine.
#include <sys/stat.h>
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
    RecordingPatience patience_;
    SystemPrograms programs_{patience_};
};

TEST_F(PosixProgramsTest, AStartedProgramHasNoDescriptorOfOursAndItsEndIsSeen) {
    ASSERT_EQ(::dup2(STDOUT_FILENO, 9), 9);  // without O_CLOEXEC
    const std::string waits =
        Program("waits",
                "#!/bin/sh\nwhile [ ! -e go ]; do sleep 0.02; done\n[ -e /proc/$$/fd/9 ] && "
                "echo leaks > part || echo none > part\nmv part record\n");
    const ProgramStart start = programs_.Start({waits, {}, folder_.Path()});
    ::close(9);
    ASSERT_TRUE(start.Program);
    EXPECT_FALSE(start.Program->End());
    Write_file(folder_ / "go", "");
    EXPECT_TRUE(Comes_true([&] { return start.Program->End().has_value(); }));
    EXPECT_EQ(Recorded(), "none\n");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no child is left, so no zombie";
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

TEST_F(PosixProgramsTest, HowAProgramEndsIsSeenAndWhatFailsAtOnceIsToldUnlessItIsWaitedFor) {
    patience_.Meanwhile = [] { std::this_thread::sleep_for(std::chrono::milliseconds(5)); };
    const Variable path("PATH", folder_.Path());
    const std::string compiler = Program("BGLC.EXE", "MZ\x90");
    const std::string fails = " is a Windows program, which this system runs through wine.\nIt ";
    for (const auto& [script, status, signal, text] :
         {std::tuple{"exit 0", 0u, 0, ""},
          {"exit 3", 3u, 0, "ended with the status 3."},
          {"kill -11 $$", 0u, 11, "was ended by the signal 11."}}) {
        const std::string content = std::string("#!/bin/sh\n") + script + "\n";
        const ProgramStart start = programs_.Start({Program("program", content), {}, ""});
        ASSERT_TRUE(start.Program && Comes_true([&] { return start.Program->End().has_value(); }));
        EXPECT_EQ(start.Program->End()->Status, status);
        EXPECT_EQ(start.Program->End()->Signal, signal);
        const bool is_success = start.Program->End()->Is_success();

        Program("wine", content);
        Program("xdg-open", content);
        EXPECT_EQ(programs_.Start({compiler, {}, ""}).Advice,
                  is_success ? "" : compiler + fails + text);
        EXPECT_EQ(programs_.Show_text("/x.asm"), is_success);
        EXPECT_EQ(programs_.Show_document("file:///x"), is_success);
    }
    Program("xdg-open", "#!/bin/sh\nexec /bin/sleep 3 >/dev/null 2>&1\n");
    patience_.Waited = 0;
    EXPECT_TRUE(programs_.Show_text("/x.asm")) << "it goes on";
    EXPECT_EQ(patience_.Waited, 1000);
}

// It would hang for good if the pipe were opened.
TEST_F(PosixProgramsTest, ACompilerThatIsAPipeIsNotOpened) {
    ASSERT_EQ(::mkfifo((folder_ / "BGLC.EXE").c_str(), 0700), 0);
    EXPECT_FALSE(programs_.Start({folder_ / "BGLC.EXE", {}, ""}).Program);
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
