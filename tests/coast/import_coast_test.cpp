// Coasts from files are laid into the map so that the check finds nothing, and filled both ways.
#include "coast/import_coast.h"

#include <cmath>
#include <numbers>

#include "coast/cell_mask.h"
#include "coast/check.h"
#include "coast/coast_file.h"
#include "coast/coast_survey.h"
#include "coast/crowded_cells.h"
#include "coast/map_line.h"
#include "fakes/random_coast.h"
#include "fakes/rules_test.h"

namespace tidemark {

// Half of the way, pushed aside, and so on: many small bays and headlands.
static void Roughen(std::vector<MapPoint>& line, MapPoint to, RandomNumbers& random) {
    const MapPoint from = line.back();
    const double dx = to.X - from.X, dy = to.Y - from.Y;
    if (std::hypot(dx, dy) < 3) return line.push_back(to);
    const double aside = random.Number(-6, 6) / 100.0;
    Roughen(line, {from.X + dx / 2 - dy * aside, from.Y + dy / 2 + dx * aside}, random);
    Roughen(line, to, random);
}

static CoastPosition On_earth(const GeoBox& box, double x, double y) {
    return {box.West + (x - FirstVTP + 0.5) / 8192 * (box.East - box.West),
            box.North - (y - FirstVTP + 0.5) / 8192 * (box.North - box.South)};
}

// Land and water by turns from north to south, and islands of the other kind.
static std::vector<CoastLine> Rough_coast(const Project& map, unsigned seed) {
    RandomNumbers random(seed);
    const GeoBox box = Map_box(map);
    std::vector<CoastLine> lines;
    std::vector<MapPoint> rough;
    std::vector<Position> last;
    bool is_land = true;
    for (const std::vector<Position>& drawn : RandomCoast(seed).Lines()) {
        CoastLine& line = lines.emplace_back();
        line.Ring = drawn.front() == drawn.back();
        line.LandOnLeft = is_land;
        if (!line.Ring) is_land = !is_land;
        if (last.size() == drawn.size() && last[1][0] == drawn[1][0]) {  // the other bank
            for (MapPoint& point : rough) point.Y += drawn[0][1] - last[0][1];
        } else {
            rough = {{double(drawn[0][0]), double(drawn[0][1])}};
            for (std::size_t i = 1; i < drawn.size(); ++i)
                Roughen(rough, {double(drawn[i][0]), double(drawn[i][1])}, random);
        }
        last = drawn;
        if (line.Ring) rough.pop_back();
        for (const auto [x, y] : rough) line.Positions.push_back(On_earth(box, x, y));
    }
    return lines;
}

// Whatever its points, it touches itself, and it crosses cells and the edge of the map far more
// often than can be built.
static std::vector<CoastLine> Jagged_coast(const Project& map, unsigned seed) {
    RandomNumbers random(seed);
    const GeoBox box = Map_box(map);
    CoastLine shore{{}, false, true, "shore"}, island{{}, true, true, "island"};
    const int middle = random.One_of(std::vector{FirstVTP + 100, FirstVTP + 1500});
    for (int x = FirstVTP + 8200; x > FirstVTP - 10; x -= 5)
        shore.Positions.push_back(On_earth(box, x, middle + random.Number(-400, 400)));
    for (int i = 0; i < 1500; ++i) {
        const double angle = 2 * std::numbers::pi * i / 1500;
        const int radius = 1500 + random.Number(-200, 200);
        island.Positions.push_back(On_earth(box, FirstVTP + 4000 + radius * std::cos(angle),
                                            FirstVTP + 5000 - radius * std::sin(angle)));
    }
    return {shore, island};
}

static double Distance_to(const std::vector<MapPoint>& line, MapPoint place) {
    double least = 1e9;
    for (std::size_t i = 1; i < line.size(); ++i)
        least = std::min(least, Square_to_segment(place, line[i - 1], line[i]));
    return std::sqrt(least);
}

// Of every laid point from the lines of the file, and of every point of those on the map from what
// was laid: VTP units.
static double Farthest(const Project& map, const std::vector<CoastLine>& lines,
                       const LaidCoast& coast) {
    const GeoBox box = Map_box(map);
    std::vector<std::vector<MapPoint>> source, laid;
    for (const CoastLine& line : lines) {
        auto& points = source.emplace_back();
        for (const auto& [longitude, latitude] : line.Positions)
            points.push_back(
                {FirstVTP - 0.5 + (longitude - box.West) / (box.East - box.West) * 8192,
                 FirstVTP - 0.5 + (box.North - latitude) / (box.North - box.South) * 8192});
        if (line.Ring) points.push_back(MapPoint(points.front()));
    }
    for (const LaidLine& line : coast.Lines) {
        auto& points = laid.emplace_back();
        for (const auto& [x, y] : line.Points) points.push_back({double(x), double(y)});
    }
    double farthest = 0;
    for (const auto& [from, to] : {std::pair(&laid, &source), {&source, &laid}})
        for (const auto& points : *from)
            for (const MapPoint place : points) {
                if (!MapRectangle{FirstVTP, FirstVTP, LastVTP, LastVTP}.Contains(place)) continue;
                double least = 1e9;
                for (const auto& line : *to) least = std::min(least, Distance_to(line, place));
                farthest = std::max(farthest, least);
            }
    return farthest;
}

// Nothing but remarks, and every coast cell built to its last square.
static void Expect_built(Project& project, const LaidCoast& coast) {
    ASSERT_TRUE(coast.Fits);
    ImportResult result =
        Import_coast(project, coast, {.ClearCells = true, .FillWater = true, .FillLand = true});
    EXPECT_EQ(result.Refusal, "");
    for (const Finding& error : result.Errors) ADD_FAILURE() << Finding_line(error);
    std::map<LOD13Cell, CellMask> cells;
    for (const auto& [cell, kind, outline] : result.Filled.Polygons) {
        const CellMask mask(outline);
        EXPECT_EQ(cells[cell].Common_area(mask), 0) << cell.Column << ", " << cell.Row;
        cells[cell] |= mask;
    }
    const CoastSurvey survey(project);
    for (const SurveyedCell& cell : survey.Cells()) {
        if (cell.Crossings.empty()) continue;
        EXPECT_EQ(cells[cell.Cell].Area(), MaskSize * MaskSize)
            << cell.Cell.Column << ", " << cell.Cell.Row;
    }
}

static std::unique_ptr<Project> Whole_cell() {
    return Project_of({});
}

TEST(ImportCoastTest, RoughCoastsAreLaidWithoutAnErrorAndFilledBothWays) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        const auto project = Whole_cell();
        const std::vector<CoastLine> lines = Rough_coast(*project, seed);
        const LaidCoast coast = Lay_coast(*project, lines, {});
        EXPECT_LE(coast.Deviation, coast.Tolerance + 4) << "what cell edges ask for";
        if (seed <= 2) {
            EXPECT_LE(Farthest(*project, lines, coast), coast.Deviation + 1) << "to whole units";
        }
        Expect_built(*project, coast);
    }
}

