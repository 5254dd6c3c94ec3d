#pragma once

#include <cstddef>

namespace test {

/// Counts what this thread takes from the heap, from whatever library, while the object lives.
class AllocationCounter
{
public:
    AllocationCounter();
    AllocationCounter(const AllocationCounter &) = delete;
    AllocationCounter &operator=(const AllocationCounter &) = delete;
    ~AllocationCounter();

    std::size_t count() const;

    /// All that has been taken since the start, whether it has gone again or not.
    std::size_t takenBytes() const;

    /// What is held now of what has been taken since the start, less what has gone that was there before.
    std::ptrdiff_t heldBytes() const;

    /// The most that was held at one time of what has been taken since the start.
    std::size_t peakBytes() const;
};

} // namespace test
