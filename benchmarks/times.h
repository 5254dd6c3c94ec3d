#pragma once

#include "instructions.h"

#include <vector>

namespace bench {

/// The medians of the CPU time that each of \a tasks takes, in microseconds, as the options of Google Benchmark say.
Costs timesOf(const std::vector<Task> &tasks);

} // namespace bench
