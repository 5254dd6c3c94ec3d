#pragma once

#include <QtCore/QString>

#include <functional>
#include <map>
#include <string>

namespace bench {

struct Task
{
    std::string name;
    std::function<void()> run;
};

/// What tasks cost, by their names.
using Costs = std::map<std::string, double>;

/// Whether valgrind is there, now and when this was built.
bool canCountInstructions();

/// Runs this program again under callgrind, with the same arguments and countOption() behind them, and returns what the
/// tasks of that run took. Instructions do not depend on what else the machine does. Empty if that fails.
Costs countInstructions();

/// The argument that marks the run under callgrind.
QString countOption();

/// Whether this is that run.
bool isCountedRun();

/// In that run: runs \a task and has its instructions noted down.
void runCounted(const Task &task);

} // namespace bench
