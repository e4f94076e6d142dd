// An error of a POSIX call as a reason in words.
#pragma once

#include <system_error>

#include "platform/files.h"

namespace tidemark {

inline FileResult Failed(int error) {
    return FileResult::Failed(std::generic_category().message(error));
}

inline FileResult No_regular_file() {
    return FileResult::Failed("Not a regular file");
}

}  // namespace tidemark
