// What holds for every cell with coastlines such as a careful user could draw: none touches itself
// or another, and each has points in the cell wherever it passes through.
#include <algorithm>
#include <cmath>
#include <map>
#include <random>

#include <gtest/gtest.h>

#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "lwm/polygon_builder.h"
#include "lwm/polygon_candidates.h"

namespace tidemark {
namespace {

using Coastline = std::vector<CellPoint>;

class PolygonPropertiesTest : public testing::Test {
  protected:
    int Number(int lowest, int highest) {
        return std::uniform_int_distribution(lowest, highest)(random_);
    }

    // Across the cell between two rows, or from its west edge into it and back, or, in the topmost
    // rows, from its west edge to its top. An end is a point on the edge, one beyond it, or both.
    Coastline Line_between(int top, int bottom) {
        Coastline line;
        const auto add_end = [&](int x, int y, int out_x, int out_y) {
            const int kind = Number(0, 2), out = Number(1, 40);
            if (kind != 1) line.push_back({x, y});
            if (kind != 0) line.push_back({x + out * out_x, y + out * out_y});
        };
        const int kind = Number(0, top < 10 ? 2 : 1);
        const bool is_bay = kind == 1;
        const int middle = is_bay ? (top + bottom) / 2 : bottom;
        const int inner = Number(2, 5);
        for (int k = 1; k <= inner; ++k)
            line.push_back({k * 230 / (inner + 1) + Number(0, 18), Number(top, middle)});
        for (int k = inner; is_bay && k >= 1; --k)
            line.push_back({line[static_cast<std::size_t>(k - 1)].X, Number(middle + 5, bottom)});
        if (kind == 0) add_end(LastCellUnit, Number(top, bottom), 1, 0);
        if (kind == 1) add_end(0, Number(middle + 5, bottom), -1, 0);
        if (kind == 2) add_end(line.back().X, 0, 0, -1);
        std::ranges::reverse(line);
        add_end(0, Number(top, middle), -1, 0);
        return line;
    }

    // One to six coastlines, one below the other, and all that turned and mirrored.
    std::vector<Coastline> Some_coastlines() {
        std::vector<Coastline> lines;
        const bool upside_down = Number(0, 1), swaps_axes = Number(0, 1);
        const int count = Number(1, 6);
        for (int k = 0; k < count; ++k) {
            lines.push_back(Line_between(255 * k / count + 5, 255 * (k + 1) / count - 5));
            const bool from_east = Number(0, 1);
            for (CellPoint& p : lines.back()) {
                if (from_east) p.X = LastCellUnit - p.X;
                if (upside_down) p.Y = LastCellUnit - p.Y;
                if (swaps_axes) std::swap(p.X, p.Y);
            }
        }
        return lines;
    }

    template <class Check>
    void For_random_cells(Check check) {
        for (int cell = 0; cell < 2000 && !HasFailure(); ++cell) {
            const std::vector<Coastline> lines = Some_coastlines();
            SCOPED_TRACE(Lines_text(lines));
            check(lines);
        }
    }

    static std::string Lines_text(const std::vector<Coastline>& lines) {
        std::string text;
        for (const Coastline& line : lines) text += Points_text(line) + " | ";
        return text;
    }

    static std::vector<Outline> Candidates_of(const std::vector<Coastline>& lines,
                                              std::size_t messages = 0) {
        RecordingMessages said;
        const auto candidates = Candidate_polygons(*Cell_project(Lines_text(lines)), said);
        EXPECT_EQ(said.Shown.size(), messages);
        return candidates;
    }

