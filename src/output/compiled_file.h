// The file that the scenery compiler makes of an assembler file.
#pragma once

#include <optional>
#include <string>

#include "platform/files.h"
#include "platform/patience.h"
#include "platform/programs.h"

namespace tidemark {

// The compiled file of `assembler_file` as it is there now, whatever the case of its name; nothing
// when there is none, nor when the two names differ in their case at most: to the compiler's own
// system they are one file.
std::optional<std::string> Find_compiled_file(const std::string& assembler_file, Files& files);

struct CompiledFile {
    std::optional<std::string> Path;  // when it is complete
    std::string Problem;              // otherwise what the warning says; empty: none
};

// Waits until the compiled file is complete, and gives up when nothing more is to be expected (see
// after_save.h for how long that takes) or the user cancels. `compiler` is the compiler that was
// started, null when none was: then what is there is complete.
CompiledFile Await_compiled_file(const std::string& assembler_file, RunningProgram* compiler,
                                 Files& files, Patience& patience);

}  // namespace tidemark
