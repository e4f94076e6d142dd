#include "coast/map_line.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <map>
#include <utility>

namespace tidemark {

namespace {

// Ends that are nearer to each other than an eighth of a unit are the same place.
constexpr double PlacesToAUnit = 8;
using Place = std::array<std::int64_t, 2>;

Place Place_of(MapPoint p) {
    return {std::llround(p.X * PlacesToAUnit), std::llround(p.Y * PlacesToAUnit)};
}

// The part of the segment that is in the rectangle, from and to in parts of it; false: none is.
bool Clip_segment(MapPoint a, MapPoint b, const MapRectangle& r, double& from, double& to) {
    from = 0;
    to = 1;
    const double dx = b.X - a.X, dy = b.Y - a.Y;
    const std::array<std::pair<double, double>, 4> sides{
        {{-dx, a.X - r.Left}, {dx, r.Right - a.X}, {-dy, a.Y - r.Top}, {dy, r.Bottom - a.Y}}};
    for (const auto& [outwards, room] : sides) {
        if (outwards == 0 && room < 0) return false;
        if (outwards < 0) from = std::max(from, room / outwards);
        if (outwards > 0) to = std::min(to, room / outwards);
    }
    return from < to;
}

// A point of a side lies on it to the bit.
MapPoint Between(MapPoint a, MapPoint b, double part, const MapRectangle& r) {
    return {std::clamp(a.X + part * (b.X - a.X), r.Left, r.Right),
            std::clamp(a.Y + part * (b.Y - a.Y), r.Top, r.Bottom)};
}

class Joining {
  public:
    explicit Joining(std::vector<MapLine> lines) : lines_(std::move(lines)) {
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            if (lines_[i].IsRing || lines_[i].Points.empty()) continue;
            ends_.emplace(Place_of(lines_[i].Points.front()), i);
            ends_.emplace(Place_of(lines_[i].Points.back()), i);
        }
    }

    std::vector<MapLine> All() {
        std::vector<MapLine> joined;
        taken_.resize(lines_.size());
        for (std::size_t i = 0; i < lines_.size(); ++i) {
            if (taken_[i] || lines_[i].Points.empty()) continue;
            taken_[i] = true;
            MapLine line = std::move(lines_[i]);
            if (!line.IsRing) Lengthen(line);
            joined.push_back(std::move(line));
        }
        return joined;
    }

  private:
    // At its end, then at its start.
    void Lengthen(MapLine& line) {
        while (!Closes(line) && Append_next(line)) {
        }
        if (!Closes(line)) {
            Turn(line);
            while (!Closes(line) && Append_next(line)) {
            }
            Turn(line);
        }
        if (!Closes(line)) return;
        line.Points.pop_back();
        line.IsRing = line.Points.size() > 2;
        if (!line.IsRing) line.Points.clear();  // there and straight back is no coast
    }

    static bool Closes(const MapLine& line) {
        return line.Points.size() > 2 &&
               Place_of(line.Points.front()) == Place_of(line.Points.back());
    }

    static void Turn(MapLine& line) {
        std::reverse(line.Points.begin(), line.Points.end());
        if (line.LandOnLeft) line.LandOnLeft = !*line.LandOnLeft;
    }

    // False when no other line has an end where this one ends, and its land on the same side.
    bool Append_next(MapLine& line) {
        const Place place = Place_of(line.Points.back());
        const auto [first, last] = ends_.equal_range(place);
        for (auto found = first; found != last; ++found) {
            if (taken_[found->second]) continue;
            MapLine& next = lines_[found->second];
            const bool begins = Place_of(next.Points.front()) == place;
            const auto side =
                begins || !next.LandOnLeft ? next.LandOnLeft : std::optional(!*next.LandOnLeft);
            if (side != line.LandOnLeft) continue;
            if (!begins) std::reverse(next.Points.begin(), next.Points.end());
            line.Points.insert(line.Points.end(), next.Points.begin() + 1, next.Points.end());
            taken_[found->second] = true;
            return true;
        }
        return false;
    }

    std::vector<MapLine> lines_;
    std::vector<bool> taken_;
    std::multimap<Place, std::size_t> ends_;
};

}  // namespace

std::vector<MapLine> Clipped(const MapLine& line, const MapRectangle& rectangle) {
    const auto is_inside = [&](MapPoint p) { return rectangle.Contains(p); };
    if (std::all_of(line.Points.begin(), line.Points.end(), is_inside)) return {line};
    std::vector<MapLine> pieces;
    const std::size_t count = line.Points.size(), steps = line.IsRing ? count : count - 1;
    bool goes_on = false;  // the last piece reaches the start of the next segment
    for (std::size_t i = 0; i < steps; ++i) {
        const MapPoint a = line.Points[i], b = line.Points[(i + 1) % count];
        double from, to;
        if (!Clip_segment(a, b, rectangle, from, to)) {
            goes_on = false;
            continue;
        }
        if (!goes_on || from > 0) {
            pieces.push_back({{}, false, line.LandOnLeft, line.Origin});
            pieces.back().Points.push_back(from > 0 ? Between(a, b, from, rectangle) : a);
        }
        pieces.back().Points.push_back(to < 1 ? Between(a, b, to, rectangle) : b);
        goes_on = to >= 1;
    }
    return pieces;
}

std::vector<MapLine> Joined(std::vector<MapLine> lines) {
    return Joining(std::move(lines)).All();
}

}  // namespace tidemark
