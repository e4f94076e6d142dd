// The machine's file system by way of Windows' calls.
#include <algorithm>
#include <filesystem>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

#include "platform/files.h"
#include "platform/win32_error.h"
#include "platform/win32_file.h"
#include "platform/win32_text.h"

namespace tidemark {

DiskFiles::DiskFiles() = default;

bool DiskFiles::Exists(const std::string& path) {
    return GetFileAttributesW(To_windows(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

// The file system itself does not tell names apart that differ only in case.
std::optional<std::string> DiskFiles::Find(const std::string& path) {
    return Exists(path) ? std::optional(path) : std::nullopt;
}

std::string DiskFiles::Full_path(const std::string& path) {
    const std::wstring wide = To_windows(path);
    const std::wstring full = Filled([&](wchar_t* buffer, DWORD size) {
        return GetFullPathNameW(wide.c_str(), size, buffer, nullptr);
    });
    return full.empty() ? path : From_windows(full);
}

bool DiskFiles::Is_same_file(const std::string& path, const std::string& other) {
    std::error_code not_there;
    return std::filesystem::equivalent(To_windows(path), To_windows(other), not_there);
}

std::optional<std::uintmax_t> DiskFiles::Size(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExW(To_windows(path).c_str(), GetFileExInfoStandard, &data))
        return std::nullopt;
    return (std::uintmax_t{data.nFileSizeHigh} << 32) | data.nFileSizeLow;
}

FileResult DiskFiles::Delete(const std::string& path) {
    return DeleteFileW(To_windows(path).c_str()) ? FileResult::Done() : Failed(GetLastError());
}

namespace {

// Reads `content.size()` bytes, or as many as there are.
bool Read_bytes(const Handle& file, std::string& content) {
    std::size_t length = 0;
    while (length < content.size()) {
        DWORD got = 0;
        if (!ReadFile(file.Get(), content.data() + length, Part_of(content.size() - length), &got,
                      nullptr))
            return false;
        if (got == 0) break;
        length += got;
    }
    content.resize(length);
    return true;
}

// Reads at most `most` bytes of a file that has `limit` at most.
FileResult Read_file(const std::string& path, std::uintmax_t limit, std::uintmax_t most,
                     std::string& bytes) {
    const std::wstring wide = To_windows(path);
    if (Is_folder(wide)) return Failed(std::errc::is_a_directory);
    const Handle file = Open_to_read(wide, GENERIC_READ);
    if (!file.Is_open()) return Failed(GetLastError());
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) return No_regular_file();
    LARGE_INTEGER length;
    if (!GetFileSizeEx(file.Get(), &length)) return Failed(GetLastError());
    const auto size = static_cast<std::uintmax_t>(length.QuadPart);
    if (size > limit) return Failed(std::errc::file_too_large);

    std::string content(static_cast<std::size_t>(std::min(size, most)), '\0');
    if (!Read_bytes(file, content)) return Failed(GetLastError());
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
