#include "coast/lay_coast.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

#include "coast/coast_draft.h"
#include "coast/coast_input.h"
#include "coast/map_ends.h"
#include "coast/part_lines.h"
#include "coast/simplify.h"

namespace tidemark {

namespace {

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

// Keeps of the points between the ends the most significant one.
void Keep_one_between(DraftLine& draft) {
    const auto first = draft.Significances.begin() + 1, last = draft.Significances.end() - 1;
    if (const auto most = std::max_element(first, last); most != last) *most = EndlessSignificance;
}

// A line that comes back to the side of the map where it began can be so shallow that a coarse
// tolerance leaves nothing of it, while the map beyond has a line to each of its ends.
enum class Shallow { Kept, Dropped };

// The lines as they come into the map, whatever the tolerance.
struct Drafts {
    std::vector<DraftLine> Lines;
    std::vector<std::string> Dropped;
};

Drafts Drafts_of(const Project& p, std::span<const CoastLine> lines, bool reverse,
                 Shallow shallow) {
    const MapUnits map = Units_of(p);
    std::vector<MapLine> pieces;
    for (const CoastLine& line : lines)
        for (MapLine& piece : Clipped(On_map(p, line, reverse), map.Rectangle()))
            pieces.push_back(std::move(piece));
    std::vector<MapLine> joined = Joined(std::move(pieces));
    Drafts drafts;
    drafts.Dropped = Close_crowded_ends(joined, map);
    for (MapLine& line : joined) {
        Thin(line.Points);
        if (line.Points.size() < (line.IsRing ? 3U : 2U)) continue;
        std::vector<double> significances = Significances(line.Points, line.IsRing);
        DraftLine draft{std::move(line), std::move(significances), false};
        if (shallow == Shallow::Kept && !draft.Line.IsRing && Comes_back_to_side(draft.Line, map))
            Keep_one_between(draft);
        Leave_out_least(draft);
        drafts.Lines.push_back(std::move(draft));
    }
    return drafts;
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

// Lays the same lines at one tolerance after the other.
class Laying {
  public:
    Laying(const MapUnits& map, Drafts drafts, const GoOn& go_on)
        : map_(map), drafts_(std::move(drafts)), go_on_(go_on) {}

    LaidCoast With(const LayOptions& options) {
        double low = std::max(std::max(options.Tolerance, LeastGain),
                              Least_tolerance(drafts_.Lines, options.MostPoints));
        double high = low;
        LaidCoast laid = At(high);
        while (laid.Points > options.MostPoints && high < MaxTolerance) {
            low = high;
            high *= Raise;
            laid = At(high);
        }
        for (int i = 0; i < Halvings && low < high; ++i) {
            const double middle = (low + high) / 2;
            LaidCoast finer = At(middle);
            const bool fits = finer.Points <= options.MostPoints;
            (fits ? high : low) = middle;
            if (fits) laid = std::move(finer);
        }
        laid.Fits = laid.Points <= options.MostPoints;
        return laid;
    }

  private:
    LaidCoast At(double tolerance) {
        CoastDraft draft(drafts_.Lines, map_, tolerance);
        draft.Dropped = drafts_.Dropped;
        Part_lines(draft, *touching_, go_on_);
        return Laid(draft, map_);
    }

    const MapUnits map_;
    const Drafts drafts_;
    const GoOn& go_on_;
    const std::unique_ptr<TouchingSteps> touching_ = std::make_unique<TouchingSteps>();
};

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
                    const LayOptions& options, const GoOn& go_on) {
    const MapUnits map = Units_of(project);
    const auto laid = [&](Shallow shallow) {
        Laying laying(map, Drafts_of(project, lines, options.Reverse, shallow), go_on);
        return laying.With(options);
    };
    try {
        LaidCoast coast = laid(Shallow::Kept);
        return coast.Fits ? coast : laid(Shallow::Dropped);
    } catch (const CoastCancelled&) {
        LaidCoast nothing;
        nothing.Cancelled = true;
        return nothing;
    }
}

}  // namespace tidemark
