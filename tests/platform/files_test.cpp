// The machine's files: replaced whole or not at all, read only when they are files.
#include "platform/files.h"

#include <csignal>
#include <fstream>
#include <random>
#include <sstream>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <gtest/gtest.h>

#include "fakes/temporary_folder.h"

namespace tidemark {
namespace {

std::string Content(const std::string& path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

class FilesTest : public testing::Test {
  protected:
    TemporaryFolder folder_;
    std::string path_ = folder_ / "project.TDM";
    DiskFiles files_;
};

TEST_F(FilesTest, ReplacingKeepsPermissionsAndLinksAndLeavesNothingBehind) {
    ASSERT_TRUE(files_.Replace(path_, "first"));
    ::chmod(path_.c_str(), 0640);
    const std::string link = folder_ / "link.TDM";
    ASSERT_EQ(::symlink(path_.c_str(), link.c_str()), 0);
    ASSERT_TRUE(files_.Replace(link, "second"));
    EXPECT_EQ(Content(path_), "second");
    struct stat status {};
    ::lstat(link.c_str(), &status);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    ::stat(path_.c_str(), &status);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
    EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"link.TDM", "project.TDM"}));
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
    EXPECT_EQ(Content(path_), "old");
    EXPECT_EQ(folder_.Names(), std::vector<std::string>{"project.TDM"});

    EXPECT_EQ(files_.Replace(folder_ / "none/x.TDM", "x").Reason(), "No such file or directory");
    EXPECT_EQ(files_.Replace(folder_.Path(), "x").Reason(), "Is a directory");
    EXPECT_EQ(files_.Replace(std::string("a\0b", 3), "x").Reason(), "Invalid argument");
    EXPECT_FALSE(files_.Replace("", "x"));
}

// The process is killed at random moments of a save: the file is the old one or the new one.
TEST_F(FilesTest, AKilledReplacementLeavesTheOldOrTheNewFileWhole) {
    const std::string old_bytes(300000, 'o'), new_bytes(500000, 'n');
    std::mt19937 random(1);
    int renewed = 0;
    for (int round = 0; round < 60; ++round) {
        ASSERT_TRUE(files_.Replace(path_, old_bytes));
        const pid_t child = ::fork();
        if (child == 0) {
            for (;;) DiskFiles().Replace(path_, new_bytes);
        }
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 3000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string found = Content(path_);
        ASSERT_TRUE(found == old_bytes || found == new_bytes) << found.size();
        renewed += found == new_bytes;
    }
    EXPECT_GT(renewed, 0);
    EXPECT_LT(renewed, 60);
}

TEST_F(FilesTest, OnlyAFileWithinTheLimitIsRead) {
    std::string bytes = "as before";
    ASSERT_TRUE(files_.Replace(path_, "12345"));
    const std::string pipe = folder_ / "pipe.TDM";
    ::mkfifo(pipe.c_str(), 0600);
    EXPECT_EQ(files_.Read(pipe, 100, bytes).Reason(), "Not a regular file");
    EXPECT_EQ(files_.Read("/dev/zero", 100, bytes).Reason(), "Not a regular file");
    EXPECT_EQ(files_.Read(folder_.Path(), 100, bytes).Reason(), "Is a directory");
    EXPECT_EQ(files_.Read(folder_ / "none", 100, bytes).Reason(), "No such file or directory");
    EXPECT_EQ(files_.Read(path_, 4, bytes).Reason(), "File too large");
    EXPECT_EQ(bytes, "as before");
    EXPECT_TRUE(files_.Read(path_, 5, bytes));
    EXPECT_EQ(bytes, "12345");
}

}  // namespace
}  // namespace tidemark
