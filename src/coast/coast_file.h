// Reading the lines of a coast file that touch the wanted boxes.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "coast/coast_input.h"
#include "coast/coast_line.h"
#include "coast/coast_runs.h"

namespace tidemark {

struct CoastFileReading {
    // One list for each wanted box, in their order. None after a refusal and when it was cancelled.
    std::vector<std::vector<CoastLine>> Lines;

    // What the user is to know of the file although it can be read.
    std::vector<std::string> Remarks;

    std::optional<CoastRefusal> Refusal;
    bool Cancelled = false;
};

// Reads GeoJSON (.geojson, .json), a shapefile (.shp with its .shx), KML (.kml) or GPX (.gpx); the
// case of the extension does not matter. Positions are longitude and latitude in degrees. Damaged
// files are refused as a whole. `progress` is asked now and then on this thread.
//
// Memory: what is kept, and of a shapefile the largest record that may touch a box.
CoastFileReading Read_coast_file(const std::filesystem::path& path, std::span<const GeoBox> wanted,
                                 const CoastProgress& progress = {});

// Shows `watch` all segments of all lines of such a file, in the file's order; nothing is kept. Why
// it was refused, after some of them may have been shown.
std::optional<CoastRefusal> Watch_coast_file(const std::filesystem::path& path,
                                             const SegmentWatch& watch);

// "coast.shp: Remark: what the user is to know"
std::string Remark_text(const std::filesystem::path& path, const std::string& remark);

// "coast.geojson, line 12: what is wrong"
std::string Refusal_text(const std::filesystem::path& path, const CoastRefusal& refusal);

}  // namespace tidemark
