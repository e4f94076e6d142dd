// The recovery file's reader with any bytes.
#include <cstdint>
#include <string>
#include <string_view>

#include "app/recovery_file.h"
#include "check.h"

namespace tidemark {
namespace {

// A file that is read whole is what was written of its work.
void Read_and_write(std::string_view bytes) {
    const RecoveryFileReading reading = Read_recovery_file(bytes);
    if (reading.State != RecoveryFileState::Whole) return;
    const UnsavedWork& read = reading.Unsaved;
    Check(!Unsavable_text(*read.Work), "what was read can be written");
    const std::string written = Recovery_file_bytes(read.ProjectPath, read.Time, *read.Work);
    Check(Read_recovery_file(written).State == RecoveryFileState::Whole, "it can be read again");
}

// Of a whole file, changed in one place.
void Read_damaged(std::uint8_t place, std::uint8_t change) {
    static const std::string whole = Recovery_file_bytes("/maps/coast.TDM", "now", Project());
    std::string damaged = whole;
    char& byte = damaged[place * whole.size() / 256];
    byte = static_cast<char>(byte ^ change);
    const bool is_whole = Read_recovery_file(damaged).State == RecoveryFileState::Whole;
    Check(is_whole == (change == 0), "every damage is seen");
}

}  // namespace
}  // namespace tidemark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    tidemark::Read_and_write(bytes);
    // Behind the checksum, which no change of the bytes would get past.
    tidemark::Read_and_write(tidemark::With_checksum(std::string(bytes)));
    if (size > 1) tidemark::Read_damaged(data[size / 3], data[size / 2]);
    return 0;
}
