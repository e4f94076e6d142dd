// The reader of shapefiles with any bytes.
//
// An input begins with "R", and what follows is the content of the only record of a file that is
// well otherwise; or with "F" and the size of the .shx in two bytes, and the .shx and the .shp
// follow.
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "coast/shapefile_reader.h"
#include "coast_check.h"
#include "fakes/temporary_folder.h"

namespace tidemark {
namespace {

std::string Big_endian(std::size_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 255);
    return bytes;
}

// Of a file of polygons with that many bytes. Lengths count pairs of bytes.
std::string Header(std::size_t size) {
    std::string header = Big_endian(9994) + std::string(20, '\0') + Big_endian(size / 2);
    header += std::string("\xE8\3\0\0\5\0\0\0", 8);
    header.resize(100);
    return header;
}

// A file that was emptied would be flushed to the disk when it is closed; a new one is not.
void Write(const std::string& path, std::string_view bytes) {
    std::filesystem::remove(path);
    std::ofstream(path, std::ios::binary) << bytes;
}

void Read_files(std::string_view shx, std::string_view shp) {
    static const TemporaryFolder folder;
    Write(folder / "a.shp", shp);
    Write(folder / "a.shx", shx);
    Check_coast_reader([&](CoastRuns& runs) { Read_shapefile(folder / "a.shp", runs); });
}

void Read_record(std::string_view content) {
    content = content.substr(0, content.size() / 2 * 2);
    const std::string length = Big_endian(content.size() / 2);
    std::string shp = Header(108 + content.size()) + Big_endian(1) + length;
    shp += content;
    Read_files(Header(108) + Big_endian(50) + length, shp);
}

void Read_input(std::string_view input) {
    if (input.starts_with('R')) Read_record(input.substr(1));
    if (!input.starts_with('F') || input.size() < 3) return;
    const std::size_t size = static_cast<unsigned char>(input[1]) +
                             std::size_t{256} * static_cast<unsigned char>(input[2]);
    input.remove_prefix(3);
    if (size <= input.size()) Read_files(input.substr(0, size), input.substr(size));
}

}  // namespace
}  // namespace tidemark

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tidemark::Read_input({reinterpret_cast<const char*>(data), size});
    return 0;
}
