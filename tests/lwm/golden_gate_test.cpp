// The sample's whole coast through the polygon builder: all 1024 cells, one at a time.
#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "fakes/recording_messages.h"
#include "lwm/polygon_builder.h"
#include "lwm/polygon_candidates.h"
#include "model/cell_frame.h"
#include "model/drawing_modes.h"
#include "model/project_file.h"
#include "model/segments.h"
#include "platform/files.h"

namespace tidemark {

namespace {

struct CoastStep {
    double FromX, FromY, ToX, ToY;
};

class GoldenGate : public testing::Test {
  protected:
    GoldenGate() {
        std::string bytes;
        EXPECT_TRUE(DiskFiles().Read(TIDEMARK_SOURCE_DIR "/sample/golden-gate.TDM",
                                     MaxProjectFileSize, bytes));
        EXPECT_FALSE(Read_project(bytes, *project).Error);
        const auto vertex = [this](int i, int axis) { return double(project->VTPPoint(i, axis)); };
        for (const Segment& segment : Segments(*project))
            for (int i = segment.First; Is_coastline(segment.Mode) && i < segment.Last; ++i)
                coast_.push_back({vertex(i, 0), vertex(i, 1), vertex(i + 1, 0), vertex(i + 1, 1)});

        constexpr int spacing = 15;
        for (int y = spacing / 2; y < CellSizeVTP; y += spacing)
            for (int x = spacing / 2; x < CellSizeVTP; x += spacing) grid.push_back({x, y});
    }

    // Runs `check` once in every cell, the cursor's.
    template <class Check>
    void In_every_cell(Check check) {
        for (int row = 0; row <= LastLOD13; ++row)
            for (int column = 0; column <= LastLOD13; ++column) {
                SCOPED_TRACE(testing::Message() << "cell " << column << ", " << row);
                project->CursorCellX = column;
                project->CursorCellY = row;
                check();
            }
        EXPECT_TRUE(messages.Shown.empty());
    }

    // As the coast alone has it: the map's west edge is in the ocean, and every coastline on the
    // way there changes between water and land. A place on a coastline is either.
    bool Is_water(CellPoint place) const {
        const double x = Cell_edge_VTP(project->CursorCellX) + place.X;
        const double y = Cell_edge_VTP(project->CursorCellY) + place.Y;
        const auto crossed = std::ranges::count_if(coast_, [x, y](const CoastStep& step) {
            const auto& [from_x, from_y, to_x, to_y] = step;
            return (from_y > y) != (to_y > y) &&
                   from_x + (y - from_y) * (to_x - from_x) / (to_y - from_y) < x;
        });
        return crossed % 2 == 0;
    }

    Outline Build(CellPoint click) {
        project->LWMCount = 0;
        project->DrawMode = Is_water(click) ? WaterPolygon : LandPolygon;
        project->CursorInCellX = click.X;
        project->CursorInCellY = click.Y;
        Outline outline;
        if (!Add_LWM_Poly(*project, messages, HeightChoice::Conform, "").Added) return outline;
        for (int point = 1; point <= project->LWMPointCount(1); ++point)
            outline.push_back({project->LWMPoint(1, point, 0), project->LWMPoint(1, point, 1)});
        return outline;
    }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    RecordingMessages messages;
    std::vector<CellPoint> grid;  // over one cell, with no place on a coastline

  private:
    std::vector<CoastStep> coast_;
};

bool One_surrounds(const std::vector<Outline>& pieces, CellPoint place) {
    return std::ranges::any_of(pieces,
                               [place](const Outline& piece) { return Surrounds(piece, place); });
}

}  // namespace

// Clicks all over a cell's water (or over its land where there is no water) build polygons that
// cover all of it and nothing else. A click that builds another piece than its own counts for
// nothing, but each piece must be built by one of its clicks.
TEST_F(GoldenGate, EveryCellsWaterIsBuilt) {
    In_every_cell([this] {
        const auto is_water = [this](CellPoint place) { return Is_water(place); };
        const bool wanted = std::ranges::any_of(grid, is_water);
        std::vector<Outline> pieces;
        for (const CellPoint& click : grid) {
            if (Is_water(click) != wanted || One_surrounds(pieces, click)) continue;
            Outline piece = Build(click);
            EXPECT_FALSE(piece.empty());
            if (Surrounds(piece, click)) pieces.push_back(std::move(piece));
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
    In_every_cell([&] {
        const std::vector<Outline> candidates = Candidate_polygons(*project, messages);
        if (candidates.size() == 1) return;  // the whole cell
        const int column = project->CursorCellX, row = project->CursorCellY;
        for (const Outline& candidate : candidates) {
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
