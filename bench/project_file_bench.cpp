// Reading and writing the largest project, and writing its VTP file.
#include <charconv>
#include <memory>

#include <benchmark/benchmark.h>

#include "fakes/recording_messages.h"
#include "fakes/sample_projects.h"
#include "fakes/temporary_folder.h"
#include "model/project_file.h"
#include "output/assembler_files.h"
#include "output/lwm_text.h"
#include "output/vtp_text.h"

namespace tidemark {
namespace {

const Project& Largest() {
    static const auto project = std::make_unique<Project>(Largest_project());
    return *project;
}

void Read(benchmark::State& state) {
    const std::string bytes = Project_bytes(Largest(), "now");
    const auto project = std::make_unique<Project>();
    for (auto _ : state) {
        const ProjectFileReading reading = Read_project(bytes, *project);
        if (reading.Error) state.SkipWithError("refused");
    }
}

// A loop that only parses the same lines.
void Parse_lines(benchmark::State& state) {
    const std::string bytes = Project_bytes(Largest(), "now");
    for (auto _ : state) {
        const char* at = bytes.data();
        const char* const end = at + bytes.size();
        int sum = 0;
        while (at < end) {
            int value = 0;
            if (*at == ' ') ++at;
            at = std::from_chars(at, end, value).ptr;
            while (at < end && *at != '\n') ++at;
            ++at;
            sum += value;
        }
        benchmark::DoNotOptimize(sum);
    }
}

// Writing each file as the program does, and handing the same bytes, ready made, to the disk.
template <class Make_bytes>
void Write(benchmark::State& state, Make_bytes make_bytes, bool ready_made) {
    const TemporaryFolder folder;
    DiskFiles files;
    const std::string ready = make_bytes();
    for (auto _ : state) {
        const FileResult written = ready_made ? files.Replace(folder / "f", ready)
                                              : files.Replace(folder / "f", make_bytes());
        if (!written) state.SkipWithError(written.Reason().c_str());
    }
}

template <class Make_bytes>
void Register_write(const std::string& what, Make_bytes make_bytes) {
    for (const bool ready_made : {false, true})
        benchmark::RegisterBenchmark(
            (what + " [3x]|" + (ready_made ? "ready-made bytes" : "tidemark")).c_str(),
            [=](benchmark::State& state) { Write(state, make_bytes, ready_made); })
            ->UseRealTime();
}

const bool registered = [] {
    benchmark::RegisterBenchmark("reading the largest project [3x]|tidemark", Read);
    benchmark::RegisterBenchmark("reading the largest project [3x]|from_chars loop", Parse_lines);
    Register_write("writing the largest project", [] { return Project_bytes(Largest(), "now"); });
    Register_write("writing its VTP file", [] { return VTP_file_bytes(Largest()); });
    Register_write("writing its LWM file", [] { return LWM_file_bytes(Largest()); });
    return true;
}();

}  // namespace
}  // namespace tidemark
