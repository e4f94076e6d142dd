// The sample's whole coast through the polygon builder: all 1024 cells, one at a time.
#include "fakes/rules_test.h"
#include "lwm/polygon_builder.h"
#include "lwm/polygon_candidates.h"
#include "model/cell_frame.h"

namespace tidemark {

class GoldenGate : public testing::Test {
  protected:
    GoldenGate() {
        EXPECT_FALSE(Read_project(Source_file("sample/golden-gate.TDM"), project).Error);
        for (const Segment& segment : Segments(project))
            for (int i = segment.First; Is_coastline(segment.Mode) && i < segment.Last; ++i)
                coast.push_back(i);
    }

    // Runs `check` once in every cell, the cursor's.
    template <class Check>
    void In_every_cell(Check check) {
        for (int cell = 0; cell < 1024; ++cell) {
            session.CursorCellX = cell % 32;
            session.CursorCellY = cell / 32;
            SCOPED_TRACE(testing::Message() << "cell " << cell % 32 << ", " << cell / 32);
            check(cell % 32, cell / 32);
        }
        EXPECT_EQ(messages.Said(), "");
    }

    // As the coast alone has it: the map's west edge is in the ocean, and every coastline on the
    // way there changes between water and land. A place on a coastline is either.
    bool Is_water(CellPoint place) const {
        const double x = Cell_edge_VTP(session.CursorCellX) + place.X;
        const double y = Cell_edge_VTP(session.CursorCellY) + place.Y;
        const auto at = [this](int i, int axis) { return double(project.VTPPoint(i, axis)); };
        const auto crossed = std::ranges::count_if(coast, [&](int i) {
            if ((at(i, 1) > y) == (at(i + 1, 1) > y)) return false;
            const double part = (y - at(i, 1)) / (at(i + 1, 1) - at(i, 1));
            return at(i, 0) + part * (at(i + 1, 0) - at(i, 0)) < x;
        });
        return crossed % 2 == 0;
    }

    static bool One_surrounds(const std::vector<Outline>& pieces, CellPoint place) {
        return std::ranges::any_of(pieces, [=](const Outline& p) { return Surrounds(p, place); });
    }

    Outline Build(CellPoint click) {
        project.LWMCount = 0;
        session.DrawMode = Is_water(click) ? WaterPolygon : LandPolygon;
        session.CursorInCellX = click.X;
        session.CursorInCellY = click.Y;
        EXPECT_TRUE(Add_LWM_Poly(project, session, messages, HeightChoice::Conform, "").Added);
        return Stored_outline(project, 1);
    }

    Project project;
    Session session;
    RecordingMessages messages;
    std::vector<int> coast;  // the points from which a step of a coastline goes on
};

// Clicks all over a cell's water (or over its land where there is no water) build polygons that
// cover all of it and nothing else. A click that builds another piece than its own counts for
// nothing, but each piece must be built by one of its clicks.
TEST_F(GoldenGate, EveryCellsWaterIsBuilt) {
    std::vector<CellPoint> grid;  // with no place on a coastline
    for (int y = 7; y < CellSizeVTP; y += 15)
        for (int x = 7; x < CellSizeVTP; x += 15) grid.push_back({x, y});
    In_every_cell([&](int, int) {
        const auto is_water = [this](CellPoint place) { return Is_water(place); };
        const bool wanted = std::ranges::any_of(grid, is_water);
        std::vector<Outline> pieces;
        for (const CellPoint& click : grid) {
            if (Is_water(click) != wanted || One_surrounds(pieces, click)) continue;
            const Outline piece = Build(click);
            if (Surrounds(piece, click)) pieces.push_back(piece);
        }
        for (const CellPoint& place : grid)
            EXPECT_EQ(One_surrounds(pieces, place), Is_water(place) == wanted)
                << place.X << ", " << place.Y;
    });
}

// Neighbours see the coastlines cross their common edge at the same places, and so agree on land
// and water all along it. Every crossing of a cell's boundary starts one of its candidates.
TEST_F(GoldenGate, NeighboursMeet) {
    using Crossing = std::array<int, 3>;  // axis; line between two columns or rows; place along it
    std::vector<Crossing> leaving, entering;  // as the cells before and after the lines see them
    const auto see = [&](int axis, int cell, int across, int along) {
        if (across == LastCellUnit && cell < LastLOD13) leaving.push_back({axis, cell + 1, along});
        if (across == 0 && cell > 0) entering.push_back({axis, cell, along});
    };
    In_every_cell([&](int column, int row) {
        const std::vector<Outline> candidates = Candidate_polygons(project, session, messages);
        for (const Outline& candidate : candidates) {
            if (candidates.size() == 1) return;  // the whole cell
            const auto [x, y] = candidate.front();
            see(0, column, x, Cell_edge_VTP(row) + y);
            see(1, row, y, Cell_edge_VTP(column) + x);
        }
    });
    std::ranges::sort(leaving);
    std::ranges::sort(entering);
    EXPECT_EQ(leaving, entering);
    EXPECT_FALSE(leaving.empty());
}

}  // namespace tidemark
