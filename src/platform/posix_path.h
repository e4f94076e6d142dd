// Cutting a path of the system's own, whose folders only "/" separates.
#pragma once

#include <string>

namespace tidemark {

// The folder that a path's file is in, with its last slash.
inline std::string Folder_of(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == path.npos ? "./" : path.substr(0, slash + 1);
}

}  // namespace tidemark
