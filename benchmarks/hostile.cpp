// Measures what hostile replies cost, and prints the tables of docs/hostile-replies.md; with the argument guard, only
// checks what is counted.

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
#include <sstream>
#include <string>
#include <string_view>

using hostile::Cost;
using hostile::Document;
using hostile::Reader;

namespace {

/// The most that ten times the size may cost, as a multiple: of instructions, and of memory, where a buffer that
/// doubles may be half empty.
constexpr double limits[] = {12, 13};

constexpr int skipped = 77; // what CTest is told to take for a skipped test

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

void requireReadRight(const Document &document, const QByteArray &reply)
{
    require(document.isReadRight(reply, document.count), nameOf(document) + " are read wrongly");
}

/// The records that take the longest, take the most memory and hold the most may be different ones.
void printFullSize(const Document &document)
{
    const QByteArray reply = document.make(document.count);
    requireReadRight(document, reply);
    double seconds = 0;
    std::size_t peakBytes = 0;
    std::ptrdiff_t heldBytes = 0;
    std::size_t recordBytes = 0; // that of all but nodes
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
        if (std::string_view(reader.name) != "XmlResponse")
            recordBytes = std::max(recordBytes, first.peakBytes);
        heldBytes = std::max(heldBytes, first.heldBytes);
    }
    const auto size = static_cast<double>(reply.size());
    std::cout << "| " << nameOf(document) << " | " << std::setprecision(1) << size / 1e6 << " | " << seconds * 1e3
              << " | " << seconds * 1e9 / size << " | " << slowest << " | " << static_cast<double>(peakBytes) / 1e6
              << " | " << static_cast<double>(peakBytes) / size << " | " << static_cast<double>(recordBytes) / size
              << " | " << static_cast<double>(heldBytes) / size << " |" << std::endl;
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

/// How much more \a larger is than \a smaller, which has a tenth of its size.
double growth(const std::string &what, double smaller, double larger, double limit)
{
    const double ratio = larger / smaller;
    require(ratio <= limit, what + " cost more than in proportion: " + std::to_string(ratio) + " times as much");
    return ratio;
}

/// A line of the table, whose growth is within the limits.
std::string growthLine(const Document &document, const bench::Costs &instructions)
{
    double costs[2][3] = {};
    for (int i = 0; i < 3; ++i) {
        costs[0][i] = instructions.at(sizeName(document, divisors[i]));
        costs[1][i] = static_cast<double>(peakOfAll(document.make(document.count / divisors[i])));
    }
    std::ostringstream line;
    line << std::fixed << std::setprecision(1) << "| " << document.name;
    for (int unit = 0; unit < 2; ++unit) {
        for (int i = 1; i < 3; ++i)
            line << " | " << growth(document.name, costs[unit][i - 1], costs[unit][i], limits[unit]);
    }
    line << " |\n";
    return line.str();
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

bench::Costs countedInstructions()
{
    bench::Costs instructions = bench::countInstructions();
    if (instructions.empty()) {
        std::cerr << "vornsdk-hostile: the instructions were not counted: valgrind failed.\n";
        std::exit(EXIT_FAILURE);
    }
    return instructions;
}

void printTables()
{
    std::cout
        << std::fixed
        << "| Reply | MB | slowest, ms | ns for a byte | which | most memory, MB | bytes for a byte | of a record | "
           "held for a byte |\n"
           "|---|---:|---:|---:|---|---:|---:|---:|---:|\n";
    for (const Document &document : hostile::documents())
        printFullSize(document);

    const bench::Costs instructions = countedInstructions();
    std::cout << "\n| Many | instructions, 1 to 10 | 10 to 100 | memory, 1 to 10 | 10 to 100 |\n"
                 "|---|---:|---:|---:|---:|\n";
    for (const Document &document : hostile::documents())
        std::cout << growthLine(document, instructions);
}

void guard()
{
    for (const Document &document : hostile::documents())
        requireReadRight(document, document.make(document.count));
    const bench::Costs instructions = countedInstructions();
    for (const Document &document : hostile::documents())
        (void)growthLine(document, instructions);
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const bool isGuard = QCoreApplication::arguments().value(1) == QLatin1String("guard");
    if (bench::isCountedRun()) {
        countAll();
    } else if (!bench::canCountInstructions()) {
        std::cerr << "vornsdk-hostile: instructions cannot be counted, as valgrind is missing.\n";
        return isGuard ? skipped : EXIT_FAILURE;
    } else if (isGuard) {
        guard();
    } else {
        printTables();
    }
    return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
