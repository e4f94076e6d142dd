// What POSIX adds to files: case, permissions, links, pipes, and processes killed while they save.
#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "fakes/rules_test.h"
#include "platform/files.h"

namespace tidemark {

class PosixFilesTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    std::string path_ = folder_ / "project.TDM";
    DiskFiles files_;
};

TEST_F(PosixFilesTest, AFileIsFoundWhateverTheCaseOfItsName) {
    for (const char* name : {"bglc.exe", "Skye.BGL", "Skye.bgl"}) Write_file(folder_ / name, name);
    EXPECT_EQ(files_.Find(folder_ / "BGLC.EXE"), folder_ / "bglc.exe");
    EXPECT_EQ(files_.Find(folder_ / "Skye.bgl"), folder_ / "Skye.bgl")
        << "its own name comes first";
    EXPECT_EQ(files_.Find(folder_ / "skye.bgl"), folder_ / "Skye.BGL")
        << "then the alphabet decides";
    EXPECT_EQ(files_.Find(folder_ / "no such folder/skye.bgl"), std::nullopt);
    EXPECT_EQ(files_.Full_path("-b"), std::filesystem::current_path().string() + "/-b");
}

TEST_F(PosixFilesTest, ReplacingKeepsPermissionsAndLinksAndLeavesNothingBehind) {
    ASSERT_TRUE(files_.Replace(path_, "first"));
    ::chmod(path_.c_str(), 0640);
    const std::string link = folder_ / "link.TDM";
    std::filesystem::create_symlink(path_, link);
    ASSERT_TRUE(files_.Replace(link, "second"));
    EXPECT_EQ(File_content(path_), "second");
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    EXPECT_EQ(std::filesystem::status(path_).permissions(), std::filesystem::perms(0640));
    EXPECT_EQ(folder_.Number_of_files(), 2);
}

TEST_F(PosixFilesTest, AFailedReplacementLeavesTheOldFileAndSaysWhy) {
    ASSERT_TRUE(files_.Replace(path_, "old"));
    struct rlimit before {};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const struct rlimit small { 1000, before.rlim_max };
    ::setrlimit(RLIMIT_FSIZE, &small);
    const FileResult result = files_.Replace(path_, std::string(100000, 'x'));
    ::setrlimit(RLIMIT_FSIZE, &before);
    ASSERT_FALSE(result);
    EXPECT_EQ(result.Reason(), "File too large");
    EXPECT_EQ(File_content(path_), "old");
    EXPECT_EQ(folder_.Number_of_files(), 1);
}

// The process is killed at random moments of a save: the file is the old one or the new one.
TEST_F(PosixFilesTest, AKilledReplacementLeavesTheOldOrTheNewFileWhole) {
    const std::string old_bytes(300000, 'o'), new_bytes(500000, 'n');
    std::mt19937 random(1);
    int rounds = 0, renewed = 0;
    const auto have_both_come = [&] { return renewed > 0 && renewed < rounds; };
    for (; rounds < 60 || (rounds < 600 && !have_both_come()); ++rounds) {
        ASSERT_TRUE(files_.Replace(path_, old_bytes));
        const pid_t child = ::fork();
        while (child == 0) DiskFiles().Replace(path_, new_bytes);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 3000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string found = File_content(path_);
        ASSERT_TRUE(found == old_bytes || found == new_bytes) << found.size();
        renewed += found == new_bytes;
    }
    EXPECT_TRUE(have_both_come()) << "a busy machine takes more rounds";
}

TEST_F(PosixFilesTest, APipeOrADeviceIsRefusedAtOnce) {
    ::mkfifo(path_.c_str(), 0600);
    std::string bytes;
    for (const std::string& path : {path_, std::string("/dev/zero")})
        EXPECT_EQ(files_.Read(path, 4, bytes).Reason(), "Not a regular file");
}

}  // namespace tidemark
