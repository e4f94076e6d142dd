// Reading what one cell needs of a coast file of three million positions.
#include <cstdio>
#include <cstdlib>
#include <rapidjson/filereadstream.h>
#include <rapidjson/reader.h>
#include <shapefil.h>

#include <benchmark/benchmark.h>

#include "big_coast.h"
#include "coast/coast_file.h"
#include "fakes/temporary_folder.h"

namespace tidemark {
namespace {

class BigCoast {
  public:
    BigCoast() {
        Write_big_geojson(Path("geojson"));
        Write_big_shapefile(Path("shp"));
    }
    std::string Path(const std::string& extension) const { return folder_ / ("big." + extension); }

  private:
    TemporaryFolder folder_;
};

std::string Path_of_big_coast(const std::string& extension) {
    static const BigCoast coast;
    return coast.Path(extension);
}

void Read_cell(benchmark::State& state, const std::string& extension) {
    const std::string path = Path_of_big_coast(extension);
    for (auto _ : state) {
        const CoastFileReading reading = Read_coast_file(path, std::span(&BigCoastCell, 1));
        if (reading.Refusal || reading.Lines.at(0).empty()) state.SkipWithError("nothing read");
    }
}

struct SumOfNumbers : rapidjson::BaseReaderHandler<rapidjson::UTF8<>, SumOfNumbers> {
    double Sum = 0;
    bool Double(double value) {
        Sum += value;
        return true;
    }
};

void Parse_bare_json(benchmark::State& state) {
    const std::string path = Path_of_big_coast("geojson");
    static char buffer[65536];
    for (auto _ : state) {
        std::FILE* const file = std::fopen(path.c_str(), "rb");
        rapidjson::FileReadStream stream(file, buffer, sizeof buffer);
        SumOfNumbers sum;
        rapidjson::Reader().Parse(stream, sum);
        benchmark::DoNotOptimize(sum.Sum);
        std::fclose(file);
    }
}

void Read_bare_shapes(benchmark::State& state) {
    const std::string path = Path_of_big_coast("shp");
    for (auto _ : state) {
        SHPInfo* const file = SHPOpen(path.c_str(), "rb");
        SHPSetFastModeReadObject(file, 1);
        double sum = 0;
        for (int record = 0; record < file->nRecords; ++record) {
            SHPObject* const shape = SHPReadObject(file, record);
            for (int at = 0; at < shape->nVertices; ++at) sum += shape->padfX[at];
            SHPDestroyObject(shape);
        }
        benchmark::DoNotOptimize(sum);
        SHPClose(file);
    }
}

// A whole program, which writes what it cuts out.
void Clip_with_ogr2ogr(benchmark::State& state, const std::string& extension) {
    const std::string path = Path_of_big_coast(extension);
    char box[128];
    std::snprintf(box, sizeof box, "%.9g %.9g %.9g %.9g ", BigCoastCell.West, BigCoastCell.South,
                  BigCoastCell.East, BigCoastCell.North);
    const std::string command = "rm -f " + path + ".out && ogr2ogr -f GeoJSON -clipsrc " + box +
                                path + ".out " + path + " 2>/dev/null";
    for (auto _ : state)
        if (std::system(command.c_str()) != 0) state.SkipWithError("gdal-bin is not there");
}

const bool registered = [] {
    const std::string json = "one cell of 76 MB of GeoJSON [300 ms]|";
    const std::string shapes = "one cell of a 48 MB shapefile [70 ms]|";
    const auto add = [](const std::string& name, auto measured) {
        benchmark::RegisterBenchmark(name.c_str(), measured)->UseRealTime();
    };
    add(json + "tidemark", [](benchmark::State& state) { Read_cell(state, "geojson"); });
    add(json + "bare RapidJSON", Parse_bare_json);
    add(json + "ogr2ogr -clipsrc",
        [](benchmark::State& state) { Clip_with_ogr2ogr(state, "geojson"); });
    add(shapes + "tidemark", [](benchmark::State& state) { Read_cell(state, "shp"); });
    add(shapes + "bare shapelib", Read_bare_shapes);
    add(shapes + "ogr2ogr -clipsrc",
        [](benchmark::State& state) { Clip_with_ogr2ogr(state, "shp"); });
    return true;
}();

}  // namespace
}  // namespace tidemark
