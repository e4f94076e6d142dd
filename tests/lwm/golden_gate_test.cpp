// The sample's whole coast through the polygon builder: all 1024 cells, one at a time.
#include <algorithm>

#include <gtest/gtest.h>

#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "lwm/polygon_builder.h"
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
                coast.push_back({vertex(i, 0), vertex(i, 1), vertex(i + 1, 0), vertex(i + 1, 1)});
    }

    // As the coast alone has it: the map's west edge is in the ocean, and every coastline on the
    // way there changes between water and land. A place on a coastline is either.
    bool Is_water(CellPoint place) const {
        const double x = Cell_edge_VTP(project->CursorCellX) + place.X;
        const double y = Cell_edge_VTP(project->CursorCellY) + place.Y;
        const auto crossed = std::ranges::count_if(coast, [x, y](const CoastStep& step) {
            const auto& [from_x, from_y, to_x, to_y] = step;
            return (from_y > y) != (to_y > y) &&
                   from_x + (y - from_y) * (to_x - from_x) / (to_y - from_y) < x;
        });
        return crossed % 2 == 0;
    }

    Outline Build(CellPoint click) {
        project->LWMCount = 0;
        project->CursorInCellX = click.X;
        project->CursorInCellY = click.Y;
        EXPECT_TRUE(Add_LWM_Poly(*project, messages, HeightChoice::Conform, "").Added);
        return LWM_outline(*project, 1);
    }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    RecordingMessages messages;
    std::vector<CoastStep> coast;
};

// Clicks all over a cell's water (or over its land where there is no water) build polygons that
// cover all of it and nothing else. A click that builds another piece than its own counts for
// nothing, but each piece must be built by one of its clicks.
TEST_F(GoldenGate, EveryCellsWaterIsBuilt) {
    constexpr int spacing = 15;
    std::vector<CellPoint> grid;  // has no place on a coastline
    for (int y = spacing / 2; y < CellSizeVTP; y += spacing)
        for (int x = spacing / 2; x < CellSizeVTP; x += spacing) grid.push_back({x, y});

    for (int cell = 0; cell < 1024; ++cell) {
        project->CursorCellX = cell % 32;
        project->CursorCellY = cell / 32;
        const auto is_water = [this](CellPoint place) { return Is_water(place); };
        const bool wanted = std::ranges::any_of(grid, is_water);
        std::vector<Outline> pieces;
        const auto is_built = [&](CellPoint place) {
            return std::ranges::any_of(pieces,
                                       [&](auto& piece) { return Surrounds(piece, place); });
        };
        for (const CellPoint& click : grid) {
            if (Is_water(click) != wanted || is_built(click)) continue;
            const Outline piece = Build(click);
            if (Surrounds(piece, click)) pieces.push_back(piece);
        }
        for (const CellPoint& place : grid)
            EXPECT_EQ(is_built(place), Is_water(place) == wanted)
                << "cell " << cell << ": " << Points_text({{place}});
    }
    EXPECT_TRUE(messages.Shown.empty());
}

}  // namespace
}  // namespace tidemark
