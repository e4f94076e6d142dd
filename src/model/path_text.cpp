#include "model/path_text.h"

#include <algorithm>

namespace tidemark {

namespace {

std::size_t Folder_length(std::string_view path) {
    const auto separator = path.find_last_of("\\/");
    return separator == path.npos ? 0 : separator + 1;
}

constexpr bool Is_of_Windows(std::string_view path) {
    return path.starts_with('\\') || path.substr(1).starts_with(":\\") ||
           path.substr(1).starts_with(":/");
}

}  // namespace

std::string Last_part(std::string_view path) {
    return std::string(path.substr(Folder_length(path)));
}

std::string Folder_part(std::string_view path) {
    return std::string(path.substr(0, Folder_length(path)));
}

bool Is_full_path(std::string_view path) {
    return path.starts_with('/') || path.starts_with('\\') || path.substr(0, 2).ends_with(':');
}

bool Is_path_of_another_system(std::string_view path, std::string_view own) {
    if (Is_of_Windows(own)) return path.starts_with('/');
    return !path.empty() && Is_of_Windows(path);
}

bool Has_extension(std::string_view path, std::string_view extension) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; };
    return path.size() >= extension.size() &&
           std::ranges::equal(path.substr(path.size() - extension.size()), extension, {}, lower,
                              lower);
}

}  // namespace tidemark
