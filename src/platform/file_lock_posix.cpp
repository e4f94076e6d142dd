// Locks by way of Linux's locks on whole files.
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/file_lock.h"
#include "platform/posix_descriptor.h"
#include "platform/posix_error.h"

namespace tidemark {

namespace {

struct HeldDescriptor : HeldFile {
    explicit HeldDescriptor(int number) : file(number) {}
    Descriptor file;
};

// Whether a file that was open is still the one of that name: its holder may have removed it.
bool Is_still_at(const std::string& path, int descriptor) {
    struct stat named {};
    struct stat opened {};
    return ::stat(path.c_str(), &named) == 0 && ::fstat(descriptor, &opened) == 0 &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

}  // namespace

FileLock::FileLock(const std::string& path) : path_(path) {
    constexpr mode_t owner_only = 0600;
    for (;;) {
        auto held = std::make_unique<HeldDescriptor>(
            ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, owner_only));
        const int file = held->file.Number();
        if (!held->file.Is_open() || ::flock(file, LOCK_EX | LOCK_NB) != 0) {
            if (errno != EWOULDBLOCK) reason_ = Failed(errno).Reason();
            return;
        }
        if (!Is_still_at(path, file)) continue;
        held_ = std::move(held);
        return;
    }
}

// Removed while it is held: whoever opens it afterwards opens a new one.
void FileLock::Remove() {
    if (Is_held()) ::unlink(path_.c_str());
    held_ = nullptr;
}

}  // namespace tidemark
