#pragma once

#include <QtCore/QString>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

struct Task
{
    std::string name;
    std::function<void()> run;
};

/// What tasks cost, by their names.
using Costs = std::map<std::string, double>;

/// The medians of the CPU time that each of \a tasks takes, in microseconds, as the options of Google Benchmark say.
Costs timesOf(const std::vector<Task> &tasks);

/// The instructions of each of \a tasks. They do not depend on what else the machine does. This program is run again
/// for them, under callgrind, and has to come back to runCounted() in that run. Empty if valgrind is missing or fails.
Costs instructionsOf(const std::vector<Task> &tasks);

/// The argument that marks the run under callgrind.
QString countOption();

/// Whether this is that run.
bool isCountedRun();

/// In the run under callgrind: runs those of \a tasks that are asked for.
void runCounted(const std::vector<Task> &tasks);

} // namespace bench
