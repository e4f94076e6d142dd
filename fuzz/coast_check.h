// What holds of everything that is read of a coast file, and the boxes that the targets ask for.
#pragma once

#include <array>
#include <cmath>
#include <functional>
#include <sstream>
#include <string>
#include <string_view>

#include "check.h"
#include "coast/coast_input.h"
#include "coast/coast_runs.h"

namespace tidemark {

inline void Check_coast_line(const CoastLine& line) {
    Check(line.Positions.size() >= (line.Ring ? 3U : 2U), "a line has positions enough");
    Check(!line.Origin.empty(), "a line says where it stood");
    for (std::size_t at = 0; at < line.Positions.size(); ++at) {
        const CoastPosition& position = line.Positions[at];
        Check(std::fabs(position.Longitude) <= 900, "a longitude is near its box");
        Check(std::fabs(position.Latitude) <= 90, "a latitude is in degrees");
        Check(at == 0 || position != line.Positions[at - 1], "no position comes twice");
    }
    Check(!line.Ring || line.Positions.front() != line.Positions.back(), "a ring is not repeated");
}

// Reads with a small box, one over the date line and one of the whole world.
inline void Check_coast_reader(const std::function<void(CoastRuns&)>& read) {
    static constexpr std::array boxes{GeoBox{-1, -1, 1, 1}, GeoBox{179, -90, 181, 90},
                                      GeoBox{-180, -90, 180, 90}};
    CoastRuns runs(boxes);
    try {
        read(runs);
    } catch (const CoastRefusal& refusal) {
        Check(!refusal.What.empty(), "a refusal says why");
        return;
    }
    for (const auto& lines : runs.Take())
        for (const CoastLine& line : lines) Check_coast_line(line);
}

// The same of text, which comes in one piece.
inline void Check_coast_text(std::string_view text,
                             const std::function<void(CoastInput&, CoastRuns&)>& read) {
    std::istringstream stream{std::string(text)};
    CoastInput input(stream, text.size());
    Check_coast_reader([&](CoastRuns& runs) { read(input, runs); });
}

}  // namespace tidemark
