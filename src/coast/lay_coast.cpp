#include "coast/lay_coast.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <memory>

#include "coast/cell_path.h"
#include "coast/coast_draft.h"
#include "coast/part_lines.h"
#include "coast/simplify.h"
#include "model/text_forms.h"

namespace tidemark {

namespace {

constexpr double SizeVTP = (LastLOD13 + 1) * CellSizeVTP;  // of the LOD8 cell

// A unit from north to south: 0.3515625 degrees of 111,195 metres (on a sphere of the Earth's mean
// radius) are 8192 of them. From west to east it is less, but near the equator.
constexpr double MetresToAUnit = LOD8DegreesSouth * 111194.93 / SizeVTP;

// Points that are nearer than this to the one before them make no difference on the map.
constexpr double LeastStep = 0.25;

// How the tolerance is raised until the points fit: by this factor, and then back half of the way
// so many times.
constexpr double Raise = 1.5;
constexpr int Halvings = 4;
constexpr double MaxTolerance = 512;

double West(const Project& p) {
    return p.BGLOD8X * LOD8DegreesEast - 180;
}

double North(const Project& p) {
    return 90 - p.BGLOD8Y * LOD8DegreesSouth;
}

MapUnits Units_of(const Project& p) {
    return {{First_unit(p.BGLOD13tlX), First_unit(p.BGLOD13tlY)},
            {First_unit(p.BGLOD13brX) + LastCellUnit, First_unit(p.BGLOD13brY) + LastCellUnit}};
}

MapLine On_map(const Project& p, const CoastLine& line, bool reverse) {
    MapLine on_map{{}, line.Ring, line.LandOnLeft, line.Origin};
    on_map.Points.reserve(line.Positions.size());
    for (const auto& [longitude, latitude] : line.Positions)
        on_map.Points.push_back({FirstVTP + (longitude - West(p)) / LOD8DegreesEast * SizeVTP,
                                 FirstVTP + (North(p) - latitude) / LOD8DegreesSouth * SizeVTP});
    if (!reverse) return on_map;
    std::reverse(on_map.Points.begin(), on_map.Points.end());
    if (on_map.LandOnLeft) on_map.LandOnLeft = !*on_map.LandOnLeft;
    return on_map;
}

// Without the points that are all but the same as the one before.
void Thin(std::vector<MapPoint>& points) {
    if (points.size() < 3) return;
    std::size_t count = 1;
    for (std::size_t i = 1; i + 1 < points.size(); ++i) {
        const MapPoint last = points[count - 1];
        if (std::fabs(points[i].X - last.X) + std::fabs(points[i].Y - last.Y) >= LeastStep)
            points[count++] = points[i];
    }
    points[count++] = points.back();
    points.resize(count);
}

// Without the points that no tolerance keeps: the line without them is off by less than LeastGain.
void Leave_out_least(DraftLine& draft) {
    std::vector<MapPoint>& points = draft.Line.Points;
    std::vector<double>& significances = draft.Significances;
    std::size_t count = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (significances[i] <= LeastGain) continue;
        points[count] = points[i];
        significances[count++] = significances[i];
    }
    draft.LeftOut = count < points.size();
    points.resize(count);
    significances.resize(count);
}

std::vector<DraftLine> Draft_lines(const Project& p, std::span<const CoastLine> lines,
                                   bool reverse) {
    std::vector<MapLine> pieces;
    for (const CoastLine& line : lines)
        for (MapLine& piece : Clipped(On_map(p, line, reverse), Units_of(p).Rectangle()))
            pieces.push_back(std::move(piece));
    std::vector<DraftLine> drafts;
    for (MapLine& line : Joined(std::move(pieces))) {
        Thin(line.Points);
        if (line.Points.size() < (line.IsRing ? 3U : 2U)) continue;
        std::vector<double> significances = Significances(line.Points, line.IsRing);
        drafts.push_back({std::move(line), std::move(significances), false});
        Leave_out_least(drafts.back());
    }
    return drafts;
}

// Collects what a draft comes to.
class Laying {
  public:
    Laying(const MapUnits& map, const CoastDraft& draft) : map_(map), draft_(draft) {
        coast_.Dropped = draft.Dropped;
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

LaidCoast Laid_at(const std::vector<DraftLine>& lines, const MapUnits& map, double tolerance,
                  TouchingSteps& touching) {
    CoastDraft draft(lines, map, tolerance);
    Part_lines(draft, touching);
    LaidCoast coast = Laying(map, draft).All();
    coast.Tolerance = tolerance;
    return coast;
}

// With less more than the wanted number of points are kept, not counting those that cell edges ask
// for.
double Least_tolerance(const std::vector<DraftLine>& lines, int most_points) {
    std::vector<double> all;
    for (const DraftLine& line : lines)
        all.insert(all.end(), line.Significances.begin(), line.Significances.end());
    const auto wanted = static_cast<std::size_t>(std::max(most_points, 0));
    if (all.size() <= wanted) return 0;
    const auto nth = all.begin() + static_cast<std::ptrdiff_t>(wanted);
    std::nth_element(all.begin(), nth, all.end(), std::greater<>());
    return std::isinf(*nth) ? 0 : *nth;
}

// "3" or, below ten, "3.5".
std::string Short_number(double value) {
    if (value >= 10) return std::to_string(std::lround(value));
    const long tenths = std::lround(value * 10);
    const std::string whole = std::to_string(tenths / 10);
    return tenths % 10 == 0 ? whole : whole + "." + std::to_string(tenths % 10);
}

}  // namespace

bool Has_map_area(const Project& p) {
    return p.AreaWidth > 0 && p.AreaHeight > 0 && p.BGLOD13tlX >= 0 && p.BGLOD13tlY >= 0 &&
           p.BGLOD13brX <= LastLOD13 && p.BGLOD13brY <= LastLOD13 && p.BGLOD13tlX <= p.BGLOD13brX &&
           p.BGLOD13tlY <= p.BGLOD13brY;
}

GeoBox Map_box(const Project& p) {
    const MapRectangle map = Units_of(p).Rectangle();
    const auto longitude = [&](double x) {
        return West(p) + (x - FirstVTP) / SizeVTP * LOD8DegreesEast;
    };
    const auto latitude = [&](double y) {
        return North(p) - (y - FirstVTP) / SizeVTP * LOD8DegreesSouth;
    };
    return {longitude(map.Left), latitude(map.Bottom), longitude(map.Right), latitude(map.Top)};
}

LaidCoast Lay_coast(const Project& project, std::span<const CoastLine> lines,
                    const LayOptions& options) {
    const std::vector<DraftLine> drafts = Draft_lines(project, lines, options.Reverse);
    const MapUnits map = Units_of(project);
    double low = std::max(std::max(options.Tolerance, LeastGain),
                          Least_tolerance(drafts, options.MostPoints));
    double high = low;
    const auto touching = std::make_unique<TouchingSteps>();
    LaidCoast laid = Laid_at(drafts, map, high, *touching);
    while (laid.Points > options.MostPoints && high < MaxTolerance) {
        low = high;
        high *= Raise;
        laid = Laid_at(drafts, map, high, *touching);
    }
    for (int i = 0; i < Halvings && low < high; ++i) {
        const double middle = (low + high) / 2;
        LaidCoast finer = Laid_at(drafts, map, middle, *touching);
        const bool fits = finer.Points <= options.MostPoints;
        (fits ? high : low) = middle;
        if (fits) laid = std::move(finer);
    }
    laid.Fits = laid.Points <= options.MostPoints;
    return laid;
}

std::string Laid_text(const LaidCoast& coast, int free) {
    return Counted(coast.Lines.size(), "line") + ", " + std::to_string(coast.Points) +
           " points of " + std::to_string(free) + " free, off by at most " +
           Short_number(coast.Deviation) +
           " units = " + std::to_string(std::lround(coast.Deviation * MetresToAUnit)) + " m";
}

}  // namespace tidemark
