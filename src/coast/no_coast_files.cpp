// In place of the readers, in a build that has none.
#include "coast/coast_file.h"

namespace tidemark {

CoastFileReading Read_coast_file(const std::filesystem::path&, std::span<const GeoBox>,
                                 const CoastProgress&) {
    CoastFileReading reading;
    reading.Refusal = {"", "this edition of Tidemark reads no coast files"};
    return reading;
}

std::string Remark_text(const std::filesystem::path&, const std::string& remark) {
    return remark;
}

std::string Refusal_text(const std::filesystem::path& path, const CoastRefusal& refusal) {
    const std::u8string name = path.filename().u8string();
    return std::string(name.begin(), name.end()) + ": " + refusal.What;
}

}  // namespace tidemark
