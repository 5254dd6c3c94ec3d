#pragma once

#include <cstddef>

namespace test {

/// While the object lives, one allocation of this thread fails, from whatever library: that with the number \a number,
/// counted from 1. Those behind it succeed. Not to be linked with an AllocationCounter.
class FailingAllocation
{
public:
    explicit FailingAllocation(std::size_t number);
    FailingAllocation(const FailingAllocation &) = delete;
    FailingAllocation &operator=(const FailingAllocation &) = delete;
    ~FailingAllocation();

    /// Whether there were so many that it came to that.
    bool hasFailed() const;
};

} // namespace test
