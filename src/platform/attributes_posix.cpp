// The attributes of files by way of POSIX calls, and of Linux's for extended attributes.
#include <algorithm>
#include <mutex>
#include <optional>
#include <sstream>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

#include "platform/posix_attributes.h"

namespace tidemark {

namespace {

// What a call that fills a buffer and tells the length gives; nothing when it fails.
template <class Call>
std::optional<std::string> Filled(const Call& call) {
    const ssize_t length = call(nullptr, 0);
    if (length < 0) return std::nullopt;
    std::string text(static_cast<std::size_t>(length), '\0');
    const ssize_t got = call(text.data(), text.size());
    if (got < 0) return std::nullopt;
    text.resize(static_cast<std::size_t>(got));
    return text;
}

// Names that end in a NUL each; none where the file system knows no attributes.
std::vector<std::string> Split(const std::optional<std::string>& names) {
    std::vector<std::string> split;
    std::istringstream rest(names.value_or(""));
    for (std::string name; std::getline(rest, name, '\0');) split.push_back(name);
    return split;
}

bool Copy_extended_attributes(const std::string& path, int made) {
    const auto old_names = Split(Filled(
        [&](char* buffer, std::size_t size) { return ::listxattr(path.c_str(), buffer, size); }));
    const auto made_names = Split(
        Filled([&](char* buffer, std::size_t size) { return ::flistxattr(made, buffer, size); }));

    // A new file may have got an access list from its folder.
    for (const std::string& name : made_names)
        if (name.starts_with("system.posix_acl") && !std::ranges::count(old_names, name) &&
            ::fremovexattr(made, name.c_str()) != 0)
            return false;
    return std::ranges::all_of(old_names, [&](const std::string& name) {
        const auto value = Filled([&](char* buffer, std::size_t size) {
            return ::getxattr(path.c_str(), name.c_str(), buffer, size);
        });
        const auto has = Filled([&](char* buffer, std::size_t size) {
            return ::fgetxattr(made, name.c_str(), buffer, size);
        });
        return value && (has == value ||
                         ::fsetxattr(made, name.c_str(), value->data(), value->size(), 0) == 0);
    });
}

}  // namespace

bool Copy_attributes(const std::string& path, const struct stat& old, int made) {
    constexpr mode_t permissions = 07777;
    struct stat status {};
    if (::fstat(made, &status) != 0) return false;
    // Changing the owner takes permissions away, so it comes first.
    const bool has_owner = status.st_uid == old.st_uid && status.st_gid == old.st_gid;
    if (!has_owner && ::fchown(made, old.st_uid, old.st_gid) != 0) return false;
    const bool has_permissions = ((status.st_mode ^ old.st_mode) & permissions) == 0;
    if (!has_permissions && ::fchmod(made, old.st_mode & permissions) != 0) return false;
    return Copy_extended_attributes(path, made);
}

// The mask can only be read by setting it, which is one thread's turn at a time.
mode_t New_file_permissions() {
    static std::mutex turn;
    const std::lock_guard lock(turn);
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

}  // namespace tidemark
