// Start-up to the first painted windows, beside an empty Qt program.
#include <cstdlib>
#include <string>

#include <benchmark/benchmark.h>

namespace {

void Start(benchmark::State& state, const std::string& program) {
    const std::string command = TIDEMARK_BIN_DIR "/" + program + " >/dev/null 2>&1";
    for (auto _ : state)
        if (std::system(command.c_str()) != 0) state.SkipWithError("it did not start");
}

const bool registered = [] {
    for (const auto& [whose, program] : {std::pair{"tidemark", "startup_editor"},
                                         std::pair{"an empty Qt program", "startup_empty"}})
        benchmark::RegisterBenchmark(
            (std::string("start-up to the first paint [1.25x]|") + whose).c_str(),
            [program = std::string(program)](benchmark::State& state) { Start(state, program); })
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
    return true;
}();

}  // namespace
