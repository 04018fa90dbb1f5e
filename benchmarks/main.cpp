// Runs the benchmarks and prints one plain line for each: name, value, unit; a counter has a line of its own.

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

class PlainReporter final : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            // Of a benchmark with a clock of its own the time stands under this name.
            const bool hasOwnClock = run.run_name.time_type == "manual_time";
            std::printf("%s %.4g %s\n", run.benchmark_name().c_str(),
                        hasOwnClock ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime(),
                        benchmark::GetTimeUnitString(run.time_unit));
            for (const auto& [name, counter] : run.counters) {
                std::printf("%s/%s %.4g\n", run.benchmark_name().c_str(), name.c_str(), counter.value);
            }
            std::fflush(stdout);
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    PlainReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
