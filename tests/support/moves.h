#pragma once

#include <cstddef>

namespace test {

/// Counts the bytes that this thread has memcpy() and memmove() copy, from whatever library, while the object lives:
/// what takes its time without taking memory. Counts nothing under a sanitizer, which brings its own of both.
class MoveCounter
{
public:
    MoveCounter();
    MoveCounter(const MoveCounter &) = delete;
    MoveCounter &operator=(const MoveCounter &) = delete;
    ~MoveCounter();

    std::size_t bytes() const;
};

} // namespace test
