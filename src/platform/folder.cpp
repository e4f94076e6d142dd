#include "platform/folder.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tidemark {

namespace {

namespace fs = std::filesystem;

fs::path Path_of(const std::string& text) {
    return {std::u8string(text.begin(), text.end())};
}

std::string Text_of(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

FileResult Result(const std::error_code& error) {
    return error ? FileResult::Failed(error.default_error_condition().message())
                 : FileResult::Done();
}

}  // namespace

FileResult Make_folder(const std::string& path) {
    std::error_code error;
    const bool is_new = fs::create_directories(Path_of(path), error);
    if (is_new) fs::permissions(Path_of(path), fs::perms::owner_all, error);
    return Result(error);
}

std::vector<std::string> Names_in(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code unreadable;
    fs::directory_iterator entry(Path_of(folder), unreadable);
    for (; entry != fs::directory_iterator(); entry.increment(unreadable))
        names.push_back(Text_of(entry->path().filename()));
    std::ranges::sort(names);
    return names;
}

FileResult Rename_file(const std::string& from, const std::string& to) {
    std::error_code error;
    fs::rename(Path_of(from), Path_of(to), error);
    return Result(error);
}

}  // namespace tidemark
