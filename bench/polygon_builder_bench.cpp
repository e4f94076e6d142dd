// Building the polygon of an ordinary and of the worst cell, beside a walk over the same points
// that only asks for each whether it is in the cell, and beside GEOS cutting the same cell into
// pieces.
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <geos_c.h>

#include "fakes/cell_picture.h"
#include "fakes/recording_messages.h"
#include "lwm/polygon_builder.h"

namespace tidemark {
namespace {

using Coastlines = std::vector<std::vector<CellPoint>>;

// One coastline of 5 points.
Coastlines Ordinary_cell() {
    return {{{-30, 90}, {20, 100}, {80, 140}, {130, 120}, {180, 150}, {230, 110}, {290, 130}}};
}

// 20 boundary points and 200 edge points: ten coastlines down the cell, of 18 points each.
Coastlines Worst_cell() {
    Coastlines lines;
    for (int line = 0; line < 10; ++line) {
        const int x = 15 + 24 * line;
        lines.push_back({{x, -10}});
        for (int k = 1; k <= 18; ++k) lines.back().push_back({x + (k % 2 ? 8 : -8), 13 * k});
        lines.back().push_back({x, 265});
    }
    return lines;
}

// A full project: coastlines far from the cell, with the cell's own in the middle of them.
std::unique_ptr<Project> Full_project(const Coastlines& cell) {
    auto project = Cell_project("");
    std::size_t left = MaxVTPCount;
    for (const auto& line : cell) left -= line.size();
    std::vector<CellPoint> far;
    for (std::size_t k = 0; k < left; ++k)
        far.push_back({300 + static_cast<int>(k % 50), 300 + static_cast<int>(k / 50)});
    Add_line(*project, 1, std::span(far).first(left / 2));
    for (const auto& line : cell) Add_line(*project, 1, line);
    Add_line(*project, 1, std::span(far).subspan(left / 2));
    return project;
}

void Build(benchmark::State& state, const Coastlines& cell) {
    const auto project = Full_project(cell);
    const Session session = Cell_session({100, 200});
    RecordingMessages messages;
    for (auto _ : state) {
        const LWMPolyResult result =
            Add_LWM_Poly(*project, session, messages, HeightChoice::Conform, "");
        if (!result.Added) state.SkipWithError("refused");
        project->LWMCount = 0;
    }
    if (!messages.Shown.empty()) state.SkipWithError("messages");
}

void Ask_for_the_cell(benchmark::State& state, const Coastlines& cell) {
    const auto project = Full_project(cell);
    CellPoints points(*project, Cell_session());
    for (auto _ : state) {
        int in_cell = 0;
        for (int i = 1; i <= project->VTPCount; ++i)
            if (points.Point_in_cell(i)) ++in_cell;
        benchmark::DoNotOptimize(in_cell);
    }
}

// The cell and its coastlines as GEOS geometries; the coastlines are clipped, noded with the cell's
// outline and made into polygons.
class GeosCell {
  public:
    explicit GeosCell(const Coastlines& cell) {
        std::vector<GEOSGeometry*> lines;
        for (const auto& line : cell) lines.push_back(Line(line));
        coast_ = GEOSGeom_createCollection_r(context_, GEOS_MULTILINESTRING, lines.data(),
                                             static_cast<unsigned>(lines.size()));
        outline_ = Line({{0, 0}, {255, 0}, {255, 255}, {0, 255}, {0, 0}});
    }
    ~GeosCell() {
        GEOSGeom_destroy_r(context_, coast_);
        GEOSGeom_destroy_r(context_, outline_);
        GEOS_finish_r(context_);
    }
    GeosCell(const GeosCell&) = delete;
    GeosCell& operator=(const GeosCell&) = delete;

    int Pieces() const {
        GEOSGeometry* const clipped = GEOSClipByRect_r(context_, coast_, 0, 0, 255, 255);
        GEOSGeometry* const noded = GEOSUnion_r(context_, clipped, outline_);
        GEOSGeometry* const pieces = GEOSPolygonize_r(context_, &noded, 1);
        const int count = GEOSGetNumGeometries_r(context_, pieces);
        for (GEOSGeometry* const geometry : {clipped, noded, pieces})
            GEOSGeom_destroy_r(context_, geometry);
        return count;
    }

  private:
    GEOSGeometry* Line(const std::vector<CellPoint>& points) const {
        GEOSCoordSequence* const sequence =
            GEOSCoordSeq_create_r(context_, static_cast<unsigned>(points.size()), 2);
        unsigned k = 0;
        for (const CellPoint& p : points)
            GEOSCoordSeq_setXY_r(context_, sequence, k++, int{p.X}, int{p.Y});
        return GEOSGeom_createLineString_r(context_, sequence);
    }

    GEOSContextHandle_t context_ = GEOS_init_r();
    GEOSGeometry* coast_;
    GEOSGeometry* outline_;
};

void Cut_with_GEOS(benchmark::State& state, const Coastlines& cell) {
    const GeosCell geos(cell);
    for (auto _ : state)
        if (geos.Pieces() != static_cast<int>(cell.size()) + 1) state.SkipWithError("other pieces");
}

void Register(const std::string& what, const Coastlines& cell) {
    struct Figure {
        const char* Whose;
        void (*Measure)(benchmark::State&, const Coastlines&);
    };
    for (const auto& [whose, measure] : {Figure{"tidemark", Build},
                                         {"asking 999 points for the cell", Ask_for_the_cell},
                                         {"GEOS", Cut_with_GEOS}})
        benchmark::RegisterBenchmark(
            (what + "|" + whose).c_str(),
            [measure = measure, cell](benchmark::State& state) { measure(state, cell); });
}

const bool registered = [] {
    Register("building the polygon of an ordinary cell [5 us]", Ordinary_cell());
    Register("building the polygon of the worst cell [300 us]", Worst_cell());
    return true;
}();

}  // namespace
}  // namespace tidemark
