#include "cost.h"

#include "support/allocations.h"

#include <ctime>

namespace hostile {

Cost costOf(const std::function<void()> &task)
{
    const test::AllocationCounter allocations;
    const std::clock_t start = std::clock();
    task();
    const std::clock_t end = std::clock();
    return {static_cast<double>(end - start) / CLOCKS_PER_SEC, allocations.peakBytes(), allocations.heldBytes()};
}

} // namespace hostile
