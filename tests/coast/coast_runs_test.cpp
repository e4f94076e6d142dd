// The runs that are kept of a line, beside what a plain search finds segment by segment.
#include "coast/coast_runs.h"

#include <set>

#include "fakes/rules_test.h"

namespace tidemark {

namespace {

struct Point {
    int X, Y;
    auto operator<=>(const Point&) const = default;
};
using LineSegment = std::pair<Point, Point>;

int Side(const LineSegment& segment, Point point) {
    const auto [from, to] = segment;
    const int area = (to.X - from.X) * (point.Y - from.Y) - (to.Y - from.Y) * (point.X - from.X);
    return (area > 0) - (area < 0);
}

bool Is_within(Point point, Point low, Point high) {
    return point.X >= low.X && point.X <= high.X && point.Y >= low.Y && point.Y <= high.Y;
}

bool Meet(const LineSegment& one, const LineSegment& other) {
    const auto is_on = [](const LineSegment& segment, Point point) {
        const auto [x, east] = std::minmax(segment.first.X, segment.second.X);
        const auto [y, north] = std::minmax(segment.first.Y, segment.second.Y);
        return Side(segment, point) == 0 && Is_within(point, {x, y}, {east, north});
    };
    return (Side(one, other.first) * Side(one, other.second) < 0 &&
            Side(other, one.first) * Side(other, one.second) < 0) ||
           is_on(one, other.first) || is_on(one, other.second) || is_on(other, one.first) ||
           is_on(other, one.second);
}

struct Box {
    Point Low, High;

    bool Meets(const LineSegment& segment) const {
        const Point south_east{High.X, Low.Y}, north_west{Low.X, High.Y};
        return Is_within(segment.first, Low, High) || Is_within(segment.second, Low, High) ||
               Meet(segment, {Low, south_east}) || Meet(segment, {south_east, High}) ||
               Meet(segment, {High, north_west}) || Meet(segment, {north_west, Low});
    }
};

// The line on a map that goes on to the east and west, without positions that repeat the one
// before.
std::vector<Point> Unrolled(const std::vector<Point>& line) {
    std::vector<Point> unrolled{line.front()};
    for (std::size_t at = 1; at < line.size(); ++at) {
        const int step = line[at].X - line[at - 1].X;
        const int turns = (step < -180) - (step > 180);
        const Point next{unrolled.back().X + step + 360 * turns, line[at].Y};
        if (next != unrolled.back()) unrolled.push_back(next);
    }
    return unrolled;
}

struct Found {
    std::multiset<LineSegment> Segments;
    int Runs = 0;
    bool operator==(const Found&) const = default;
};

// Each segment that meets the box, moved by whole turns to it, begins a run unless the one before
// it, round the start of a line that closes, meets the box moved likewise.
Found Searched(const std::vector<Point>& line, const Box& box) {
    const auto points = Unrolled(line);
    const int count = static_cast<int>(points.size()) - 1;
    const bool closes = count > 1 && points.front().Y == points.back().Y &&
                        (points.back().X - points.front().X) % 360 == 0;
    const int round_world = closes ? (points.back().X - points.front().X) / 360 : 0;
    const auto moved = [&](int at, int turns) {
        const auto from = points[static_cast<std::size_t>(at)];
        const auto to = points[static_cast<std::size_t>(at) + 1];
        return LineSegment{{from.X - 360 * turns, from.Y}, {to.X - 360 * turns, to.Y}};
    };
    const auto is_kept = [&](const LineSegment& segment) {
        const auto [from, to] = segment;
        const bool on_date_line = from.X == to.X && (from.X % 360 == 180 || from.X % 360 == -180);
        const bool at_pole = from.Y == to.Y && (from.Y == 90 || from.Y == -90);
        return !on_date_line && !at_pole && box.Meets(segment);
    };
    Found found;
    const auto [west, east] = std::minmax_element(points.begin(), points.end());
    for (int turns = west->X / 360 - 2; turns <= east->X / 360 + 2; ++turns) {
        const int runs_before = found.Runs;
        int kept = 0;
        for (int at = 0; at < count; ++at) {
            if (!is_kept(moved(at, turns))) continue;
            ++kept;
            found.Segments.insert(moved(at, turns));
            const bool goes_on = at > 0 ? is_kept(moved(at - 1, turns))
                                        : closes && is_kept(moved(count - 1, turns + round_world));
            if (!goes_on) ++found.Runs;
        }
        const bool is_whole_ring = kept > 0 && kept == count && round_world == 0;
        if (is_whole_ring && found.Runs == runs_before) ++found.Runs;
    }
    return found;
}

Found In_runs(const std::vector<CoastLine>& lines, const Box& box) {
    const auto point_of = [](const CoastPosition& position) {
        return Point{static_cast<int>(position.Longitude), static_cast<int>(position.Latitude)};
    };
    Found found;
    for (const CoastLine& line : lines) {
        ++found.Runs;
        for (std::size_t at = 0; at + 1 < line.Positions.size(); ++at)
            found.Segments.emplace(point_of(line.Positions[at]), point_of(line.Positions[at + 1]));
        if (!line.Ring) continue;
        found.Segments.emplace(point_of(line.Positions.back()), point_of(line.Positions.front()));
        for (const CoastPosition& position : line.Positions)
            EXPECT_TRUE(Is_within(point_of(position), box.Low, box.High));
    }
    return found;
}

std::vector<Point> Random_line(RandomNumbers& random) {
    const int step = random.One_of(std::vector{3, 30, 200});
    std::vector<Point> line{{random.Number(-180, 180), random.Number(-90, 90)}};
    for (int more = random.One_of(std::vector{1, 3, 10, 127, 128, 400}); more > 0; --more) {
        int x = line.back().X + random.Number(-step, step);
        if (x > 180) x -= 360;
        if (x < -180) x += 360;
        line.push_back({x, std::clamp(line.back().Y + random.Number(-step, step), -90, 90)});
    }
    if (random.One_in(2)) line.push_back(line.front());
    return line;
}

}  // namespace

TEST(CoastRunsTest, RunsAreWhatAPlainSearchFinds) {
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        RandomNumbers random(seed);
        const std::vector<Point> line = Random_line(random);
        const int size = random.One_of(std::vector{5, 40, 100});
        std::vector<Box> boxes;
        for (int count = random.Number(1, 3); count > 0; --count) {
            const Point near = random.One_of(line);
            const Point low{near.X - random.Number(0, size), near.Y - random.Number(0, size)};
            boxes.push_back({low, {low.X + size, low.Y + size}});
        }
        std::vector<GeoBox> wanted;
        for (const Box& box : boxes)
            wanted.push_back(
                {double(box.Low.X), double(box.Low.Y), double(box.High.X), double(box.High.Y)});
        CoastRuns runs(wanted);
        runs.Begin_line(CoastRole::Line, {"line", seed});
        for (const Point point : line) ASSERT_TRUE(runs.Add(point.X, point.Y));
        runs.End_line();
        runs.Keep(CoastSides::None);
        const auto lines = runs.Take();
        for (std::size_t box = 0; box < boxes.size(); ++box)
            ASSERT_TRUE(In_runs(lines[box], boxes[box]) == Searched(line, boxes[box]))
                << "seed " << seed;
    }
}

}  // namespace tidemark
