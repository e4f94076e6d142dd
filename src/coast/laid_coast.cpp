#include "coast/laid_coast.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "coast/cell_path.h"
#include "coast/coast_draft.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

// A unit from north to south: 0.3515625 degrees of 111,195 metres (on a sphere of the Earth's mean
// radius) are 8192 of them. From west to east it is less, but near the equator.
constexpr double MetresToAUnit = LOD8DegreesSouth * 111194.93 / SizeVTP;

class LaidLines {
  public:
    LaidLines(const MapUnits& map, const CoastDraft& draft) : map_(map), draft_(draft) {
        coast_.Dropped = draft.Dropped;
        coast_.Tolerance = draft.Tolerance();
    }

    LaidCoast All() {
        for (std::size_t line = 0; line < draft_.Lines().size(); ++line) {
            const std::vector<Position>& placed = draft_.Placed(line);
            if (placed.size() < 2) continue;
            coast_.Deviation = std::max(coast_.Deviation, draft_.Deviation(line));
            const MapLine& source = draft_.Lines()[line].Line;
            if (!source.IsRing)
                Add_open(placed, source);
            else if (Cut_at_cell_edges(placed).Crossings.empty())
                Add_inner(placed, source);
            else
                Add(Cut_ring(placed), source);
        }
        for (auto& [cell, inner] : inner_) Add(std::move(inner.Points), *inner.Source);
        return std::move(coast_);
    }

  private:
    struct Inner {
        std::vector<Position> Points;
        const MapLine* Source;
        double Area;
    };

    void Add(std::vector<Position> points, const MapLine& source) {
        coast_.Points += static_cast<int>(points.size());
        coast_.Lines.push_back({std::move(points), source.LandOnLeft, source.Origin});
    }

    // A line that ends inside the map is taken back to the last cell edge that it crosses.
    void Add_open(const std::vector<Position>& placed, const MapLine& source) {
        const bool starts_inside = !map_.Is_on_edge(placed.front());
        const bool ends_inside = !map_.Is_on_edge(placed.back());
        CellPath path = Cut_at_cell_edges(placed);
        const std::size_t needed = (starts_inside ? 1U : 0U) + (ends_inside ? 1U : 0U);
        if (path.Crossings.size() < needed) {
            coast_.Dropped.push_back(source.Origin + " ends where it began, in one cell");
            return;
        }
        const auto at = [&](std::size_t i) {
            return path.Points.begin() + static_cast<std::ptrdiff_t>(i);
        };
        if (ends_inside) {
            path.Points.erase(at(path.Crossings.back().Before) + 1, path.Points.end());
            path.Points.push_back(path.Crossings.back().Edge);
        }
        if (starts_inside) {
            path.Points.erase(path.Points.begin(), at(path.Crossings.front().Before) + 1);
            path.Points.insert(path.Points.begin(), path.Crossings.front().Edge);
        }
        if (needed > 0)
            coast_.Dropped.push_back("the end of " + source.Origin +
                                     " inside the map: it was taken back to a cell's edge");
        Add(std::move(path.Points), source);
    }

    // Of the islands in one cell the largest stays.
    void Add_inner(const std::vector<Position>& placed, const MapLine& source) {
        const double area = std::fabs(Twice_area(source.Points));
        const Position place = Cell_of(placed.front());
        const LOD13Cell cell{place[0], place[1]};
        const auto found = inner_.find(cell);
        const MapLine* smaller = nullptr;
        if (found == inner_.end()) {
            inner_[cell] = {placed, &source, area};
        } else if (found->second.Area >= area) {
            smaller = &source;
        } else {
            smaller = found->second.Source;
            found->second = {placed, &source, area};
        }
        if (smaller != nullptr)
            coast_.Dropped.push_back("the island of " + smaller->Origin + ": a larger one is in " +
                                     "the same cell, [ " + std::to_string(cell.Column) + ", " +
                                     std::to_string(cell.Row) + " ]");
    }

    const MapUnits& map_;
    const CoastDraft& draft_;
    std::map<LOD13Cell, Inner> inner_;
    LaidCoast coast_;
};

// "3" or, below ten, "3.5".
std::string Short_number(double value) {
    if (value >= 10) return std::to_string(std::lround(value));
    const long tenths = std::lround(value * 10);
    const std::string whole = std::to_string(tenths / 10);
    return tenths % 10 == 0 ? whole : whole + "." + std::to_string(tenths % 10);
}

}  // namespace

LaidCoast Laid(const CoastDraft& draft, const MapUnits& map) {
    return LaidLines(map, draft).All();
}

std::string Laid_text(const LaidCoast& coast, int free) {
    return Counted(coast.Lines.size(), "line") + ", " + std::to_string(coast.Points) +
           " points of " + std::to_string(free) + " free, off by at most " +
           Short_number(coast.Deviation) +
           " units = " + std::to_string(std::lround(coast.Deviation * MetresToAUnit)) + " m";
}

}  // namespace tidemark
