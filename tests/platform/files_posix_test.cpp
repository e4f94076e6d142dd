// What POSIX adds to files: case, owners, links, pipes, and processes killed while they save.
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <random>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "fakes/rules_test.h"
#include "platform/files.h"

// The file system refuses what one for Windows does.
static bool refuses_permissions = false;

extern "C" int fchmod(int file, mode_t mode) {
    if (!refuses_permissions) return static_cast<int>(::syscall(SYS_fchmod, file, mode));
    errno = EPERM;
    return -1;
}

namespace tidemark {

// Somebody else than root, as long as this is kept.
class OtherUser {
  public:
    OtherUser() { EXPECT_EQ(::seteuid(65534), 0); }
    OtherUser(const OtherUser&) = delete;
    OtherUser& operator=(const OtherUser&) = delete;
    ~OtherUser() { EXPECT_EQ(::seteuid(0), 0); }
};

class PosixFilesTest : public testing::Test {
  protected:
    // All that a file has besides its bytes.
    static std::string Attributes(const std::string& path) {
        struct stat status {};
        EXPECT_EQ(::stat(path.c_str(), &status), 0);
        std::string names(1000, '\0'), list(1000, '\0');
        names.resize(std::max<ssize_t>(::listxattr(path.c_str(), names.data(), names.size()), 0));
        const ssize_t length =
            ::getxattr(path.c_str(), "system.posix_acl_access", list.data(), list.size());
        list.resize(std::max<ssize_t>(length, 0));
        return testing::PrintToString(
            std::tuple(status.st_mode, status.st_uid, status.st_gid, status.st_nlink, names, list));
    }

