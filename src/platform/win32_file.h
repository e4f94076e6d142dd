// Files of Windows, as what reads and what replaces them opens them.
#pragma once

#include <algorithm>
#include <string>

#include "platform/win32_handle.h"

namespace tidemark {

inline bool Is_folder(const std::wstring& path) {
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

inline Handle Open_to_read(const std::wstring& path, DWORD access) {
    return Handle(CreateFileW(path.c_str(), access,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// A call to the system reads and writes at most this many bytes.
inline constexpr std::size_t LargestPart = std::size_t{1} << 30;

inline DWORD Part_of(std::size_t size) {
    return static_cast<DWORD>(std::min(size, LargestPart));
}

}  // namespace tidemark
