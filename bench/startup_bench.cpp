// Start-up to the first painted windows, beside an empty Qt program.
#include <cstdlib>
#include <string>

#include <benchmark/benchmark.h>

namespace {

void Start(benchmark::State& state, const std::string& command_line) {
    const std::string command = TIDEMARK_BIN_DIR "/" + command_line + " >/dev/null 2>&1";
    for (auto _ : state)
        if (std::system(command.c_str()) != 0) state.SkipWithError("it did not start");
}

const bool registered = [] {
    for (const auto& [whose, command_line] :
         {std::pair{"tidemark", "startup_editor"},
          {"an empty Qt program", "startup_empty"},
          {"the same with the four menus", "startup_empty File Background Output Help"}})
        benchmark::RegisterBenchmark(
            (std::string("start-up to the first paint [1.25x]|") + whose).c_str(),
            [command = std::string(command_line)](benchmark::State& state) {
                Start(state, command);
            })
            ->UseRealTime()
            ->MinTime(1)
            ->Unit(benchmark::kMillisecond);
    return true;
}();

}  // namespace
