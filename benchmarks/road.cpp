#include "road.h"

#include <QtCore/QFile>
#include <QtXml/QDomDocument>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <map>
#include <vector>

namespace bench {
namespace {

/// A task and what it is measured against.
struct Comparison
{
    std::string name;
    std::string yardstick;
    qsizetype bytes;
    double limit; ///< the most that the task may cost, as a multiple of the yardstick

    std::string yardstickName() const { return name + " against " + yardstick; }
};

std::vector<Comparison> &comparisons()
{
    static std::vector<Comparison> all;
    return all;
}

void add(const Comparison &comparison, const std::function<void()> &task, const std::function<void()> &yardstick)
{
    comparisons().push_back(comparison);
    const auto registerTask = [](const std::string &name, const std::function<void()> &run) {
        benchmark::RegisterBenchmark(name.c_str(), [run](benchmark::State &state) {
            for (auto _ : state)
                run();
        });
    };
    registerTask(comparison.name, task);
    registerTask(comparison.yardstickName(), yardstick);
}

/// Keeps the median of each benchmark's repetitions.
class MedianReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
                medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
        }
    }

    std::map<std::string, double> medians; // in nanoseconds
};

} // namespace

void addRoad(const std::string &name, const QByteArray &reply, double limit, const Read &read)
{
    add(
        {name, "setContent", reply.size(), limit}, [=] { read(reply); },
        [=] {
            QDomDocument document;
            benchmark::DoNotOptimize(document.setContent(reply));
        });
}

void addGrowth(const std::string &name, const QByteArray &small, const QByteArray &large, double limit,
               const Read &read)
{
    add(
        {name, std::to_string(small.size()) + " bytes", large.size(), limit}, [=] { read(large); },
        [=] { read(small); });
}

bool runAll(std::ostream &output)
{
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    output << std::left << std::setw(44) << "" << std::right << std::setw(9) << "bytes" << std::setw(12) << "us"
           << "  " << std::left << std::setw(14) << "against" << std::right << std::setw(12) << "us" << std::setw(9)
           << "ratio" << std::setw(8) << "limit" << '\n'
           << std::fixed;
    bool good = !reporter.medians.empty();
    for (const Comparison &comparison : comparisons()) {
        if (reporter.medians.count(comparison.name) == 0 || reporter.medians.count(comparison.yardstickName()) == 0)
            continue; // filtered out
        const double time = reporter.medians[comparison.name];
        const double yardstick = reporter.medians[comparison.yardstickName()];
        const double ratio = time / yardstick;
        const bool isOver = ratio > comparison.limit;
        output << std::left << std::setw(44) << comparison.name << std::right << std::setw(9) << comparison.bytes
               << std::setprecision(2) << std::setw(12) << time / 1000 << "  " << std::left << std::setw(14)
               << comparison.yardstick << std::right << std::setw(12) << yardstick / 1000 << std::setprecision(3)
               << std::setw(9) << ratio << std::setprecision(2) << std::setw(8) << comparison.limit
               << (isOver ? "  OVER THE LIMIT" : "") << '\n';
        good = good && !isOver;
    }
    if (!good && reporter.medians.empty())
        output << "Nothing was measured: medians need more than one repetition and a filter that matches.\n";
    return good;
}

QByteArray sample(const QString &path)
{
    QFile file(QStringLiteral(SAMPLES_FOLDER "/") + path);
    require(file.open(QIODevice::ReadOnly), "cannot read sample " + path.toStdString());
    return file.readAll();
}

void require(bool holds, const std::string &what)
{
    if (!holds) {
        std::cerr << "vornsdk-benchmarks: " << what << '\n';
        std::exit(2);
    }
}

} // namespace bench
