// Replacing a file by way of Windows' calls.
#include <limits>
#include <optional>

#include "platform/replace_file.h"
#include "platform/win32_error.h"
#include "platform/win32_file.h"
#include "platform/win32_text.h"

namespace tidemark {

namespace {

constexpr const wchar_t* TemporaryPrefix = L".tidemark-";

std::wstring Folder_of(const std::wstring& path) {
    return path.substr(0, path.find_last_of(L"\\/") + 1);
}

// Of this process and this moment, so that one left by a crash is not in the way.
std::wstring Free_suffix() {
    LARGE_INTEGER moment;
    QueryPerformanceCounter(&moment);
    return std::to_wstring(GetCurrentProcessId()) + L'-' + std::to_wstring(moment.QuadPart);
}

// A new file in a folder that removes itself unless it has been renamed. As long as it is open
// nobody else can open or remove it.
class TemporaryFile {
  public:
    explicit TemporaryFile(const std::wstring& folder)
        : suffix_(Free_suffix()),
          name_(folder + TemporaryPrefix + suffix_),
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
    const std::wstring& Suffix() const { return suffix_; }
    const std::wstring& Name() const { return name_; }

    bool Rename(const std::wstring& path) {
        const bool done = MoveFileExW(name_.c_str(), path.c_str(),
                                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
        renamed_ = renamed_ || done;
        return done;
    }

  private:
    std::wstring suffix_, name_;
    Handle file_;
    bool file_was_made_ = file_.Is_open();
    bool renamed_ = false;
};

bool Write_all(const Handle& file, std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!WriteFile(file.Get(), bytes.data(), Part_of(bytes.size()), &written, nullptr))
            return false;
        bytes.remove_prefix(written);
    }
    return true;
}

FileResult Fill(Handle& file, std::string_view bytes) {
    LARGE_INTEGER size;
    if (!file.Is_open() || !Write_all(file, bytes) || !SetEndOfFile(file.Get()) ||
        !FlushFileBuffers(file.Get()) || !GetFileSizeEx(file.Get(), &size) || !file.Close())
        return Failed(GetLastError());
    return static_cast<std::size_t>(size.QuadPart) == bytes.size() ? FileResult::Done()
                                                                   : Failed(std::errc::io_error);
}

// Where the file leads through symbolic links, so that replacing it replaces the file itself.
std::wstring Final_path(const Handle& file, const std::wstring& path) {
    const std::wstring target = Filled([&](wchar_t* buffer, DWORD size) {
        return GetFinalPathNameByHandleW(file.Get(), buffer, size, FILE_NAME_NORMALIZED);
    });
    return target.empty() ? path : target;
}

// Whether a temporary file has not been touched for so long that no save is about to rename it: it
// is closed by then, and would not be in the way of removing it.
bool Is_old(const FILETIME& written) {
    constexpr ULONGLONG minute = 60 * 10'000'000ULL;  // in units of 100 ns
    const auto count = [](const FILETIME& time) {
        return (ULONGLONG{time.dwHighDateTime} << 32) | time.dwLowDateTime;
    };
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    return count(written) + minute < count(now);
}

class WindowsReplacement : public Replacement {
  public:
    FileResult Find_target(const std::string& path) override {
        target_ = To_windows(DiskFiles().Full_path(path));
        if (Is_folder(target_)) return Failed(std::errc::is_a_directory);
        const Handle file = Open_to_read(target_, 0);
        if (!file.Is_open()) {
            const DWORD error = GetLastError();
            // A link that leads nowhere is not replaced: where it leads cannot be found out.
            const bool is_free = error == ERROR_FILE_NOT_FOUND &&
                                 GetFileAttributesW(target_.c_str()) == INVALID_FILE_ATTRIBUTES;
            return is_free ? FileResult::Done() : Failed(error);
        }
        if (GetFileType(file.Get()) != FILE_TYPE_DISK) return No_regular_file();
        is_there_ = true;
        if (!GetFileInformationByHandle(file.Get(), &old_)) return Failed(GetLastError());
        target_ = Final_path(file, target_);
        return FileResult::Done();
    }

    FileResult Create_temporary() override {
        temporary_.emplace(Folder_of(target_));
        return temporary_->Opened().Is_open() ? FileResult::Done() : Failed(GetLastError());
    }

    // Access lists come from the folder, as for any new file.
    bool Take_on_attributes() override {
        constexpr DWORD kept =
            FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;
        const DWORD attributes = old_.dwFileAttributes & kept;
        return !is_there_ ||
               (old_.nNumberOfLinks == 1 &&
                (attributes == 0 || SetFileAttributesW(temporary_->Name().c_str(), attributes)));
    }

    FileResult Fill_temporary(std::string_view bytes) override {
        return Fill(temporary_->Opened(), bytes);
    }

    FileResult Fill_target(std::string_view bytes) override {
        Handle file(CreateFileW(target_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        return Fill(file, bytes);
    }

    FileResult Read_target(std::string& bytes) override {
        return DiskFiles().Read(From_windows(target_), std::numeric_limits<std::uintmax_t>::max(),
                                bytes);
    }

    FileResult Rename_over_target() override {
        return temporary_->Rename(target_) ? FileResult::Done() : Failed(GetLastError());
    }

    FileResult Keep_as_copy(std::string& name) override {
        copy_ = target_ + L".old-" + temporary_->Suffix();
        if (!temporary_->Rename(copy_)) return Failed(GetLastError());
        name = From_windows(copy_);
        return FileResult::Done();
    }

    void Remove_copy() override { DeleteFileW(copy_.c_str()); }

    void Remove_leftovers() override {
        const std::wstring folder = Folder_of(target_);
        WIN32_FIND_DATAW found;
        const HANDLE search = FindFirstFileW((folder + TemporaryPrefix + L"*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return;
        do {
            if (Is_old(found.ftLastWriteTime)) DeleteFileW((folder + found.cFileName).c_str());
        } while (FindNextFileW(search, &found));
        FindClose(search);
    }

  private:
    std::wstring target_, copy_;
    BY_HANDLE_FILE_INFORMATION old_{};
    bool is_there_ = false;
    std::optional<TemporaryFile> temporary_;
};

}  // namespace

std::unique_ptr<Replacement> Replacement_on_disk() {
    return std::make_unique<WindowsReplacement>();
}

}  // namespace tidemark
