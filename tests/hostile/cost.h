#pragma once

#include <cstddef>
#include <functional>

namespace hostile {

struct Cost
{
    double seconds;           ///< of the processor's time
    std::size_t peakBytes;    ///< the most that was held on the heap at one time
    std::ptrdiff_t heldBytes; ///< what is held in the end
};

/// What \a task costs.
Cost costOf(const std::function<void()> &task);

} // namespace hostile
