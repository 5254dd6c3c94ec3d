#pragma once

#include "instructions.h"
#include "kinds.h"

#include <QtCore/QStringList>

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// The yardstick: makes a `QDomDocument` of \a reply, and destroys it.
void setContent(const QByteArray &reply);

/// The names of what is done with one reply.
struct RoadTasks
{
    std::string record;
    std::string setContent; ///< `QDomDocument::setContent`: the yardstick
    std::string byHand;     ///< the same, and then reading the values out of the document
    std::string stream;     ///< `QXmlStreamReader` to the end
    std::string parse;      ///< pugixml's parser alone
};

RoadTasks roadTasks(const std::string &name);

/// What is done with \a reply, under \a names.
std::vector<Task> tasksFor(const RoadTasks &names, const Kind &kind, const QByteArray &reply);

/// Every reply of every kind below some folders, on every road.
class Roads
{
public:
    explicit Roads(const QStringList &folders);

    const std::vector<Task> &tasks() const { return m_tasks; }

    /// Those that ratios() needs.
    std::vector<Task> guardedTasks() const;

    /// Prints a table with a row for each reply; each cost is a multiple of that of setContent. \a seedless are the
    /// times with a hash seed of 0. False if a reply takes more instructions than its limit allows that did not do so
    /// when the ratios were \a committed.
    bool print(std::ostream &output, const Costs &times, const Costs &seedless, const Costs &instructions,
               const std::map<std::string, double> &committed) const;

    /// What the library takes of setContent, in instructions, for each reply.
    std::map<std::string, double> ratios(const Costs &instructions) const;

private:
    struct Row
    {
        std::string record;
        std::string reply;
        qsizetype bytes;
        double limit;
        RoadTasks tasks;
    };

    std::vector<Task> m_tasks;
    std::vector<Row> m_rows;
};

} // namespace bench
