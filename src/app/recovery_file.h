// The file that keeps work which is not saved yet, for the case that the editor does not get to it.
//
// Lines that end with CR LF, and the project file's bytes after them:
//
//   1   "Tidemark recovery 1"
//   2   the checksum of all that follows: 16 hexadecimal digits (FNV-1a of 64 bits)
//   3   the project's file; empty when it has none, or one that cannot stand on a line
//   4   when this was written
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "model/project.h"
#include "model/project_file.h"

namespace tidemark {

// No recovery file reaches this size in bytes.
inline constexpr std::uintmax_t MaxRecoveryFileSize = MaxProjectFileSize + MaxTextLength + 1000;

struct UnsavedWork {
    std::string ProjectPath;  // the file it was opened from or saved to last; may be empty
    std::string Time;         // date and time, as Clock::Now_text
    std::unique_ptr<Project> Work;
};

enum class RecoveryFileState { Whole, Damaged, Newer };  // newer: of a later version than this

struct RecoveryFileReading {
    RecoveryFileState State = RecoveryFileState::Damaged;
    UnsavedWork Unsaved;  // of a whole one
};

// Every text of the project must be savable (Unsavable_text).
std::string Recovery_file_bytes(const std::string& project_path, std::string_view time,
                                const Project& work);

// The file that has this content behind its first two lines.
std::string With_checksum(const std::string& content);

// Takes any bytes at all.
RecoveryFileReading Read_recovery_file(std::string_view bytes);

}  // namespace tidemark
