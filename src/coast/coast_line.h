// What a file of coastlines gives: lines in degrees, cut to the boxes that were asked for.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tidemark {

// Degrees, east and north positive. The longitude is that near the box which the position was kept
// for, so it may be beyond +/-180 where a line crosses the date line.
struct CoastPosition {
    double Longitude = 0, Latitude = 0;
    bool operator==(const CoastPosition&) const = default;
};

// Degrees, its edges are part of it: West <= East <= West + 360 and South <= North. It may reach
// over the date line, from either side: West from -540, East up to 540.
struct GeoBox {
    double West, South, East, North;
};

// A line of two or more positions, no two the same one after the other. An open line is a run: the
// consecutive segments that touch the box, so its ends are the first positions outside on either
// side unless the line ends in the box. Positions between them may be outside too.
struct CoastLine {
    std::vector<CoastPosition> Positions;

    // Wholly in the box, three or more positions, and closes from the last one to the first.
    bool Ring = false;

    // Of what came from a polygon: on which side of the way from one position to the next the
    // polygon's inside lies. A hole counts as outside. Nothing of other lines and of rings without
    // area.
    std::optional<bool> LandOnLeft;

    std::string Origin;  // in the file: "line 12", "line 12, feature 3", "record 3"
};

}  // namespace tidemark
