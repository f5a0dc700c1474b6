#include "Ratios.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>

namespace {

// Prints as usual and keeps the medians.
class MedianReporter : public benchmark::ConsoleReporter
{
public:
    MedianReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
                const double seconds = run.GetAdjustedCPUTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
                medians[run.run_name.function_name] = seconds * 1e6;
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> medians; // microseconds of processor time
};

} // namespace

int runAndCompare(int argc, char** argv, const std::vector<Comparison>& comparisons)
{
    std::vector<std::string> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1,
                     {"--benchmark_repetitions=9", "--benchmark_min_time=0.05",
                      "--benchmark_enable_random_interleaving=true", "--benchmark_report_aggregates_only=true"});
    std::vector<char*> pointers;
    pointers.reserve(arguments.size());
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data())) {
        return 2;
    }
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::printf("\n%-44s %12s %12s %8s %8s\n", "times faster than the peer", "ours", "peer", "ratio", "wanted");
    bool allReached = true;
    for (const Comparison& comparison : comparisons) {
        const auto ours = reporter.medians.find(comparison.ours);
        const auto theirs = reporter.medians.find(comparison.theirs);
        if (ours == reporter.medians.end() || theirs == reporter.medians.end()) {
            std::printf("%-44s was not measured\n", comparison.title.c_str());
            allReached = false;
            continue;
        }
        const double ratio = theirs->second / ours->second;
        std::printf("%-44s %9.0f us %9.0f us %8.2f", comparison.title.c_str(), ours->second, theirs->second, ratio);
        if (comparison.wanted > 0) {
            const bool reached = ratio >= comparison.wanted;
            allReached = allReached && reached;
            std::printf(" %8.2f  %s", comparison.wanted, reached ? "PASS" : "FAIL");
        }
        std::printf("\n");
    }
    return allReached ? 0 : 1;
}
