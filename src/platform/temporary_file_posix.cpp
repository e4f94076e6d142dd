#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/posix_temporary_file.h"

namespace tidemark {

namespace {

constexpr std::string_view Prefix = ".tidemark-";
constexpr std::string_view Places = "XXXXXX";

bool Is_temporary_name(std::string_view name) {
    return name.starts_with(Prefix) && name.size() == Prefix.size() + Places.size() &&
           std::ranges::all_of(name.substr(Prefix.size()),
                               [](unsigned char c) { return std::isalnum(c); });
}

bool Is_linked_file(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink > 0;
}

void Remove_if_left(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.Is_open() && Is_linked_file(file.Number()) &&
        ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0)
        ::unlink(path.c_str());
}

}  // namespace

// A file that another save's clean-up takes before it is held is made again.
TemporaryFile::TemporaryFile(const std::string& folder) : file_(-1), lock_(-1) {
    do {
        name_ = folder + std::string(Prefix) + std::string(Places);
        file_ = Descriptor(::mkostemp(name_.data(), O_CLOEXEC));
    } while (file_.Is_open() && !Hold());
}

TemporaryFile::~TemporaryFile() {
    if (lock_.Is_open() && !renamed_) ::unlink(name_.c_str());
}

// A lock stays until the last descriptor is closed, and closing the first one reports its errors
// all the same. Where the file system knows no locks, no clean-up gets one either.
bool TemporaryFile::Hold() {
    lock_ = Descriptor(::fcntl(file_.Number(), F_DUPFD_CLOEXEC, 0));
    const bool is_taken = ::flock(lock_.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    return !is_taken && Is_linked_file(file_.Number());
}

std::string TemporaryFile::Suffix() const {
    return name_.substr(name_.size() - Places.size());
}

bool TemporaryFile::Rename(const std::string& path) {
    const bool done = ::rename(name_.c_str(), path.c_str()) == 0;
    renamed_ = renamed_ || done;
    return done;
}

void Remove_left_temporary_files(const std::string& folder) {
    // Of the many names that may be there none is made a path of before it is known to be ours.
    const std::unique_ptr<DIR, int (*)(DIR*)> entries(::opendir(folder.c_str()), &::closedir);
    if (!entries) return;
    while (const dirent* const entry = ::readdir(entries.get()))
        if (Is_temporary_name(entry->d_name)) Remove_if_left(folder + entry->d_name);
}

}  // namespace tidemark