  private:
    std::mt19937 random_{1};
};

// Twice the area of the triangle, positive when it is walked clockwise on the map.
std::int64_t Turn(CellPoint a, CellPoint b, CellPoint p) {
    return (int{b.X} - int{a.X}) * (int{p.Y} - int{a.Y}) -
           (int{b.Y} - int{a.Y}) * (int{p.X} - int{a.X});
}

bool Do_cross(CellPoint a, CellPoint b, CellPoint c, CellPoint d) {
    return Turn(a, b, c) * Turn(a, b, d) < 0 && Turn(c, d, a) * Turn(c, d, b) < 0;
}

// The different pieces, each from its smallest vertex on and by its text.
std::map<std::string, Outline> Pieces_of(std::vector<Outline> candidates) {
    std::map<std::string, Outline> pieces;
    for (Outline& piece : candidates) {
        const auto order = [](CellPoint p) { return 1000 * int{p.Y} + int{p.X}; };
        std::rotate(piece.begin(), std::ranges::min_element(piece, {}, order), piece.end());
        pieces[Points_text(piece)] = piece;
    }
    return pieces;
}

int Area2(const Outline& piece) {
    std::int64_t area = 0;
    for (std::size_t i = 0; i < piece.size(); ++i)
        area += Turn({0, 0}, piece[i], piece[(i + 1) % piece.size()]);
    return static_cast<int>(area);
}

// No two sides cross, and no vertex comes twice.
bool Is_simple(const Outline& piece) {
    const std::size_t n = piece.size();
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = i + 1; j < n; ++j)
            if (piece[i] == piece[j] ||
                Do_cross(piece[i], piece[(i + 1) % n], piece[j], piece[(j + 1) % n]))
                return false;
    return true;
}

TEST_F(PolygonPropertiesTest, ThePiecesAreSimpleAndFillTheCell) {
    For_random_cells([](const std::vector<Coastline>& lines) {
        const std::vector<Outline> candidates = Candidates_of(lines);
        EXPECT_EQ(candidates.size(), 2 * lines.size());
        const auto pieces = Pieces_of(candidates);
        EXPECT_EQ(pieces.size(), lines.size() + 1);
        int area2 = 0;
        for (const auto& [text, piece] : pieces) {
            EXPECT_TRUE(Is_simple(piece) && Area2(piece) > 0) << text;
            area2 += Area2(piece);
        }
        EXPECT_EQ(area2, 2 * LastCellUnit * LastCellUnit);
    });
}

// The straight step that joins two ends is the step that was left out. A crossing may be rounded
// the other way.
TEST_F(PolygonPropertiesTest, LinesDrawnTheOtherWayAndInTwoPartsCutAlike) {
    const auto areas = [](const std::vector<Outline>& candidates) {
        std::vector<int> sorted;
        for (const auto& [text, piece] : Pieces_of(candidates)) sorted.push_back(Area2(piece));
        std::ranges::sort(sorted);
        return sorted;
    };
    For_random_cells([&](std::vector<Coastline> lines) {
        const std::vector<int> before = areas(Candidates_of(lines));
        Coastline& line = lines[static_cast<std::size_t>(Number(1, int(lines.size())) - 1)];
        const auto is_inside = [](CellPoint p) {
            return p.X > 0 && p.X < LastCellUnit && p.Y > 0 && p.Y < LastCellUnit;
        };
        const auto second = std::ranges::find_if(line, is_inside) + 1;
        const Coastline part(second, line.end());
        line.erase(second, line.end());
        lines.insert(lines.begin() + Number(0, int(lines.size())), part);
        for (Coastline& turned : lines)
            if (Number(0, 1)) std::ranges::reverse(turned);
        const std::vector<int> after = areas(Candidates_of(lines, 1));
        ASSERT_EQ(after.size(), before.size());
        for (std::size_t i = 0; i < after.size(); ++i) EXPECT_NEAR(after[i], before[i], 500);
    });
}

double Mean_distance(const Outline& outline, CellPoint click) {
    double sum = 0;
    for (const CellPoint& p : outline)
        sum += std::hypot(int{p.X} - int{click.X}, int{p.Y} - int{click.Y});
    return sum / static_cast<double>(outline.size());
}

TEST_F(PolygonPropertiesTest, TheNearestPieceIsPickedWhenItIsTheOneClicked) {
    int picked = 0;
    For_random_cells([&](const std::vector<Coastline>& lines) {
        const CellPoint click{Number(1, 254), Number(1, 254)};
        const auto pieces = Pieces_of(Candidates_of(lines));
        const auto nearest = std::ranges::min_element(
            pieces, {}, [&](const auto& piece) { return Mean_distance(piece.second, click); });
        const auto is_around = [&](const auto& piece) { return Surrounds(piece.second, click); };
        if (!is_around(*nearest) || std::ranges::count_if(pieces, is_around) > 1) return;
        ++picked;
        const auto project = Cell_project(Lines_text(lines), click);
        RecordingMessages messages;
        const LWMPolyResult result = Add_LWM_Poly(*project, messages, HeightChoice::Conform, "");
        ASSERT_TRUE(result.Added && result.StatusLine.empty());
        EXPECT_EQ(Pieces_of({LWM_outline(*project, 1)}).begin()->first, nearest->first);
    });
    EXPECT_GT(picked, 500);
}

}  // namespace
}  // namespace tidemark
