#include "road.h"

#include "instructions.h"

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
    Limits limits;
    std::function<void()> runTask;
    std::function<void()> runYardstick;

    std::string yardstickName() const { return name + " against " + yardstick; }
};

std::vector<Comparison> &comparisons()
{
    static std::vector<Comparison> all;
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

using Costs = std::map<std::string, double>;

/// The cost of a task over that of its yardstick; nothing if one of them was not measured.
std::optional<double> ratio(const Comparison &comparison, const Costs &costs)
{
    const auto task = costs.find(comparison.name);
    const auto yardstick = costs.find(comparison.yardstickName());
    if (task == costs.end() || yardstick == costs.end())
        return std::nullopt;
    return task->second / yardstick->second;
}

bool isOver(std::optional<double> ratio, std::optional<double> limit)
{
    return ratio && limit && *ratio > *limit;
}

void printNumber(std::ostream &output, std::optional<double> number, int width, int precision)
{
    output << std::setw(width);
    if (number)
        output << std::fixed << std::setprecision(precision) << *number;
    else
        output << '-';
}

} // namespace

void addRoad(const std::string &name, const QByteArray &reply, const Limits &limits, const Read &read)
{
    comparisons().push_back({name, "setContent", reply.size(), limits, [=] { read(reply); },
                             [=] {
                                 QDomDocument document;
                                 benchmark::DoNotOptimize(document.setContent(reply));
                             }});
}

void addGrowth(const std::string &name, const QByteArray &small, const QByteArray &large, const Limits &limits,
               const Read &read)
{
    comparisons().push_back({name, std::to_string(small.size()) + " bytes", large.size(), limits, [=] { read(large); },
                             [=] { read(small); }});
}

bool runAll(std::ostream &output)
{
    const auto registerTask = [](const std::string &name, const std::function<void()> &run) {
        benchmark::RegisterBenchmark(name.c_str(), [run](benchmark::State &state) {
            for (auto _ : state)
                run();
        });
    };
    for (const Comparison &comparison : comparisons()) {
        registerTask(comparison.name, comparison.runTask);
        registerTask(comparison.yardstickName(), comparison.runYardstick);
    }
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const Costs &times = reporter.medians;

    QStringList measured;
    for (const Comparison &comparison : comparisons()) {
        if (ratio(comparison, times)) // else filtered out
            measured.append(QString::fromStdString(comparison.name));
    }
    if (measured.isEmpty()) {
        output << "Nothing was measured: medians need more than one repetition and a filter that matches.\n";
        return false;
    }
    const Costs instructions = countInstructions(measured);
    if (instructions.empty())
        output << "The instructions were not counted: valgrind is missing or failed.\n";

    output << std::left << std::setw(46) << "" << std::right << std::setw(9) << "bytes" << std::setw(12) << "us"
           << "  " << std::left << std::setw(14) << "against" << std::right << std::setw(12) << "us" << std::setw(8)
           << "time" << std::setw(8) << "limit" << std::setw(14) << "instructions" << std::setw(8) << "limit" << '\n';
    bool good = !instructions.empty();
    for (const Comparison &comparison : comparisons()) {
        const auto timeRatio = ratio(comparison, times);
        if (!timeRatio)
            continue;
        const auto instructionRatio = ratio(comparison, instructions);
        const bool over =
            isOver(timeRatio, comparison.limits.time) || isOver(instructionRatio, comparison.limits.instructions);
        output << std::left << std::setw(46) << comparison.name << std::right << std::setw(9) << comparison.bytes;
        printNumber(output, times.at(comparison.name) / 1000, 12, 2);
        output << "  " << std::left << std::setw(14) << comparison.yardstick << std::right;
        printNumber(output, times.at(comparison.yardstickName()) / 1000, 12, 2);
        printNumber(output, timeRatio, 8, 3);
        printNumber(output, comparison.limits.time, 8, 2);
        printNumber(output, instructionRatio, 14, 3);
        printNumber(output, comparison.limits.instructions, 8, 2);
        output << (over ? "  OVER THE LIMIT" : "") << '\n';
        good = good && !over;
    }
    return good;
}

void runCounted(const QStringList &names)
{
    for (const Comparison &comparison : comparisons()) {
        if (!names.contains(QString::fromStdString(comparison.name)))
            continue;
        runCounted(comparison.name, comparison.runTask);
        runCounted(comparison.yardstickName(), comparison.runYardstick);
    }
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
