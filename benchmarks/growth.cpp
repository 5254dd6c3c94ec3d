#include "growth.h"

#include "kinds.h"
#include "replies.h"
#include "roads.h"
#include "times.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <iomanip>
#include <iostream>
#include <thread>

namespace bench {
namespace {

/// What an entry may take in the longest list, of that in the shortest. A map compares an entry with more keys, the longer
/// it is.
constexpr double mostPerEntry = 1.25;

const Kind &kindOf(const std::string &record)
{
    const auto kind = std::find_if(kinds().begin(), kinds().end(),
                                   [&record](const Kind &candidate) { return candidate.record == record; });
    require(kind != kinds().end(), "there is no kind of reply " + record);
    return *kind;
}

/// The seconds that \a count threads take to run \a task at the same time.
double secondsOf(int count, const std::function<void()> &task)
{
    const auto start = std::chrono::steady_clock::now();
    std::vector<std::thread> threads;
    for (int i = 0; i < count; ++i)
        threads.emplace_back(task);
    for (std::thread &thread : threads)
        thread.join();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

Growth::Growth()
{
    struct List
    {
        std::string record;
        QByteArray (*reply)(int entries);
    };

    for (const List &list :
         {List{"OnvifProfileVector", replyWithProfiles}, List{"OnvifNetworkInterfaceVector", replyWithInterfaces},
          List{"OnvifScopeMap", replyWithScopes}}) {
        const std::string &record = list.record;
        const auto &read = kindOf(record).read;
        constexpr int fewest = 10;
        for (const int entries : {fewest, 100, 1000, 10000}) {
            const QByteArray reply = list.reply(entries);
            const auto nameOf = [&record](int count) { return record + " of " + std::to_string(count); };
            require(read(reply) == entries, nameOf(entries) + " is read wrongly");
            m_tasks.push_back({nameOf(entries), [=] { benchmark::DoNotOptimize(read(reply)); }});
            m_rows.push_back({record, entries, reply.size(), nameOf(entries), nameOf(fewest), fewest});
        }
    }
}

bool Growth::print(std::ostream &output, const Costs &times, const Costs &instructions) const
{
    output << "| List | Entries | Bytes | µs | time per entry | instructions per entry |\n"
              "|---|--:|--:|--:|--:|--:|\n"
           << std::fixed;
    bool good = true;
    for (const Row &row : m_rows) {
        const auto perEntry = [&row](const Costs &costs) {
            return costs.at(row.task) / row.entries / (costs.at(row.shortest) / row.shortestEntries);
        };
        good = good && perEntry(instructions) <= mostPerEntry;
        output << "| " << row.list << " | " << row.entries << " | " << row.bytes << " | " << std::setprecision(0)
               << times.at(row.task) << std::setprecision(2) << " | " << perEntry(times) << " | "
               << perEntry(instructions) << " |\n";
    }
    return good;
}

void printSizes(std::ostream &output)
{
    const Kind &profiles = kindOf("OnvifProfileVector");
    output << "bytes\tthis library\tsetContent\tsetContent, read by hand\tQXmlStreamReader\tpugixml, parser alone\n"
           << std::fixed << std::setprecision(1);
    for (int count = 1; count <= 64; count *= 2) {
        const QByteArray reply = replyWithProfiles(count);
        const RoadTasks names = roadTasks("profiles");
        const Costs times = timesOf(tasksFor(names, profiles, reply));
        output << reply.size();
        for (const std::string &task : {names.record, names.setContent, names.byHand, names.stream, names.parse})
            output << '\t' << times.at(task);
        output << '\n';
    }
}

void printThreads(std::ostream &output)
{
    const QByteArray reply = replyWithProfiles(4);
    const auto &read = kindOf("OnvifProfileVector").read;
    const auto work = [&] {
        const QByteArray own(reply.constData(), reply.size());
        for (int i = 0; i < 1000; ++i)
            benchmark::DoNotOptimize(read(own));
    };
    double one = secondsOf(1, work);
    double two = secondsOf(2, work);
    for (int repetition = 0; repetition < 9; ++repetition) {
        one = std::min(one, secondsOf(1, work));
        two = std::min(two, secondsOf(2, work));
    }
    output << std::fixed << std::setprecision(2) << "Two threads get " << 2 * one / two
           << " times as much done as one.\n";
}

} // namespace bench
