#include "model/path_text.h"

namespace tidemark {

namespace {

std::size_t Folder_length(std::string_view path) {
    const auto separator = path.find_last_of("\\/");
    return separator == path.npos ? 0 : separator + 1;
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

}  // namespace tidemark
