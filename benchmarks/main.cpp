// Compares the library's roads with others over the same replies. scripts/bench says what it prints.

#include "growth.h"
#include "guard.h"
#include "instructions.h"
#include "peers.h"
#include "roads.h"
#include "times.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>
#include <QtCore/QHashSeed>
#include <QtCore/QLibraryInfo>
#include <QtCore/QVersionNumber>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <iostream>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr int skipped = 77; // what CTest is told to take for a skipped test

void fail(const QString &what)
{
    std::cerr << "vornsdk-benchmarks: " << what.toStdString() << '\n';
    std::exit(2);
}

void skip(const char *reason)
{
    std::cerr << "vornsdk-benchmarks: skipped, as " << reason << ".\n";
    std::exit(skipped);
}

/// The instructions of \a tasks. Does not return in the run that counts them.
bench::Costs countedInstructions(const std::vector<bench::Task> &tasks)
{
    if (bench::isCountedRun()) {
        for (const bench::Task &task : tasks)
            bench::runCounted(task);
        std::exit(EXIT_SUCCESS);
    }
    if (!bench::canCountInstructions())
        skip("valgrind is missing, and instructions cannot be counted");
    bench::Costs instructions = bench::countInstructions();
    if (instructions.empty())
        fail(QStringLiteral("the instructions were not counted: valgrind failed."));
    return instructions;
}

bench::Costs seedlessTimesOf(const std::vector<bench::Task> &tasks)
{
    QHashSeed::setDeterministicGlobalSeed();
    bench::Costs times = bench::timesOf(tasks);
    QHashSeed::resetRandomGlobalSeed();
    return times;
}

bool printRoads(const QStringList &folders)
{
    const bench::Roads roads(folders);
    const std::vector<bench::Task> &tasks = roads.tasks();
    const bench::Costs instructions = countedInstructions(tasks);
    return roads.print(std::cout, bench::timesOf(tasks), seedlessTimesOf(tasks), instructions,
                       bench::readRatios(QStringLiteral(COMMITTED_RATIOS)));
}

void printPeers(const QStringList &folders)
{
    const bench::Peers peers(folders);
    const bench::Costs instructions = countedInstructions(peers.tasks());
    peers.print(std::cout, bench::timesOf(peers.tasks()), instructions);
}

bool printGrowth()
{
    const bench::Growth growth;
    const bench::Costs instructions = countedInstructions(growth.tasks());
    return growth.print(std::cout, bench::timesOf(growth.tasks()), instructions);
}

std::map<std::string, double> measuredRatios()
{
    const bench::Roads roads({QStringLiteral(SAMPLES_FOLDER)});
    return roads.ratios(countedInstructions(roads.guardedTasks()));
}

#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
constexpr bool isCommittedCompiler = __GNUC__ == 12;
#else
constexpr bool isCommittedCompiler = false;
#endif

bool checkCommitted()
{
    // What is committed was counted with the QDomDocument of Qt 6.4 as the yardstick.
    if (QLibraryInfo::version() >= QVersionNumber(6, 5) || !isCommittedCompiler)
        skip("the committed ratios are those of Qt 6.4 and GCC 12 on x86-64");
    return bench::checkRatios(std::cout, measuredRatios(), bench::readRatios(QStringLiteral(COMMITTED_RATIOS)));
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption replies(QStringLiteral("replies"), QStringLiteral("Measure the replies in FOLDER too."),
                                     QStringLiteral("FOLDER"));
    parser.addOption(replies);
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("what"),
                                 QStringLiteral("roads, peers, growth, sizes, threads, guard or commit."));
    benchmark::Initialize(&argc, argv);
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    arguments.removeAll(bench::countOption());
    parser.process(arguments);
    const QStringList operands = parser.positionalArguments();
    const QString what = operands.join(u' ');

#ifdef __GLIBC__
    // Memory that goes back to the system after each run comes back with a page fault for each page, and that would be
    // measured: on these sizes it is as much as the work.
    mallopt(M_TRIM_THRESHOLD, 1 << 30);
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
#endif
    const QStringList folders = QStringList{QStringLiteral(SAMPLES_FOLDER)} + parser.values(replies);
    bool good = true;
    if (what == QLatin1String("roads"))
        good = printRoads(folders);
    else if (what == QLatin1String("peers"))
        printPeers(folders);
    else if (what == QLatin1String("growth"))
        good = printGrowth();
    else if (what == QLatin1String("sizes"))
        bench::printSizes(std::cout);
    else if (what == QLatin1String("threads"))
        bench::printThreads(std::cout);
    else if (what == QLatin1String("guard"))
        good = checkCommitted();
    else if (what == QLatin1String("commit"))
        bench::writeRatios(QStringLiteral(COMMITTED_RATIOS), measuredRatios());
    else
        fail(QStringLiteral("there is nothing called \"%1\" to measure. Try --help.").arg(what));
    return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
