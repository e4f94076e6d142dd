// Locks by way of files that Windows lets nobody else open.
#include <utility>

#include "platform/file_lock.h"
#include "platform/win32_error.h"
#include "platform/win32_handle.h"
#include "platform/win32_text.h"

namespace tidemark {

namespace {

struct HeldHandle : HeldFile {
    explicit HeldHandle(HANDLE handle) : file(handle) {}
    Handle file;
};

}  // namespace

FileLock::FileLock(const std::string& path) : path_(path) {
    auto held = std::make_unique<HeldHandle>(CreateFileW(To_windows(path).c_str(), GENERIC_WRITE, 0,
                                                         nullptr, OPEN_ALWAYS,
                                                         FILE_ATTRIBUTE_NORMAL, nullptr));
    const DWORD error = GetLastError();
    if (held->file.Is_open())
        held_ = std::move(held);
    else if (error != ERROR_SHARING_VIOLATION)
        reason_ = Failed(error).Reason();
}

// Another process may be faster and take it in between; the file then stays.
void FileLock::Remove() {
    const bool was_held = std::exchange(held_, nullptr) != nullptr;
    if (was_held) DeleteFileW(To_windows(path_).c_str());
}

}  // namespace tidemark