    // The system lets no file grow beyond a thousand bytes meanwhile. The old bytes are "old".
    void Expect_too_long_a_replacement_to_fail() {
        struct rlimit before {};
        ::getrlimit(RLIMIT_FSIZE, &before);
        const struct rlimit small { 1000, before.rlim_max };
        ::setrlimit(RLIMIT_FSIZE, &small);
        const FileResult result = files_.Replace(path_, std::string(100000, 'x'));
        ::setrlimit(RLIMIT_FSIZE, &before);
        ASSERT_FALSE(result);
        EXPECT_EQ(result.Reason(), "File too large");
        EXPECT_EQ(File_content(path_), "old");
    }

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
    Expect_too_long_a_replacement_to_fail();
    EXPECT_EQ(folder_.Number_of_files(), 1);
}

// Each case gives the file something that a new file would not have. As root it is renamed over
// where that can be had for a new file; another user, who cannot give it, writes into the file.
TEST_F(PosixFilesTest, ReplacingKeepsOwnerGroupPermissionsListsAttributesAndNames) {
    // Read for user 1000, read and write for everybody else.
    constexpr unsigned char list[] =
        "\2\0\0\0\1\0\6\0\377\377\377\377\2\0\4\0\350\3\0\0"
        "\4\0\6\0\377\377\377\377\20\0\6\0\377\377\377\377"
        "\40\0\6\0\377\377\377\377";
    const auto set = [&](const char* name, const void* value, std::size_t size) {
        return ::setxattr(path_.c_str(), name, value, size, 0);
    };
    const std::map<std::string, std::function<int()>> cases{
        {"permissions", [&] { return ::chmod(path_.c_str(), 0664); }},
        {"owner", [&] { return ::chown(path_.c_str(), 1234, 2345); }},
        {"group", [&] { return ::chown(path_.c_str(), 65534, 2345); }},
        {"attribute", [&] { return set("user.note", "kept", 4); }},
        {"access list", [&] { return set("system.posix_acl_access", list, sizeof list - 1); }},
        {"second name", [&] { return ::link(path_.c_str(), (folder_ / "second").c_str()); }}};
    ::chmod(folder_.Path().c_str(), 0777);
    for (const bool as_other : {false, true}) {
        if (as_other && ::geteuid() != 0) continue;
        for (const auto& [name, prepare] : cases) {
            Write_file(path_, "old, and longer");
            ::chmod(path_.c_str(), 0666);
            if (prepare() != 0) continue;  // not on this file system, or not as this user
            const std::string attributes = Attributes(path_);
            {
                const auto other = as_other ? std::make_unique<OtherUser>() : nullptr;
                const FileResult result = files_.Replace(path_, "new");
                EXPECT_TRUE(result) << name << ": " << result.Reason();
            }
            EXPECT_EQ(Attributes(path_), attributes) << name;
            EXPECT_EQ(File_content(path_), "new") << name;
            std::filesystem::remove(folder_ / "second");
            EXPECT_EQ(folder_.Number_of_files(), 1) << name;
            std::filesystem::remove(path_);
        }
    }
}

TEST_F(PosixFilesTest, AFailureInPlacePutsTheOldBytesBack) {
    Write_file(path_, "old");
    std::filesystem::create_hard_link(path_, folder_ / "second");
    Expect_too_long_a_replacement_to_fail();
    EXPECT_EQ(folder_.Number_of_files(), 2);
}

TEST_F(PosixFilesTest, AFileSystemThatRefusesPermissionsIsSavedToAllTheSame) {
    refuses_permissions = true;
    for (const char* const bytes : {"a new file", "an old file"}) {
        const FileResult result = files_.Replace(path_, bytes);
        EXPECT_TRUE(result) << result.Reason();
        EXPECT_EQ(File_content(path_), bytes);
        ::chmod(path_.c_str(), 0644);
    }
    refuses_permissions = false;
    EXPECT_EQ(std::filesystem::status(path_).permissions(), std::filesystem::perms(0644));
    EXPECT_EQ(folder_.Number_of_files(), 1);
}

TEST_F(PosixFilesTest, LinksAreFollowedAndWhatIsNoFileIsRefusedByName) {
    const auto link = [&](const std::string& to, const std::string& name) {
        std::filesystem::create_symlink(to, folder_ / name);
        return folder_ / name;
    };
    const std::string waiting = link("further", "waiting");
    link("missing.TDM", "further");
    const std::string nowhere = link("no folder/x", "nowhere"), circle = link("back", "circle");
    link("circle", "back");
    EXPECT_TRUE(files_.Replace(waiting, "new"));
    EXPECT_EQ(File_content(folder_ / "missing.TDM"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "further"));
    EXPECT_EQ(files_.Replace(nowhere, "x").Reason(), "No such file or directory");
    EXPECT_EQ(files_.Replace(circle, "x").Reason(), "Too many levels of symbolic links");
    for (const mode_t type : {S_IFIFO, S_IFSOCK, S_IFCHR}) {
        if (::mknod(path_.c_str(), type | 0600, ::makedev(1, 7)) != 0) continue;  // for root only
        EXPECT_EQ(files_.Replace(path_, "x").Reason(), "Not a regular file");
        std::filesystem::remove(path_);
    }
}

TEST_F(PosixFilesTest, AGoodSaveRemovesWhatKilledOnesHaveLeftAndNothingElse) {
    const std::string living = folder_ / ".tidemark-aliveX";
    for (const char* const name : {".tidemark-left0A", ".tidemark-aliveX", ".tidemark-notes.txt"})
        Write_file(folder_ / name, "");
    std::filesystem::create_directory(folder_ / ".tidemark-folder");
    const int held = ::open(living.c_str(), O_RDONLY);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    EXPECT_FALSE(files_.Replace(folder_.Path(), "a failed save"));
    EXPECT_EQ(folder_.Number_of_files(), 4);
    EXPECT_TRUE(files_.Replace(path_, "x"));
    EXPECT_EQ(folder_.Number_of_files(), 4);
    EXPECT_FALSE(std::filesystem::exists(folder_ / ".tidemark-left0A"));
    ::close(held);
    EXPECT_TRUE(files_.Replace(path_, "x"));
    EXPECT_FALSE(std::filesystem::exists(living));
}

// The process is killed at random moments of a save: the file is the old one or the new one. One
// that is written in place may be anything, but then a copy beside it is the old one.
TEST_F(PosixFilesTest, AKilledReplacementLeavesTheOldOrTheNewFileWhole) {
    const std::string old_bytes(300000, 'o'), new_bytes(500000, 'n');
    const TemporaryFolder other;
    std::mt19937 random(1);
    const auto kept_bytes = [&] {
        for (const auto& entry : std::filesystem::directory_iterator(folder_.Path()))
            if (entry.path().filename().string().starts_with("project.TDM.old-")) {
                const std::string bytes = File_content(entry.path().string());
                std::filesystem::remove(entry);
                return bytes;
            }
        return std::string();
    };
    for (const bool in_place : {false, true}) {
        int rounds = 0, renewed = 0;
        const auto have_both_come = [&] { return renewed > 0 && renewed < rounds; };
        for (; rounds < 60 || (rounds < 600 && !have_both_come()); ++rounds) {
            ASSERT_TRUE(files_.Replace(path_, old_bytes));
            if (in_place && rounds == 0) std::filesystem::create_hard_link(path_, other / "second");
            const pid_t child = ::fork();
            while (child == 0) DiskFiles().Replace(path_, new_bytes);
            std::this_thread::sleep_for(std::chrono::microseconds(random() % 3000));
            ::kill(child, SIGKILL);
            ::waitpid(child, nullptr, 0);
            const std::string found = File_content(path_), copy = kept_bytes();
            const bool is_whole = found == old_bytes || found == new_bytes;
            ASSERT_TRUE(is_whole || (in_place && copy == old_bytes)) << found.size();
            renewed += found == new_bytes;
        }
        EXPECT_TRUE(have_both_come()) << "a busy machine takes more rounds";
    }
    ASSERT_TRUE(files_.Replace(path_, old_bytes));
    EXPECT_EQ(folder_.Number_of_files(), 1) << "what they left is removed";
}

TEST_F(PosixFilesTest, APipeOrADeviceIsRefusedAtOnce) {
    ::mkfifo(path_.c_str(), 0600);
    std::string bytes;
    for (const std::string& path : {path_, std::string("/dev/zero")})
        EXPECT_EQ(files_.Read(path, 4, bytes).Reason(), "Not a regular file");
}

}  // namespace tidemark
