#include "table_reporter.h"

#include <algorithm>
#include <cstdio>

namespace tidemark {

namespace {

std::string Duration_text(double microseconds) {
    char text[32];
    if (microseconds < 1000)
        std::snprintf(text, sizeof text, "%.3g us", microseconds);
    else
        std::snprintf(text, sizeof text, "%.3g ms", microseconds / 1000);
    return text;
}

// Splits "reading the project [3x]" into its two parts.
std::pair<std::string, std::string> Name_and_limit(const std::string& what) {
    const auto bracket = what.rfind(" [");
    if (bracket == what.npos) return {what, ""};
    return {what.substr(0, bracket), what.substr(bracket + 2, what.size() - bracket - 3)};
}

}  // namespace

bool TableReporter::ReportContext(const Context&) {
    return true;
}

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        if (run.error_occurred) {
            std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(),
                         run.error_message.c_str());
            has_failed_ = true;
        } else if (run.aggregate_name == "median" || run.repetitions == 1) {
            const std::string& name = run.run_name.function_name;
            const auto bar = name.find('|');
            const double unit = benchmark::GetTimeUnitMultiplier(run.time_unit);
            figures_[run.family_index] = {name.substr(0, bar), name.substr(bar + 1),
                                          run.GetAdjustedRealTime() / unit * 1e6};
        }
    }
}

void TableReporter::Finalize() {
    for (auto at = figures_.begin(); at != figures_.end();) {
        const Figure& own = at->second;
        const auto [name, limit] = Name_and_limit(own.What);
        std::string baselines, ratios;
        for (++at; at != figures_.end() && at->second.What == own.What; ++at) {
            const Figure& baseline = at->second;
            char ratio[32];
            std::snprintf(ratio, sizeof ratio, "%.2f", own.Microseconds / baseline.Microseconds);
            baselines += (baselines.empty() ? "" : "; ") + baseline.Whose + ": " +
                         Duration_text(baseline.Microseconds);
            ratios += (ratios.empty() ? "" : "; ") + std::string(ratio);
        }
        std::printf("| %s | %s | %s | %s | %s |\n", name.c_str(), limit.c_str(),
                    Duration_text(own.Microseconds).c_str(), baselines.c_str(), ratios.c_str());
    }
}

int Run_benchmarks(int argc, char** argv) {
    std::string repetitions = "--benchmark_repetitions=5";
    std::string at_least = "--benchmark_min_time=0.2";
    // A figure and its baselines meet the same disturbances when their repetitions are mixed.
    std::string mixed = "--benchmark_enable_random_interleaving=true";
    std::vector<char*> arguments{argv[0], repetitions.data(), at_least.data(), mixed.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;
    TableReporter table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return table.Has_failed() ? 1 : 0;
}

}  // namespace tidemark
