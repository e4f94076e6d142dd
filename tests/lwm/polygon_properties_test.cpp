// What holds for every cell whose coastlines pass through it without touching one another.
#include <algorithm>
#include <cmath>
#include <set>

#include <gtest/gtest.h>

#include "fakes/cell_picture.h"
#include "fakes/random_cell.h"
#include "fakes/recording_messages.h"
#include "lwm/polygon_builder.h"
#include "lwm/polygon_candidates.h"

namespace tidemark {
namespace {

constexpr int Cells = 2000;
constexpr int MostCoastlines = 6;

using Pieces = std::set<std::vector<std::pair<int, int>>>;

// The different pieces, each from its smallest vertex on.
Pieces Pieces_of(const std::vector<Outline>& candidates) {
    Pieces pieces;
    for (const Outline& outline : candidates) {
        std::vector<std::pair<int, int>> piece;
        for (const CellPoint& p : outline) piece.emplace_back(p.X, p.Y);
        std::rotate(piece.begin(), std::min_element(piece.begin(), piece.end()), piece.end());
        pieces.insert(piece);
    }
    return pieces;
}

std::vector<Outline> Candidates_of(const std::vector<Coastline>& lines, std::size_t messages = 0) {
    const auto project = Cell_project(lines);
    RecordingMessages said;
    const std::vector<Outline> candidates = Candidate_polygons(*project, said);
    EXPECT_EQ(said.Shown.size(), messages);
    return candidates;
}

// Twice the area, positive for an outline that runs clockwise on the map.
int Area2(const std::vector<std::pair<int, int>>& piece) {
    int area = 0;
    for (std::size_t i = 0; i < piece.size(); ++i) {
        const auto [x, y] = piece[i];
        const auto [next_x, next_y] = piece[(i + 1) % piece.size()];
        area += x * next_y - next_x * y;
    }
    return area;
}

int Side(std::pair<int, int> a, std::pair<int, int> b, std::pair<int, int> p) {
    const int turn =
        (b.first - a.first) * (p.second - a.second) - (b.second - a.second) * (p.first - a.first);
    return (turn > 0) - (turn < 0);
}

// No two sides cross, and no vertex comes twice.
bool Is_simple(const std::vector<std::pair<int, int>>& piece) {
    const std::size_t n = piece.size();
    for (std::size_t i = 0; i < n; ++i) {
        const auto a = piece[i];
        const auto b = piece[(i + 1) % n];
        for (std::size_t j = i + 1; j < n; ++j) {
            const auto c = piece[j];
            const auto d = piece[(j + 1) % n];
            if (a == c) return false;
            if (Side(a, b, c) * Side(a, b, d) < 0 && Side(c, d, a) * Side(c, d, b) < 0)
                return false;
        }
    }
    return true;
}

// Equal but for one unit here and there, from whichever vertex on.
bool Is_nearly(const Outline& a, const Outline& b) {
    const std::size_t n = a.size();
    if (b.size() != n) return false;
    for (std::size_t shift = 0; shift < n; ++shift) {
        std::size_t i = 0;
        while (i < n && std::abs(a[i].X - b[(i + shift) % n].X) <= 1 &&
               std::abs(a[i].Y - b[(i + shift) % n].Y) <= 1)
            ++i;
        if (i == n) return true;
    }
    return false;
}

void Expect_nearly_the_same(const std::vector<Outline>& some, const std::vector<Outline>& others) {
    EXPECT_EQ(Pieces_of(some).size(), Pieces_of(others).size());
    for (const Outline& outline : some)
        EXPECT_TRUE(std::any_of(others.begin(), others.end(), [&](const Outline& other) {
            return Is_nearly(outline, other);
        })) << Points_text(outline);
}

template <class Check>
void For_random_cells(unsigned seed, Check check) {
    RandomCells cells(seed);
    for (int cell = 0; cell < Cells && !testing::Test::HasFailure(); ++cell) {
        const std::vector<Coastline> lines = cells.Next(MostCoastlines);
        std::string picture;
        for (const Coastline& line : lines) picture += Points_text(line) + " | ";
        SCOPED_TRACE(picture);
        check(cells, lines);
    }
}

TEST(PolygonPropertiesTest, ThePiecesAreSimpleAndFillTheCell) {
    For_random_cells(1, [](RandomCells&, const std::vector<Coastline>& lines) {
        const std::vector<Outline> candidates = Candidates_of(lines);
        EXPECT_EQ(candidates.size(), 2 * lines.size());
        const Pieces pieces = Pieces_of(candidates);
        EXPECT_EQ(pieces.size(), lines.size() + 1);
        int area2 = 0;
        for (const auto& piece : pieces) {
            EXPECT_TRUE(Is_simple(piece));
            EXPECT_GT(Area2(piece), 0);
            area2 += Area2(piece);
        }
        EXPECT_EQ(area2, 2 * LastCellUnit * LastCellUnit);
    });
}

TEST(PolygonPropertiesTest, TheDirectionOfDrawingDoesNotMatter) {
    For_random_cells(2, [](RandomCells& cells, const std::vector<Coastline>& lines) {
        std::vector<Coastline> turned = lines;
        for (Coastline& line : turned)
            if (cells.Number(0, 2) > 0) std::reverse(line.begin(), line.end());
        Expect_nearly_the_same(Candidates_of(lines), Candidates_of(turned));
    });
}

// The straight step that joins two ends is the step that was left out.
TEST(PolygonPropertiesTest, ACoastlineDrawnInTwoPartsCutsAsInOne) {
    For_random_cells(3, [](RandomCells& cells, const std::vector<Coastline>& lines) {
        std::vector<Coastline> parted = lines;
        Coastline& line =
            parted[static_cast<std::size_t>(cells.Number(1, static_cast<int>(lines.size())) - 1)];
        const auto is_inside = [](CellPoint p) {
            return p.X > 0 && p.X < LastCellUnit && p.Y > 0 && p.Y < LastCellUnit;
        };
        const auto second = std::find_if(line.begin(), line.end(), is_inside) + 1;
        Coastline part(second, line.end());
        line.erase(second, line.end());
        if (cells.Number(0, 1)) std::reverse(line.begin(), line.end());
        if (cells.Number(0, 1)) std::reverse(part.begin(), part.end());
        parted.insert(parted.begin() + cells.Number(0, static_cast<int>(parted.size())), part);
        Expect_nearly_the_same(Candidates_of(lines), Candidates_of(parted, 1));
    });
}

double Mean_distance(const Outline& outline, CellPoint click) {
    double sum = 0;
    for (const CellPoint& p : outline)
        sum += std::hypot(int{p.X} - int{click.X}, int{p.Y} - int{click.Y});
    return sum / static_cast<double>(outline.size());
}

TEST(PolygonPropertiesTest, TheNearestPieceIsPickedWhenItIsTheOneClicked) {
    int picked = 0;
    For_random_cells(4, [&](RandomCells& cells, const std::vector<Coastline>& lines) {
        const CellPoint click = cells.Click();
        const std::vector<Outline> candidates = Candidates_of(lines);
        const auto nearest = std::min_element(
            candidates.begin(), candidates.end(), [&](const Outline& a, const Outline& b) {
                return Mean_distance(a, click) < Mean_distance(b, click) - 1e-9;
            });
        if (!Surrounds(*nearest, click)) return;
        ++picked;

        const auto project = Cell_project(lines, click);
        const auto before = std::make_unique<Project>(*project);
        RecordingMessages messages;
        const LWMPolyResult result = Add_LWM_Poly(*project, messages, HeightChoice::Conform, "");
        ASSERT_TRUE(result.Added && result.StatusLine.empty());
        EXPECT_EQ(Pieces_of({LWM_outline(*project, 1)}), Pieces_of({*nearest}));
    });
    EXPECT_GT(picked, Cells / 4);
}

}  // namespace
}  // namespace tidemark
