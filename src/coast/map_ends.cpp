#include "coast/map_ends.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <tuple>
#include <utility>

#include "lwm/cell_edges.h"
#include "lwm/cell_text.h"

namespace tidemark {

namespace {

// Of the crossings that can be closed on a cell's other three edges at most one is left on each.
constexpr std::size_t MaxEnds = MaxPolyNumber - 4;

enum class MapSide { Left, Right, Top, Bottom };

struct MapEnd {
    MapSide Side;
    double Along;  // VTP units
    std::size_t Line;
    bool IsLast;  // point of the line
};

using CellEnds = std::vector<MapEnd>;

bool Is_before(const MapEnd& a, const MapEnd& b) {
    return std::tie(a.Side, a.Along) < std::tie(b.Side, b.Along);
}

std::optional<MapSide> Side_of(MapPoint p, const MapRectangle& r) {
    if (p.X <= r.Left) return MapSide::Left;
    if (p.X >= r.Right) return MapSide::Right;
    if (p.Y <= r.Top) return MapSide::Top;
    if (p.Y >= r.Bottom) return MapSide::Bottom;
    return std::nullopt;
}

class ClosingEnds {
  public:
    ClosingEnds(std::vector<MapLine>& lines, const MapUnits& map) : lines_(lines), map_(map) {
        for (std::size_t line = 0; line < lines_.size(); ++line) {
            if (lines_[line].IsRing || lines_[line].Points.empty()) continue;
            Take_end(line, false);
            Take_end(line, true);
        }
    }

    std::vector<std::string> All() {
        for (auto& [cell, ends] : cells_) {
            if (ends.size() <= MaxEnds) continue;
            std::sort(ends.begin(), ends.end(), Is_before);
            while (ends.size() > MaxEnds && Close_narrowest(ends)) {
            }
            closed_.push_back("what is narrowest at the edge of the map in " +
                              Cell_text(cell.Column, cell.Row) +
                              ", a cell that too many lines would enter there");
        }
        return std::move(closed_);
    }

  private:
    void Take_end(std::size_t line, bool is_last) {
        const std::vector<MapPoint>& points = lines_[line].Points;
        const MapPoint end = is_last ? points.back() : points.front();
        const std::optional<MapSide> side = Side_of(end, map_.Rectangle());
        if (!side) return;
        const bool is_upright = *side == MapSide::Left || *side == MapSide::Right;
        Position unit;
        for (const std::size_t axis : {0U, 1U})
            unit[axis] = std::clamp(static_cast<int>(std::lround(axis == 0 ? end.X : end.Y)),
                                    map_.First[axis], map_.Last[axis]);
        const auto [column, row] = Cell_of(unit);
        cells_[{column, row}].push_back({*side, is_upright ? end.Y : end.X, line, is_last});
    }

    // Of ends that follow one another along a side, with one line leaving the map and one entering
    // it. False when there are none.
    bool Close_narrowest(CellEnds& ends) {
        auto narrowest = ends.end();
        double least = 0;
        for (auto end = ends.begin(); end + 1 < ends.end(); ++end) {
            const MapEnd& next = *(end + 1);
            if (end->Side != next.Side || end->IsLast == next.IsLast || !Can_join(*end, next))
                continue;
            const double width = next.Along - end->Along;
            if (narrowest != ends.end() && width >= least) continue;
            narrowest = end;
            least = width;
        }
        if (narrowest == ends.end()) return false;
        const auto [one, other] = std::pair(*narrowest, *(narrowest + 1));
        ends.erase(narrowest, narrowest + 2);
        Join(one.IsLast ? one.Line : other.Line, one.IsLast ? other.Line : one.Line);
        return true;
    }

    // Not where their land is on different sides.
    bool Can_join(const MapEnd& one, const MapEnd& other) const {
        return lines_[one.Line].LandOnLeft == lines_[other.Line].LandOnLeft;
    }

    // The one that leaves the map goes on with the one that enters it.
    void Join(std::size_t leaving, std::size_t entering) {
        if (leaving == entering) {
            lines_[leaving].IsRing = true;
            return;
        }
        std::vector<MapPoint>& points = lines_[leaving].Points;
        std::vector<MapPoint>& more = lines_[entering].Points;
        points.insert(points.end(), more.begin(), more.end());
        more.clear();
        for (auto& [cell, ends] : cells_)
            for (MapEnd& end : ends)
                if (end.Line == entering) end.Line = leaving;
    }

    std::vector<MapLine>& lines_;
    const MapUnits& map_;
    std::map<LOD13Cell, CellEnds> cells_;
    std::vector<std::string> closed_;
};

}  // namespace

bool Comes_back_to_side(const MapLine& line, const MapUnits& map) {
    const std::optional<MapSide> side = Side_of(line.Points.front(), map.Rectangle());
    return side && side == Side_of(line.Points.back(), map.Rectangle());
}

std::vector<std::string> Close_crowded_ends(std::vector<MapLine>& lines, const MapUnits& map) {
    return ClosingEnds(lines, map).All();
}

}  // namespace tidemark
