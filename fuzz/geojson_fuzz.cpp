// The reader of GeoJSON with any bytes.
#include <cstdint>

#include "coast/geojson_reader.h"
#include "coast_check.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidemark::Check_coast_text({reinterpret_cast<const char*>(data), size}, tidemark::Read_geojson);
    return 0;
}
