// Checking, mending and filling a whole coast, beside asking the polygon builder once for every
// cell that the coast is in, and laying a coast of a file, beside looking at its points once.
#include <cmath>
#include <memory>

#include <benchmark/benchmark.h>

#include "coast/check.h"
#include "coast/coast_survey.h"
#include "coast/fill.h"
#include "coast/lay_coast.h"
#include "coast/mend.h"
#include "fakes/sample_projects.h"
#include "model/project_file.h"
#include "model/records.h"
#include "model/segments.h"
#include "platform/files.h"

namespace tidemark {
namespace {

std::unique_ptr<Project> Golden_gate() {
    auto project = std::make_unique<Project>();
    std::string bytes;
    DiskFiles().Read(TIDEMARK_SOURCE_DIR "/sample/golden-gate.TDM", MaxProjectFileSize, bytes);
    Read_project(bytes, *project);
    Repair_segments(*project);
    return project;
}

// As a hand draws it: every other point between a segment's first and last two is left out.
std::unique_ptr<Project> Thinned() {
    auto project = Golden_gate();
    int count = 0;
    for (int i = 1; i <= project->VTPCount; ++i) {
        const bool is_near_end = project->VTPSegStart(i) || project->VTPSegEnd(i) ||
                                 project->VTPSegStart(i - 1) || project->VTPSegEnd(i + 1);
        if (is_near_end || i % 2 == 0)
            PointTable::Set(*project, ++count, PointTable::Get(*project, i));
    }
    PointTable::Set_count(*project, count);
    Repair_segments(*project);
    return project;
}

void Ask_the_builder(benchmark::State& state, const Project& project) {
    for (auto _ : state) benchmark::DoNotOptimize(CoastSurvey(project).Cells().size());
}

void Check(benchmark::State& state, const Project& project) {
    for (auto _ : state) benchmark::DoNotOptimize(Check_coast(project).size());
}

void Mend_the_coast(benchmark::State& state, const Project& project) {
    for (auto _ : state) {
        Project mended = project;
        if (Mend_all(mended).Mended == 0) state.SkipWithError("nothing was mended");
    }
}

void Fill_the_coast(benchmark::State& state, const Project& project) {
    for (auto _ : state) {
        Project filled = project;
        FillPlan plan = Plan_fill(filled, 1, {});
        plan.Polygons.resize(std::min<std::size_t>(plan.Polygons.size(), MaxLWMCount));
        filled.LWMCount = 0;
        Fill(filled, plan);
        if (filled.LWMCount != MaxLWMCount) state.SkipWithError("not filled");
    }
}

// A spiral's arms would not do: a wave with ever smaller waves on it, from west to east.
std::vector<CoastLine> Long_coast(const Project& map, int points) {
    const GeoBox box = Map_box(map);
    CoastLine line;
    for (int i = 0; i < points; ++i) {
        const double part = static_cast<double>(i) / (points - 1);
        double wave = 0.5;
        for (int k = 0; k < 7; ++k)
            wave += 0.1 / (1 << k) * std::sin(part * 12 * std::pow(3, k) + k);
        line.Positions.push_back(
            {box.West + part * (box.East - box.West), box.South + wave * (box.North - box.South)});
    }
    return {line};
}

void Lay(benchmark::State& state, const Project& map, const std::vector<CoastLine>& lines) {
    for (auto _ : state)
        if (Lay_coast(map, lines, {}).Lines.empty()) state.SkipWithError("not laid");
}

void Look_at_the_points(benchmark::State& state, const std::vector<CoastLine>& lines) {
    for (auto _ : state) {
        double length = 0;
        const auto& positions = lines.front().Positions;
        for (std::size_t i = 1; i < positions.size(); ++i)
            length += std::hypot(positions[i].Longitude - positions[i - 1].Longitude,
                                 positions[i].Latitude - positions[i - 1].Latitude);
        benchmark::DoNotOptimize(length);
    }
}

template <class Measure>
void Register(const char* what, const Measure& measure) {
    benchmark::RegisterBenchmark(what, measure);
}

const bool registered = [] {
    const std::shared_ptr<const Project> golden = Golden_gate();
    const std::shared_ptr<const Project> thinned = Thinned();
    const auto largest = std::make_shared<const Project>(Largest_project());
    const char* const builder = "|asking the builder for each of its cells";
    const auto with_builder = [&](const std::string& what, auto measure,
                                  std::shared_ptr<const Project> project) {
        Register((what + "|tidemark").c_str(),
                 [=](benchmark::State& state) { measure(state, *project); });
        Register((what + builder).c_str(),
                 [=](benchmark::State& state) { Ask_the_builder(state, *project); });
    };
    with_builder("checking the Golden Gate's coast [5 ms]", Check, golden);
    with_builder("checking the largest project [5 ms]", Check, largest);
    with_builder("mending every other point of it left out [20 ms]", Mend_the_coast, thinned);
    with_builder("filling it both ways [20 ms]", Fill_the_coast, golden);

    const auto lines = std::make_shared<const std::vector<CoastLine>>(Long_coast(*golden, 100000));
    Register("laying 100,000 points into one map [50 ms]|tidemark",
             [=](benchmark::State& state) { Lay(state, *golden, *lines); });
    Register("laying 100,000 points into one map [50 ms]|looking at them once",
             [=](benchmark::State& state) { Look_at_the_points(state, *lines); });
    return true;
}();

}  // namespace
}  // namespace tidemark
