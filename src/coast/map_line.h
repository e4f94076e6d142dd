// Lines on the way from a file into the map: fractions of VTP units, clipped and joined.
#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace tidemark {

struct MapPoint {
    double X, Y;  // VTP units, X east and Y south
    bool operator==(const MapPoint&) const = default;
};

// Both edges are part of it.
struct MapRectangle {
    double Left, Top, Right, Bottom;  // VTP units

    bool Contains(MapPoint p) const {
        return p.X >= Left && p.X <= Right && p.Y >= Top && p.Y <= Bottom;
    }
};

struct MapLine {
    std::vector<MapPoint> Points;  // of a ring the first is not repeated
    bool IsRing = false;
    std::optional<bool> LandOnLeft;
    std::string Origin;
};

// The pieces of a line that lie in the rectangle, in their order. A ring of which a part is outside
// comes in open pieces.
std::vector<MapLine> Clipped(const MapLine& line, const MapRectangle& rectangle);

// Lines that go on where another ends become one, and those that come back to their start become
// rings, or lose their points when they only go to one place and back. Lines whose land side is not
// known are turned round for it where needed.
std::vector<MapLine> Joined(std::vector<MapLine> lines);

// The square of the distance.
inline double Square_to_segment(MapPoint place, MapPoint a, MapPoint b) {
    const double dx = b.X - a.X, dy = b.Y - a.Y, length = dx * dx + dy * dy;
    const double along = (place.X - a.X) * dx + (place.Y - a.Y) * dy;
    const double part = length > 0 ? std::clamp(along / length, 0.0, 1.0) : 0;
    const double x = place.X - (a.X + part * dx), y = place.Y - (a.Y + part * dy);
    return x * x + y * y;
}

}  // namespace tidemark
