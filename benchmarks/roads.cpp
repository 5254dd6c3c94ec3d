#include "roads.h"

#include "replies.h"

#include <QtCore/QXmlStreamReader>
#include <QtXml/QDomDocument>
#include <benchmark/benchmark.h>
#include <pugixml.hpp>

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace bench {
namespace {

qsizetype readByHand(const QByteArray &reply, const ByHand &byHand)
{
    QDomDocument document;
    document.setContent(reply);
    QStringList values;
    const qsizetype entries = byHand.read(document, values);
    benchmark::DoNotOptimize(values.constData());
    return entries;
}

void stream(const QByteArray &reply)
{
    QXmlStreamReader reader(reply);
    while (!reader.atEnd())
        benchmark::DoNotOptimize(reader.readNext());
}

void parse(const QByteArray &reply)
{
    pugi::xml_document document;
    benchmark::DoNotOptimize(document.load_buffer(reply.constData(), static_cast<std::size_t>(reply.size())));
}

} // namespace

void setContent(const QByteArray &reply)
{
    QDomDocument document;
    benchmark::DoNotOptimize(document.setContent(reply));
}

RoadTasks roadTasks(const std::string &name)
{
    return {name, name + " (setContent)", name + " (by hand)", name + " (stream)", name + " (parse)"};
}

std::vector<Task> tasksFor(const RoadTasks &names, const Kind &kind, const QByteArray &reply)
{
    const auto &read = kind.read;
    const auto &byHand = kind.byHand;
    return {
        {names.record, [=] { benchmark::DoNotOptimize(read(reply)); }},
        {names.setContent, [=] { setContent(reply); }},
        {names.byHand, [=] { readByHand(reply, byHand); }},
        {names.stream, [=] { stream(reply); }},
        {names.parse, [=] { parse(reply); }},
    };
}

Roads::Roads(const QStringList &folders)
{
    for (const Kind &kind : kinds()) {
        for (const QString &folder : folders) {
            for (const Reply &reply : repliesTo(kind.operation, folder)) {
                const QByteArray bytes = reply.bytes;
                const std::string name = kind.record + ": " + reply.name;
                const qsizetype entries = kind.read(bytes);
                const qsizetype entriesByHand = readByHand(bytes, kind.byHand);
                if (entries == 0 || entriesByHand == 0) // there is none, or QDomDocument does not take the reply
                    continue;
                require(entries == entriesByHand, name + " is read wrongly");
                const RoadTasks names = roadTasks(name);
                const std::vector<Task> tasks = tasksFor(names, kind, bytes);
                m_tasks.insert(m_tasks.end(), tasks.begin(), tasks.end());
                m_rows.push_back({kind.record, reply.name, bytes.size(), limitFor(kind.limits, bytes.size()), names});
            }
        }
    }
}

bool Roads::print(std::ostream &output, const Costs &times, const Costs &seedless, const Costs &instructions,
                  const std::map<std::string, double> &committed) const
{
    output << "| Record | Reply | Bytes | µs | time | seed 0 | instructions | limit | by hand: time | instructions "
              "| stream: time | instructions | parse: time | instructions |\n"
              "|---|---|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|--:|\n"
           << std::fixed;
    bool good = true;
    for (const Row &row : m_rows) {
        const auto multiple = [&row](const Costs &costs, const std::string &task) {
            return costs.at(task) / costs.at(row.tasks.setContent);
        };
        const double taken = multiple(instructions, row.tasks.record);
        const bool over = taken > row.limit;
        const auto known = committed.find(row.tasks.record);
        const bool wasOver = known != committed.end() && known->second > row.limit;
        const bool mayBeHeap = taken <= 1.02 * row.limit; // whose state moves the counts of small replies
        good = good && (!over || wasOver || mayBeHeap);
        output << "| " << row.record << " | " << row.reply << " | " << row.bytes << std::setprecision(1) << " | "
               << times.at(row.tasks.record) << std::setprecision(2) << " | " << multiple(times, row.tasks.record)
               << " | " << multiple(seedless, row.tasks.record) << std::setprecision(3) << " | " << taken
               << std::setprecision(2) << " | " << row.limit << (over ? " (over)" : "");
        for (const std::string &task : {row.tasks.byHand, row.tasks.stream, row.tasks.parse})
            output << " | " << multiple(times, task) << " | " << multiple(instructions, task);
        output << " |\n";
    }
    return good;
}

std::vector<Task> Roads::guardedTasks() const
{
    std::vector<Task> guarded;
    for (const Task &task : m_tasks) {
        const auto isGuarded = [&task](const Row &row) {
            return task.name == row.tasks.record || task.name == row.tasks.setContent;
        };
        if (std::any_of(m_rows.begin(), m_rows.end(), isGuarded))
            guarded.push_back(task);
    }
    return guarded;
}

std::map<std::string, double> Roads::ratios(const Costs &instructions) const
{
    std::map<std::string, double> ratios;
    for (const Row &row : m_rows)
        ratios[row.tasks.record] = instructions.at(row.tasks.record) / instructions.at(row.tasks.setContent);
    return ratios;
}

} // namespace bench
