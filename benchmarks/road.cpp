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

const std::string yardstickSuffix = "/setContent";

std::vector<Road> &roads()
{
    static std::vector<Road> all;
    return all;
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

void add(const Road &road)
{
    roads().push_back(road);
    benchmark::RegisterBenchmark(road.name.c_str(), [road](benchmark::State &state) {
        for (auto _ : state)
            road.run(road.reply);
    });
    benchmark::RegisterBenchmark((road.name + yardstickSuffix).c_str(), [road](benchmark::State &state) {
        for (auto _ : state) {
            QDomDocument document;
            benchmark::DoNotOptimize(document.setContent(road.reply));
        }
    });
}

bool runAll(std::ostream &output)
{
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    output << std::left << std::setw(52) << "road" << std::right << std::setw(8) << "bytes" << std::setw(12)
           << "road us" << std::setw(16) << "setContent us" << std::setw(8) << "ratio" << std::setw(8) << "limit"
           << '\n'
           << std::fixed;
    bool good = true;
    for (const Road &road : roads()) {
        if (reporter.medians.count(road.name) == 0)
            continue; // filtered out
        const double time = reporter.medians[road.name];
        const double yardstick = reporter.medians[road.name + yardstickSuffix];
        const double ratio = time / yardstick;
        output << std::left << std::setw(52) << road.name << std::right << std::setw(8) << road.reply.size()
               << std::setprecision(2) << std::setw(12) << time / 1000 << std::setw(16) << yardstick / 1000
               << std::setprecision(3) << std::setw(8) << ratio << std::setprecision(2) << std::setw(8) << road.limit
               << (ratio > road.limit ? "  OVER THE LIMIT" : "") << '\n';
        good = good && ratio <= road.limit;
    }
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
