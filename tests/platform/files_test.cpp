// The machine's files: found by name, replaced whole or not at all, read only when they are files.
#include "platform/files.h"

#include <csignal>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "fakes/rules_test.h"

namespace tidemark {

class FilesTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    std::string path_ = folder_ / "project.TDM";
    DiskFiles files_;
};

TEST_F(FilesTest, AFileIsFoundWhateverTheCaseOfItsNameMeasuredAndRemoved) {
    for (const char* name : {"bglc.exe", "Skye.BGL", "Skye.bgl"}) Write_file(folder_ / name, name);
    for (const auto& [name, found] :
         {std::pair{"BGLC.EXE", "bglc.exe"}, {"Skye.bgl", "Skye.bgl"}, {"skye.bgl", "Skye.BGL"}})
        EXPECT_EQ(files_.Find(folder_ / name), folder_ / found) << "or the alphabet decides";
    EXPECT_EQ(files_.Find(folder_ / "no such folder/skye.bgl"), std::nullopt);
    EXPECT_EQ(files_.Size(folder_ / "Skye.BGL"), 8U);
    EXPECT_EQ(files_.Size(folder_ / "none"), std::nullopt);
    EXPECT_EQ(files_.Full_path("-b"), std::filesystem::current_path().string() + "/-b");
    EXPECT_TRUE(files_.Delete(folder_ / "Skye.BGL"));
    EXPECT_EQ(files_.Delete(folder_ / "Skye.BGL").Reason(), "No such file or directory");
    EXPECT_FALSE(files_.Delete(folder_.Path())) << "a folder is not a file";
}

TEST_F(FilesTest, ReplacingKeepsPermissionsAndLinksAndLeavesNothingBehind) {
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

TEST_F(FilesTest, AFailedReplacementLeavesTheOldFileAndSaysWhy) {
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

    EXPECT_EQ(files_.Replace(folder_ / "none/x.TDM", "x").Reason(), "No such file or directory");
    EXPECT_EQ(files_.Replace(folder_.Path(), "x").Reason(), "Is a directory");
    EXPECT_EQ(files_.Replace(std::string("a\0b", 3), "x").Reason(), "Invalid argument");
}

// The process is killed at random moments of a save: the file is the old one or the new one.
TEST_F(FilesTest, AKilledReplacementLeavesTheOldOrTheNewFileWhole) {
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

TEST_F(FilesTest, OnlyAFileWithinTheLimitIsRead) {
    std::string bytes = "as before";
    ASSERT_TRUE(files_.Replace(path_, "12345"));
    ::mkfifo((folder_ / "pipe.TDM").c_str(), 0600);
    for (const auto& [path, reason] : {std::pair{folder_ / "pipe.TDM", "Not a regular file"},
                                       {"/dev/zero", "Not a regular file"},
                                       {folder_.Path(), "Is a directory"},
                                       {folder_ / "none", "No such file or directory"},
                                       {path_, "File too large"}})
        EXPECT_EQ(files_.Read(path, 4, bytes).Reason(), reason);
    EXPECT_EQ(bytes, "as before");
    EXPECT_TRUE(files_.Read(path_, 5, bytes));
    EXPECT_EQ(bytes, "12345");
}

}  // namespace tidemark
