// Rows of the table with the memory that reading one cell of each big coast file takes.
#include <cstdio>
#include <cstdlib>

#include "big_coast.h"
#include "coast/coast_file.h"
#include "fakes/temporary_folder.h"
#include "process_memory.h"

namespace tidemark {
namespace {

// Run in a process of its own, which has never held the whole coast.
int Read_cell(const char* what, const char* path) {
    const CoastFileReading reading = Read_coast_file(path, std::span(&BigCoastCell, 1));
    if (reading.Refusal || reading.Lines.at(0).empty()) return 1;
    std::printf("| resident while reading one cell of %s | 64 MiB | %.0f MiB |  |  |\n", what,
                Process_MiB("VmHWM:"));
    return 0;
}

int Print_rows(const std::string& program) {
    const TemporaryFolder folder;
    const std::string json = folder / "big.geojson", shapes = folder / "big.shp";
    Write_big_geojson(json);
    Write_big_shapefile(shapes);
    const std::string rows = program + " '76 MB of GeoJSON' " + json + " && " + program +
                             " 'a 48 MB shapefile' " + shapes;
    return std::system(rows.c_str()) == 0 ? 0 : 1;
}

}  // namespace
}  // namespace tidemark

int main(int argc, char** argv) {
    return argc == 3 ? tidemark::Read_cell(argv[1], argv[2]) : tidemark::Print_rows(argv[0]);
}
