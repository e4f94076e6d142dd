// The machine's file system by way of POSIX calls.
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <limits>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/files.h"
#include "platform/name_case.h"
#include "platform/posix_descriptor.h"
#include "platform/posix_error.h"
#include "platform/posix_path.h"

namespace tidemark {

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

namespace {

// Reads `content.size()` bytes, or as many as there are.
bool Read_bytes(const Descriptor& file, std::string& content) {
    std::size_t length = 0;
    while (length < content.size()) {
        const ssize_t got = ::read(file.Number(), content.data() + length, content.size() - length);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return false;
        if (got == 0) break;
        length += static_cast<std::size_t>(got);
    }
    content.resize(length);
    return true;
}

// Reads at most `most` bytes of a file that has `limit` at most.
FileResult Read_file(const std::string& path, std::uintmax_t limit, std::uintmax_t most,
                     std::string& bytes) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status {};
    if (!file.Is_open() || ::fstat(file.Number(), &status) != 0) return Failed(errno);
    if (S_ISDIR(status.st_mode)) return Failed(EISDIR);
    if (!S_ISREG(status.st_mode)) return No_regular_file();
    const auto size = static_cast<std::uintmax_t>(status.st_size);
    if (size > limit) return Failed(EFBIG);

    std::string content(static_cast<std::size_t>(std::min(size, most)), '\0');
    if (!Read_bytes(file, content)) return Failed(errno);
    bytes = std::move(content);
    return FileResult::Done();
}

}  // namespace

FileResult DiskFiles::Read(const std::string& path, std::uintmax_t limit, std::string& bytes) {
    return Read_file(path, limit, limit, bytes);
}

FileResult DiskFiles::Read_start(const std::string& path, std::uintmax_t most, std::string& bytes) {
    return Read_file(path, std::numeric_limits<std::uintmax_t>::max(), most, bytes);
}

}  // namespace tidemark
