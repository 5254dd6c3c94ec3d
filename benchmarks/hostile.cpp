// Measures what hostile replies cost, and prints the tables of docs/hostile-replies.md.

#include "hostile/cost.h"
#include "hostile/documents.h"
#include "hostile/readers.h"
#include "instructions.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QLocale>

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <memory>
#include <string>

using hostile::Cost;
using hostile::Document;
using hostile::Reader;

namespace {

/// The most that ten times the size may cost, as a multiple: of instructions, and of memory, where a buffer that
/// doubles may be half empty.
constexpr double limits[] = {12, 13};

bool good = true;

std::string nameOf(const Document &document)
{
    return QLocale(QLocale::English).toString(document.count).toStdString() + ' ' + document.name;
}

void require(bool holds, const std::string &what)
{
    if (!holds)
        std::cerr << "vornsdk-hostile: " << what << '\n';
    good = good && holds;
}

/// The records that take the longest, take the most memory and hold the most may be different ones.
void printFullSize(const Document &document)
{
    const QByteArray reply = document.make(document.count);
    require(document.isReadRight(reply, document.count), nameOf(document) + " are read wrongly");
    double seconds = 0;
    std::size_t peakBytes = 0;
    std::ptrdiff_t heldBytes = 0;
    const char *slowest = nullptr;
    for (const Reader &reader : hostile::readers()) {
        std::shared_ptr<const void> record;
        const auto read = [&] { record = reader.read(reply); };
        const Cost first = hostile::costOf(read);
        record.reset();
        const double least = std::min(first.seconds, hostile::costOf(read).seconds);
        if (least > seconds)
            slowest = reader.name;
        seconds = std::max(seconds, least);
        peakBytes = std::max(peakBytes, first.peakBytes);
        heldBytes = std::max(heldBytes, first.heldBytes);
    }
    const auto size = static_cast<double>(reply.size());
    std::cout << "| " << nameOf(document) << " | " << std::setprecision(1) << size / 1e6 << " | " << seconds * 1e3
              << " | " << seconds * 1e9 / size << " | " << slowest << " | " << static_cast<double>(peakBytes) / 1e6
              << " | " << static_cast<double>(peakBytes) / size << " | " << static_cast<double>(heldBytes) / size
              << " |" << std::endl;
}

/// The parts of the full size at which growth is measured: to be counted, an instruction takes fifty times as long.
constexpr qsizetype divisors[] = {10000, 1000, 100};

std::string sizeName(const Document &document, qsizetype divisor)
{
    return std::string(document.name) + '/' + std::to_string(divisor);
}

std::size_t peakOfAll(const QByteArray &reply)
{
    return hostile::costOf([&] { hostile::readAll(reply); }).peakBytes;
}

void printGrowth(const Document &document, const bench::Costs &instructions)
{
    double costs[2][3] = {};
    for (int i = 0; i < 3; ++i) {
        costs[0][i] = instructions.at(sizeName(document, divisors[i]));
        costs[1][i] = static_cast<double>(peakOfAll(document.make(document.count / divisors[i])));
    }
    std::cout << "| " << document.name << std::setprecision(1);
    for (int unit = 0; unit < 2; ++unit) {
        for (int i = 1; i < 3; ++i) {
            const double ratio = costs[unit][i] / costs[unit][i - 1];
            require(ratio <= limits[unit], std::string(document.name) + " cost more than in proportion");
            std::cout << " | " << ratio;
        }
    }
    std::cout << " |\n";
}

/// The run under callgrind.
void countAll()
{
    for (const Document &document : hostile::documents()) {
        for (const qsizetype divisor : divisors) {
            const QByteArray reply = document.make(document.count / divisor);
            bench::runCounted({sizeName(document, divisor), [&] { hostile::readAll(reply); }});
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (bench::isCountedRun()) {
        countAll();
        return EXIT_SUCCESS;
    }
    std::cout << std::fixed
              << "| Reply | MB | slowest, ms | ns for a byte | which | most memory, MB | bytes for a byte | held for a "
                 "byte |\n"
                 "|---|---:|---:|---:|---|---:|---:|---:|\n";
    for (const Document &document : hostile::documents())
        printFullSize(document);

    const bench::Costs instructions = bench::countInstructions();
    if (instructions.empty()) {
        std::cerr << "vornsdk-hostile: instructions were not counted: is valgrind missing?\n";
        return EXIT_FAILURE;
    }
    std::cout << "\n| Many | instructions, 1 to 10 | 10 to 100 | memory, 1 to 10 | 10 to 100 |\n"
                 "|---|---:|---:|---:|---:|\n";
    for (const Document &document : hostile::documents())
        printGrowth(document, instructions);
    return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