TEST(ImportCoastTest, JaggedCoastsAreClosedWhereTheyAreTooNarrowToBeBuilt) {
    for (unsigned seed = 1; seed <= 6; ++seed) {
        SCOPED_TRACE(seed);
        const auto project = Whole_cell();
        Expect_built(*project, Lay_coast(*project, Jagged_coast(*project, seed), {}));
    }
    const auto project = Whole_cell();
    const std::vector<CoastLine> lines = Jagged_coast(*project, 1);
    for (const bool reverse : {false, true})
        for (const LaidLine& line : Lay_coast(*project, lines, {.Reverse = reverse}).Lines)
            EXPECT_EQ(line.LandOnLeft, !reverse);
}

TEST(ImportCoastTest, OfACrowdedCellTheNarrowestPlaceIsTakenWhoseLinesCanBeJoined) {
    std::vector<CoastStep> steps;
    int down = FirstVTP;
    for (std::uint32_t i = 0; i <= MaxPolyNumber; ++i) {
        down += i == 4 ? 5 : i == 11 ? 7 : 10;
        const Position west = {FirstVTP + 255, down}, east = {FirstVTP + 256, down};
        steps.push_back({i % 2 == 0 ? west : east, i % 2 == 0 ? east : west, i, 0, {}, {}, {}});
    }
    for (const auto& [apart, step] : {std::pair{100U, 3U}, {4U, 10U}}) {
        const auto can_join = [apart = apart](const CoastStep& one, const CoastStep& other) {
            return one.Line != apart && other.Line != apart;
        };
        const std::vector<NarrowPlace> places = Narrow_places(steps, {}, can_join);
        ASSERT_EQ(places.size(), 2U) << "one of either cell";
        EXPECT_EQ(places[0].Step, step);
        EXPECT_EQ(places[1].Other, step + 1);
    }
}

