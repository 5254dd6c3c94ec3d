#pragma once

#include "instructions.h"

#include <QtCore/QStringList>

#include <iosfwd>
#include <string>
#include <vector>

namespace bench {

/// The replies to GetProfiles below some folders, read by the library and by other libraries that read XML.
class Peers
{
public:
    explicit Peers(const QStringList &folders);

    const std::vector<Task> &tasks() const { return m_tasks; }

    /// Prints a table with a row for each reply, each cost a multiple of that of setContent, and then which peers do
    /// not take which replies, and which were missing when this was built.
    void print(std::ostream &output, const Costs &times, const Costs &instructions) const;

private:
    struct Row
    {
        std::string reply;
        qsizetype bytes;
        qsizetype profiles;
    };

    std::vector<Task> m_tasks;
    std::vector<Row> m_rows;
};

} // namespace bench
