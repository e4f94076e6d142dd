// Prints benchmarks as rows of a Markdown table, each figure beside its baselines.
//
// A benchmark's name is "what is measured|whose": of the names that share the first part, the one
// registered first is the program's own figure and the others are its baselines. A limit stands in
// brackets at the end of the first part: "reading the project [3x]", "an ordinary cell [5 us]".
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace tidemark {

class TableReporter : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    // Whether a benchmark could not do what it measures.
    bool Has_failed() const { return has_failed_; }

  private:
    struct Figure {
        std::string What, Whose;
        double Microseconds;
    };

    std::map<std::int64_t, Figure> figures_;  // in the order of registration
    bool has_failed_ = false;
};

// Runs all benchmarks of the program, several times each, and prints the rows with their medians.
// Returns the program's exit status: 1 when one has failed.
int Run_benchmarks(int argc, char** argv);

}  // namespace tidemark
