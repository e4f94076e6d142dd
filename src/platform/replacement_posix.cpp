// Replacing a file by way of POSIX calls.
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "platform/posix_attributes.h"
#include "platform/posix_descriptor.h"
#include "platform/posix_error.h"
#include "platform/posix_path.h"
#include "platform/posix_temporary_file.h"
#include "platform/replace_file.h"

namespace tidemark {

namespace {

bool Write_all(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

FileResult Fill(Descriptor& file, std::string_view bytes) {
    struct stat status {};
    const auto length = static_cast<off_t>(bytes.size());
    if (!file.Is_open() || !Write_all(file.Number(), bytes) ||
        ::ftruncate(file.Number(), length) != 0 || ::fsync(file.Number()) != 0 ||
        ::fstat(file.Number(), &status) != 0 || file.Close() != 0)
        return Failed(errno);
    return status.st_size == length ? FileResult::Done() : Failed(EIO);
}

// The rename itself has to reach the disk too; a file system that cannot flush a folder is not a
// reason to call the save failed.
void Flush_folder(const std::string& path) {
    const Descriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Is_open()) ::fsync(folder.Number());
}

// Where a path leads whose file is not there: through links to a name that is free.
std::string End_of_links(std::string path) {
    namespace fs = std::filesystem;
    constexpr int most = 40;  // as the system itself goes
    std::error_code no_link;
    for (int links = 0; links < most; ++links) {
        const fs::path next = fs::read_symlink(path, no_link);
        if (no_link) break;
        path = next.is_absolute() ? next.string() : Folder_of(path) + next.string();
    }
    return path;
}

// A name that is seen, that says whose copy it is, and that no other copy has. That of a long name
// is cut to what file systems take.
std::string Name_of_copy(const std::string& path, const std::string& suffix) {
    constexpr std::size_t longest = 200;
    const std::string folder = Folder_of(path);
    const std::string name = std::filesystem::path(path).filename().string();
    return folder + name.substr(0, longest) + ".old-" + suffix;
}

class PosixReplacement : public Replacement {
  public:
    FileResult Find_target(const std::string& path) override {
        target_ = path;
        if (::stat(path.c_str(), &old_) != 0) {
            if (errno != ENOENT) return Failed(errno);
            target_ = End_of_links(path);
            return FileResult::Done();
        }
        is_there_ = true;
        if (S_ISDIR(old_.st_mode)) return Failed(EISDIR);
        if (!S_ISREG(old_.st_mode)) return No_regular_file();
        // A file that may not be written is not replaced behind its owner's back.
        if (::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) return Failed(errno);
        std::error_code error;
        target_ = std::filesystem::canonical(path, error).string();
        return error ? FileResult::Failed(error.message()) : FileResult::Done();
    }

    FileResult Create_temporary() override {
        temporary_.emplace(Folder_of(target_));
        return temporary_->Opened().Is_open() ? FileResult::Done() : Failed(errno);
    }

    bool Take_on_attributes() override {
        const int made = temporary_->Opened().Number();
        if (!is_there_) {
            // Where permissions cannot be set, the file has those of its file system.
            static_cast<void>(::fchmod(made, New_file_permissions()));
            return true;
        }
        if (old_.st_nlink == 1 && Copy_attributes(target_, old_, made)) return true;
        static_cast<void>(::fchmod(made, S_IRUSR | S_IWUSR));  // as half of them are set
        return false;
    }

    FileResult Fill_temporary(std::string_view bytes) override {
        return Fill(temporary_->Opened(), bytes);
    }

    FileResult Fill_target(std::string_view bytes) override {
        Descriptor file(::open(target_.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        return Fill(file, bytes);
    }

    FileResult Read_target(std::string& bytes) override {
        return DiskFiles().Read(target_, std::numeric_limits<std::uintmax_t>::max(), bytes);
    }

    FileResult Rename_over_target() override {
        if (!temporary_->Rename(target_)) return Failed(errno);
        Flush_folder(Folder_of(target_));
        return FileResult::Done();
    }

    FileResult Keep_as_copy(std::string& name) override {
        copy_ = Name_of_copy(target_, temporary_->Suffix());
        if (!temporary_->Rename(copy_)) return Failed(errno);
        Flush_folder(Folder_of(target_));
        name = copy_;
        return FileResult::Done();
    }

    void Remove_copy() override { ::unlink(copy_.c_str()); }
    void Remove_leftovers() override { Remove_left_temporary_files(Folder_of(target_)); }

  private:
    std::string target_, copy_;
    struct stat old_ {};
    bool is_there_ = false;
    std::optional<TemporaryFile> temporary_;
};

}  // namespace

std::unique_ptr<Replacement> Replacement_on_disk() {
    return std::make_unique<PosixReplacement>();
}

}  // namespace tidemark
