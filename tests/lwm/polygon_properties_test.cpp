// What holds for every cell with coastlines such as a careful user could draw: none touches itself
// or another, and each has points in the cell wherever it passes through.
#include <cmath>

#include "fakes/rules_test.h"
#include "lwm/polygon_builder.h"
#include "lwm/polygon_candidates.h"

namespace tidemark {

using Coastline = std::vector<CellPoint>;

class PolygonPropertiesTest : public testing::Test {
  protected:
    // A point on the cell's edge, one beyond it, or both.
    void Add_end(Coastline& line, CellPoint at) {
        const int kind = random_.Number(0, 2), out = random_.Number(1, 40);
        const bool is_top = at.Y == 0;
        if (kind != 1) line.push_back(at);
        if (kind != 0)
            line.push_back({is_top      ? int{at.X}
                            : at.X == 0 ? -out
                                        : 255 + out,
                            at.Y - is_top * out});
    }

    // From the west edge between two rows across the cell, or into it and back, or, in the topmost
    // rows, to the top edge.
    Coastline Line_between(int top, int bottom) {
        Coastline line;
        const int kind = random_.Number(0, top < 10 ? 2 : 1), inner = random_.Number(2, 5);
        const int middle = kind == 1 ? (top + bottom) / 2 : bottom;
        Add_end(line, {0, random_.Number(top, middle)});
        std::ranges::reverse(line);
        const std::size_t begin = line.size();
        for (int k = 1; k <= inner; ++k)
            line.push_back(
                {k * 230 / (inner + 1) + random_.Number(0, 18), random_.Number(top, middle)});
        for (std::size_t k = line.size(); kind == 1 && k-- > begin;)
            line.push_back({line[k].X, random_.Number(middle + 5, bottom)});
        if (kind == 0) Add_end(line, {LastCellUnit, random_.Number(top, bottom)});
        if (kind == 1) Add_end(line, {0, random_.Number(middle + 5, bottom)});
        if (kind == 2) Add_end(line, {line.back().X, 0});
        return line;
    }

    // One to six coastlines, one below the other, drawn either way, and all that turned and
    // mirrored; as the text of a cell picture.
    std::string Some_coastlines(int count) {
        std::string lines;
        const bool upside_down = random_.One_in(2), swaps_axes = random_.One_in(2);
        for (int k = 0; k < count; ++k) {
            Coastline line = Line_between(255 * k / count + 5, 255 * (k + 1) / count - 5);
            const bool from_east = random_.One_in(2);
            for (CellPoint& p : line) {
                if (from_east) p.X = LastCellUnit - p.X;
                if (upside_down) p.Y = LastCellUnit - p.Y;
                if (swaps_axes) std::swap(p.X, p.Y);
            }
            if (random_.One_in(2)) std::ranges::reverse(line);
            lines += Points_text(line) + " | ";
        }
        return lines;
    }

    RandomNumbers random_{1};
};

// Twice the area of the triangle, positive when it is walked clockwise on the map.
static std::int64_t Turn(CellPoint a, CellPoint b, CellPoint p) {
    return (int{b.X} - int{a.X}) * (int{p.Y} - int{a.Y}) -
           (int{b.Y} - int{a.Y}) * (int{p.X} - int{a.X});
}

// The different pieces of the cell, each from its smallest vertex on and by its text.
static std::map<std::string, Outline> Pieces_of(std::vector<Outline> candidates) {
    std::map<std::string, Outline> pieces;
    for (Outline& piece : candidates) {
        const auto order = [](CellPoint p) { return 1000 * int{p.Y} + int{p.X}; };
        std::rotate(piece.begin(), std::ranges::min_element(piece, {}, order), piece.end());
        pieces[Points_text(piece)] = piece;
    }
    return pieces;
}

static std::int64_t Area2(const Outline& piece) {
    std::int64_t area = 0;
    for (std::size_t i = 0; i < piece.size(); ++i)
        area += Turn({0, 0}, piece[i], piece[(i + 1) % piece.size()]);
    return area;
}

// No two sides cross, and no vertex comes twice.
static bool Is_simple(const Outline& piece) {
    const std::size_t n = piece.size();
    for (std::size_t i = 0; i < n; ++i)
        for (std::size_t j = i + 1; j < n; ++j) {
            const CellPoint a = piece[i], b = piece[(i + 1) % n], c = piece[j],
                            d = piece[(j + 1) % n];
            const bool do_cross =
                Turn(a, b, c) * Turn(a, b, d) < 0 && Turn(c, d, a) * Turn(c, d, b) < 0;
            if (a == c || do_cross) return false;
        }
    return true;
}

static double Mean_distance(const Outline& outline, CellPoint click) {
    double sum = 0;
    for (const CellPoint& p : outline)
        sum += std::hypot(int{p.X} - int{click.X}, int{p.Y} - int{click.Y});
    return sum / static_cast<double>(outline.size());
}

// The pieces are simple and fill the cell, and the nearest one is picked when it is the one
// clicked.
TEST_F(PolygonPropertiesTest, EveryRandomCell) {
    int picked = 0;
    for (int cell = 0; cell < 2000 && !HasFailure(); ++cell) {
        const int count = random_.Number(1, 6);
        const std::string lines = Some_coastlines(count);
        const CellPoint click{random_.Number(1, 254), random_.Number(1, 254)};
        SCOPED_TRACE(lines + Points_text({{click}}));
        const auto project = Cell_project(lines);
        const Session session = Cell_session(click);
        RecordingMessages messages;
        const auto candidates = Candidate_polygons(*project, session, messages);
        EXPECT_EQ(std::ssize(candidates), 2 * count);
        const auto pieces = Pieces_of(candidates);
        EXPECT_EQ(std::ssize(pieces), count + 1);
        std::int64_t area2 = 0;
        for (const auto& [text, piece] : pieces) {
            EXPECT_TRUE(Is_simple(piece) && Area2(piece) > 0) << text;
            area2 += Area2(piece);
        }
        EXPECT_EQ(area2, 2 * LastCellUnit * LastCellUnit);

        const auto nearest = std::ranges::min_element(
            pieces, {}, [&](const auto& piece) { return Mean_distance(piece.second, click); });
        const auto is_around = [&](const auto& piece) { return Surrounds(piece.second, click); };
        if (!is_around(*nearest) || std::ranges::count_if(pieces, is_around) > 1) continue;
        ++picked;
        const LWMPolyResult result =
            Add_LWM_Poly(*project, session, messages, HeightChoice::Conform, "");
        ASSERT_TRUE(result.Added && result.StatusLine.empty());
        EXPECT_EQ(Pieces_of({Stored_outline(*project, 1)}).begin()->first, nearest->first);
        EXPECT_EQ(messages.Said(), "");
    }
    EXPECT_GT(picked, 500);
}

}  // namespace tidemark
