// What happens after an assembler file has been saved: it is shown, compiled, and the compiled file
// is copied into the simulator's scenery folder.
#pragma once

#include <string>

#include "model/project.h"
#include "platform/platform.h"

namespace tidemark {

struct AfterSaveTask {
    std::string File;  // the assembler file
    bool Notepad = false;
    bool Compile = false;
    bool CopyToFS = false;
    std::string FSFolder;  // with or without its last separator
};

AfterSaveTask LWM_after_save(const Project& project);
AfterSaveTask VTP_after_save(const Project& project);

// Runs the task in its order and ends at the first failure, which it tells with Warn. Programs are
// started without waiting for them; only a copy waits for the compiled file, in bounded time:
//
// - the compiler has failed: nothing is copied, and its status is reported with Warn;
// - the compiler has ended: the file is copied, or given up when it is not there shortly after;
// - the compiler goes on and the file rests: it is copied after a quarter of a minute;
// - the compiler goes on and there is no file, or it grows and grows: it is given up after a
// minute;
// - the user cancels: nothing is copied, and only the status bar says so.
//
// The compiler and the compiled file are found whatever the case of their names.
void After_save(const AfterSaveTask& task, Platform& platform);

}  // namespace tidemark
