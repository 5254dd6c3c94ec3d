#include "times.h"

#include <benchmark/benchmark.h>

namespace bench {
namespace {

/// Keeps the median of each benchmark's repetitions, or what there is where none are asked for.
class MedianReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.repetitions == 1 || run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.GetAdjustedCPUTime() / 1000;
        }
    }

    Costs medians;
};

} // namespace

Costs timesOf(const std::vector<Task> &tasks)
{
    benchmark::ClearRegisteredBenchmarks();
    for (const Task &task : tasks) {
        benchmark::RegisterBenchmark(task.name.c_str(), [&task](benchmark::State &state) {
            for (auto _ : state)
                task.run();
        });
    }
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.medians;
}

} // namespace bench
