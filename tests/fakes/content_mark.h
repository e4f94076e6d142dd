// Tells two projects apart by a short text.
#pragma once

#include <functional>
#include <string>

#include "model/project_file.h"

namespace tidemark {

inline std::string Content_mark(const Project& project) {
    return std::to_string(std::hash<std::string>()(Project_bytes(project, "")));
}

}  // namespace tidemark
