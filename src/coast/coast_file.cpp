#include "coast/coast_file.h"

#include <fstream>
#include <new>
#include <system_error>

#include "coast/geojson_reader.h"
#include "coast/kml_gpx_reader.h"
#include "coast/shapefile_reader.h"

namespace tidemark {

namespace fs = std::filesystem;

namespace {

using TextReader = void (*)(CoastInput& input, CoastRuns& runs);

std::string Text_of(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string Extension_in_lower_case(const fs::path& path) {
    std::string extension = Text_of(path.extension());
    for (char& letter : extension)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return extension;
}

void Read_text_file(const fs::path& path, TextReader read, CoastRuns& runs,
                    const CoastProgress& progress) {
    std::error_code gone;
    std::ifstream stream(path, std::ios::binary);
    if (!stream) throw CoastRefusal{"", "it cannot be opened"};
    CoastInput input(stream, fs::file_size(path, gone), progress);
    read(input, runs);
}

void Read_by_extension(const fs::path& path, CoastRuns& runs, const CoastProgress& progress) {
    const std::string extension = Extension_in_lower_case(path);
    if (extension == ".shp") return Read_shapefile(path, runs, progress);
    if (extension == ".kml") return Read_text_file(path, Read_kml, runs, progress);
    if (extension == ".gpx") return Read_text_file(path, Read_gpx, runs, progress);
    if (extension == ".geojson" || extension == ".json")
        return Read_text_file(path, Read_geojson, runs, progress);
    if (extension == ".kmz")
        throw CoastRefusal{"", "it is zipped; unzip it first and choose the .kml file from it"};
    throw CoastRefusal{"", "its name does not end in .geojson, .json, .shp, .kml or .gpx"};
}

// Pipes and devices would make the reading wait.
void Check_is_file(const fs::path& path) {
    std::error_code gone;
    const fs::file_status status = fs::status(path, gone);
    if (!fs::exists(status)) throw CoastRefusal{"", "it is not there"};
    if (!fs::is_regular_file(status)) throw CoastRefusal{"", "it is no file"};
}

void Read_into(const fs::path& path, CoastRuns& runs, const CoastProgress& progress) {
    Check_is_file(path);
    Read_by_extension(path, runs, progress);
    if (runs.Kept() > 0) return;
    std::string why = "there is no line or polygon in it";
    for (const std::string& remark : runs.Remarks()) why += "; " + remark;
    throw CoastRefusal{"", why};
}

}  // namespace

CoastFileReading Read_coast_file(const fs::path& path, std::span<const GeoBox> wanted,
                                 const CoastProgress& progress) {
    CoastFileReading reading;
    try {
        CoastRuns runs(wanted);
        Read_into(path, runs, progress);
        reading.Lines = runs.Take();
        reading.Remarks = runs.Remarks();
    } catch (const CoastCancelled&) {
        reading.Cancelled = true;
    } catch (const CoastRefusal& refusal) {
        reading.Refusal = refusal;
    } catch (const std::bad_alloc&) {
        reading.Refusal = {"", "what it holds of the wanted area does not fit into memory"};
    }
    return reading;
}

std::optional<CoastRefusal> Watch_coast_file(const fs::path& path, const SegmentWatch& watch) {
    try {
        CoastRuns runs(watch);
        Read_into(path, runs, {});
    } catch (const CoastRefusal& refusal) {
        return refusal;
    } catch (const std::bad_alloc&) {
        return CoastRefusal{"", "a part of it does not fit into memory"};
    }
    return std::nullopt;
}

std::string Remark_text(const fs::path& path, const std::string& remark) {
    return Text_of(path.filename()) + ": Remark: " + remark;
}

std::string Refusal_text(const fs::path& path, const CoastRefusal& refusal) {
    return Text_of(path.filename()) + (refusal.Where.empty() ? "" : ", " + refusal.Where) + ": " +
           refusal.What;
}

}  // namespace tidemark