// Where lines come to the common edge of two maps, one south of the other.
static std::vector<int> Ends_at(const LaidCoast& coast, int edge) {
    std::vector<int> columns;
    for (const LaidLine& line : coast.Lines)
        for (const Position& end : {line.Points.front(), line.Points.back()})
            if (end[1] == edge) columns.push_back(end[0]);
    std::sort(columns.begin(), columns.end());
    return columns;
}

// A shore along the edge between two maps, with shallow spits over it: 12 in a cell, or one.
TEST(ImportCoastTest, MapsMeetAtTheirEdgeHoweverCoarseOneIsAndHoweverOftenACellIsCrossedThere) {
    for (const auto& [spits, tolerance, ends] : {std::tuple(12, 4.0, 16U), {1, 50.0, 2U}}) {
        SCOPED_TRACE(spits);
        const auto north = Whole_cell(), south = Whole_cell();
        south->BGLOD8Y = north->BGLOD8Y + 1;
        CoastLine shore{{}, false, true, "shore"};
        for (int i = -520; i <= 520; ++i) {
            const int x = FirstVTP + 16 * CellSizeVTP - 8 * i, wave = i % 2 == 0 ? 6 : 40;
            const int up = i > -spits * 2 && i <= 0 && i % 2 == 0 ? -10 : wave;
            shore.Positions.push_back(On_earth(Map_box(*south), x, FirstVTP + up));
        }
        const std::vector<CoastLine> lines{shore};
        const LaidCoast coarse = Lay_coast(*north, lines, {.Tolerance = tolerance});
        const LaidCoast fine = Lay_coast(*south, lines, {});
        EXPECT_EQ(Ends_at(coarse, LastVTP).size(), ends);
        EXPECT_EQ(Ends_at(coarse, LastVTP), Ends_at(fine, FirstVTP));
        EXPECT_EQ(coarse.Dropped.size(), spits == 12 ? 1U : 0U);
        Expect_built(*north, coarse);
        Expect_built(*south, fine);
    }
}

// Its 1024 cells hold what a real coast has; all of it needs more polygons than a project holds.
TEST(ImportCoastTest, TheGoldenGatesFileIsLaidWithoutAnErrorWhateverTheTolerance) {
    const auto project = Whole_cell();
    project->BGLOD8X = 122;
    project->BGLOD8Y = 148;
    const GeoBox box = Map_box(*project);
    const CoastFileReading reading = Read_coast_file(
        TIDEMARK_SOURCE_DIR "/sample/golden-gate-coastline.geojson", std::span(&box, 1));
    ASSERT_FALSE(reading.Refusal);
    for (const double tolerance : {0.5, 4.0, 20.0, 100.0}) {
        SCOPED_TRACE(tolerance);
        Project imported = *project;
        const LaidCoast coast =
            Lay_coast(imported, reading.Lines.front(), {.Tolerance = tolerance});
        EXPECT_THAT(coast.Dropped, testing::IsEmpty());
        EXPECT_LE(coast.Deviation, tolerance + 4);
        const ImportResult result =
            Import_coast(imported, coast, {.FillWater = true, .FillLand = true});
        EXPECT_THAT(result.Errors, testing::IsEmpty());
        EXPECT_EQ(result.Filled.Fits(), imported.LWMCount > 0);
    }
}

}  // namespace tidemark
