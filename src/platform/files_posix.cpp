// The machine's file system by way of POSIX calls.
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/files.h"
#include "platform/name_case.h"
#include "platform/posix_descriptor.h"

namespace tidemark {

namespace {

std::string Error_text(int error) {
    return std::generic_category().message(error);
}

FileResult Failed(int error) {
    return FileResult::Failed(Error_text(error));
}

// Where `path` leads through symbolic links, so that replacing it replaces the file itself.
std::string Link_target(const std::string& path) {
    std::error_code error;
    const std::filesystem::path target = std::filesystem::canonical(path, error);
    return error ? path : target.string();
}

std::string Folder_of(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == path.npos ? "./" : path.substr(0, slash + 1);
}

// The name of a new file beside `path` that removes itself unless it has been renamed over it.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::string& path)
        : name_(Folder_of(path) + ".tidemark-XXXXXX"), file_(::mkstemp(name_.data())) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (file_was_made_ && !renamed_) ::unlink(name_.c_str());
    }

    Descriptor& Opened() { return file_; }
    bool Rename_over(const std::string& path) {
        renamed_ = ::rename(name_.c_str(), path.c_str()) == 0;
        return renamed_;
    }

  private:
    std::string name_;
    Descriptor file_;
    bool file_was_made_ = file_.Is_open();
    bool renamed_ = false;
};

// A replaced file keeps its permissions; a new one gets those of any new file.
mode_t Permissions_for(const std::string& path) {
    struct stat old {};
    if (::stat(path.c_str(), &old) == 0) return old.st_mode & 07777;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

bool Write_all(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// The rename itself has to reach the disk too; a file system that cannot flush a folder is not a
// reason to call the save failed.
void Flush_folder(const std::string& path) {
    const Descriptor folder(::open(Folder_of(path).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.Is_open()) ::fsync(folder.Number());
}

}  // namespace

// Going over a limit of file size is to be reported like a full disk, not to end the program.
DiskFiles::DiskFiles() {
    std::signal(SIGXFSZ, SIG_IGN);
}

bool DiskFiles::Exists(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0;
}

std::optional<std::string> DiskFiles::Find(const std::string& path) {
    if (Exists(path)) return path;
    const std::string name = std::filesystem::path(path).filename().string();
    std::optional<std::string> found;  // the first in the alphabet, should there be several
    std::error_code unreadable;
    std::filesystem::directory_iterator entry(Folder_of(path), unreadable);
    for (; entry != std::filesystem::directory_iterator(); entry.increment(unreadable)) {
        const std::string candidate = entry->path().filename().string();
        if (Differ_at_most_in_case(candidate, name) && (!found || candidate < *found))
            found = candidate;
    }
    if (found) found->insert(0, path, 0, path.size() - name.size());
    return found;
}

std::string DiskFiles::Full_path(const std::string& path) {
    std::error_code error;
    const std::filesystem::path full = std::filesystem::absolute(path, error);
    return error ? path : full.string();
}

bool DiskFiles::Is_same_file(const std::string& path, const std::string& other) {
    std::error_code not_there;
    return std::filesystem::equivalent(path, other, not_there);
}

std::optional<std::uintmax_t> DiskFiles::Size(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    return static_cast<std::uintmax_t>(status.st_size);
}

FileResult DiskFiles::Delete(const std::string& path) {
    return ::unlink(path.c_str()) == 0 ? FileResult::Done() : Failed(errno);
}

FileResult DiskFiles::Read(const std::string& path, std::uintmax_t limit, std::string& bytes) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file.Is_open() || ::fstat(file.Number(), &status) != 0) return Failed(errno);
    if (S_ISDIR(status.st_mode)) return Failed(EISDIR);
    if (!S_ISREG(status.st_mode)) return FileResult::Failed("Not a regular file");
    if (static_cast<std::uintmax_t>(status.st_size) > limit) return Failed(EFBIG);

    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t length = 0;
    while (length < content.size()) {
        const ssize_t got = ::read(file.Number(), content.data() + length, content.size() - length);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return Failed(errno);
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    content.resize(length);
    bytes = std::move(content);
    return FileResult::Done();
}

FileResult DiskFiles::Replace(const std::string& path, std::string_view bytes) {
    if (path.find('\0') != path.npos) return Failed(EINVAL);
    const std::string target = Link_target(path);
    std::error_code ignored;
    if (std::filesystem::is_directory(target, ignored)) return Failed(EISDIR);
    // A file that may not be written is not replaced behind its owner's back.
    if (Exists(target) && ::access(target.c_str(), W_OK) != 0) return Failed(errno);

    TemporaryFile temporary(target);
    Descriptor& file = temporary.Opened();
    if (!file.Is_open() || !Write_all(file.Number(), bytes) ||
        ::fchmod(file.Number(), Permissions_for(target)) != 0 || ::fsync(file.Number()) != 0 ||
        file.Close() != 0 || !temporary.Rename_over(target))
        return Failed(errno);
    Flush_folder(target);
    return FileResult::Done();
}

}  // namespace tidemark
