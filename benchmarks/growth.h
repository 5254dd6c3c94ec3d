#pragma once

#include "instructions.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace bench {

/// Lists that grow: what an entry costs in a long list, compared with one in a short list.
class Growth
{
public:
    Growth();

    const std::vector<Task> &tasks() const { return m_tasks; }

    /// Prints a table. False if an entry of the longest list takes too many instructions more than one of the shortest.
    bool print(std::ostream &output, const Costs &times, const Costs &instructions) const;

private:
    struct Row
    {
        std::string list;
        int entries;
        qsizetype bytes;
        std::string task;
        std::string shortest;
        int shortestEntries;
    };

    std::vector<Task> m_tasks;
    std::vector<Row> m_rows;
};

/// Prints what each road takes for replies with more and more profiles: a line for each size, for the plot.
void printSizes(std::ostream &output);

/// Prints how much more two threads get done than one, each with replies of its own.
void printThreads(std::ostream &output);

} // namespace bench
