// The readers of KML and GPX with any bytes.
#include <cstdint>

#include "coast/kml_gpx_reader.h"
#include "coast_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    tidemark::Check_coast_text(text, tidemark::Read_kml);
    tidemark::Check_coast_text(text, tidemark::Read_gpx);
    return 0;
}
