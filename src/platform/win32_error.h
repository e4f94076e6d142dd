// An error of a call to Windows as a reason in words: the same as on other systems, where there are
// any.
#pragma once

#include <system_error>
#include <windows.h>

#include "platform/files.h"

namespace tidemark {

inline FileResult Failed(DWORD error) {
    return FileResult::Failed(
        std::system_category().default_error_condition(static_cast<int>(error)).message());
}

inline FileResult Failed(std::errc error) {
    return FileResult::Failed(std::make_error_code(error).message());
}

inline FileResult No_regular_file() {
    return FileResult::Failed("Not a regular file");
}

}  // namespace tidemark
