#pragma once

#include <QtCore/QStringList>

#include <functional>
#include <map>
#include <string>

namespace bench {

/// Runs this program again under callgrind, with the option --count and \a names, and returns the instructions of each
/// task that the run passed to runCounted(). They do not depend on what else the machine does. Empty if valgrind is
/// missing or fails.
std::map<std::string, double> countInstructions(const QStringList &names);

/// Under callgrind: runs \a task and has its instructions noted down as those of \a name.
void runCounted(const std::string &name, const std::function<void()> &task);

} // namespace bench
