// The machine's file system by way of Windows' calls.
#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/files.h"
#include "platform/win32_handle.h"
#include "platform/win32_text.h"

namespace tidemark {

namespace {

// In the same words as on other systems, where there are any.
std::string Error_text(DWORD error) {
    return std::system_category().default_error_condition(static_cast<int>(error)).message();
}

FileResult Failed(DWORD error) {
    return FileResult::Failed(Error_text(error));
}

FileResult Failed(std::errc error) {
    return FileResult::Failed(std::make_error_code(error).message());
}

bool Is_folder(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

// What a call that fills a buffer and tells the length gives, both the length that it wants and,
// given enough, that of its text; empty when it fails.
template <class Call>
std::wstring Filled(const Call& call) {
    std::wstring text(MAX_PATH, L'\0');
    DWORD length = call(text.data(), static_cast<DWORD>(text.size()));
    if (length > text.size()) {
        text.resize(length);
        length = call(text.data(), length);
    }
    text.resize(std::min<std::size_t>(length, text.size()));
    return text;
}

Handle Open_to_read(const std::wstring& path, DWORD access) {
    return Handle(CreateFileW(path.c_str(), access,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// Where `path` leads through symbolic links, so that replacing it replaces the file itself.
std::wstring Link_target(const std::wstring& path) {
    const Handle file = Open_to_read(path, 0);
    if (!file.Is_open()) return path;
    const std::wstring target = Filled([&](wchar_t* buffer, DWORD size) {
        return GetFinalPathNameByHandleW(file.Get(), buffer, size, FILE_NAME_NORMALIZED);
    });
    return target.empty() ? path : target;
}

// The name of a new file beside `path` that removes itself unless it has been renamed over it.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::wstring& path)
        : name_(Free_name(path)),
          file_(CreateFileW(name_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!file_was_made_ || renamed_) return;
        file_.Close();
        DeleteFileW(name_.c_str());
    }

    Handle& Opened() { return file_; }
    bool Rename_over(const std::wstring& path) {
        renamed_ = MoveFileExW(name_.c_str(), path.c_str(),
                               MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
        return renamed_;
    }

  private:
    // Of this process and this moment, so that one left by a crash is not in the way.
    static std::wstring Free_name(const std::wstring& path) {
        LARGE_INTEGER moment;
        QueryPerformanceCounter(&moment);
        return path.substr(0, path.find_last_of(L"\\/") + 1) + L".tidemark-" +
               std::to_wstring(GetCurrentProcessId()) + L'-' + std::to_wstring(moment.QuadPart);
    }

    std::wstring name_;
    Handle file_;
    bool file_was_made_ = file_.Is_open();
    bool renamed_ = false;
};

// A call to the system reads and writes at most this many bytes.
constexpr std::size_t LargestPart = std::size_t{1} << 30;

DWORD Part_of(std::size_t size) {
    return static_cast<DWORD>(std::min(size, LargestPart));
}

bool Write_all(const Handle& file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!WriteFile(file.Get(), bytes.data(), Part_of(bytes.size()), &written, nullptr))
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

}  // namespace

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

FileResult DiskFiles::Read(const std::string& path, std::uintmax_t limit, std::string& bytes) {
    const std::wstring wide = To_windows(path);
    if (Is_folder(wide)) return Failed(std::errc::is_a_directory);
    const Handle file = Open_to_read(wide, GENERIC_READ);
    if (!file.Is_open()) return Failed(GetLastError());
    if (GetFileType(file.Get()) != FILE_TYPE_DISK) return FileResult::Failed("Not a regular file");
    LARGE_INTEGER size;
    if (!GetFileSizeEx(file.Get(), &size)) return Failed(GetLastError());
    if (static_cast<std::uintmax_t>(size.QuadPart) > limit)
        return Failed(std::errc::file_too_large);

    std::string content(static_cast<std::size_t>(size.QuadPart), '\0');
    std::size_t length = 0;
    while (length < content.size()) {
        DWORD got = 0;
        if (!ReadFile(file.Get(), content.data() + length, Part_of(content.size() - length), &got,
                      nullptr))
            return Failed(GetLastError());
        if (got == 0) break;
        length += got;
    }
    content.resize(length);
    bytes = std::move(content);
    return FileResult::Done();
}

FileResult DiskFiles::Replace(const std::string& path, std::string_view bytes) {
    if (path.find('\0') != path.npos) return Failed(std::errc::invalid_argument);
    const std::wstring target = Link_target(To_windows(Full_path(path)));
    if (Is_folder(target)) return Failed(std::errc::is_a_directory);

    TemporaryFile temporary(target);
    Handle& file = temporary.Opened();
    if (!file.Is_open() || !Write_all(file, bytes) || !FlushFileBuffers(file.Get()) ||
        !file.Close() || !temporary.Rename_over(target))
        return Failed(GetLastError());
    return FileResult::Done();
}

}  // namespace tidemark
