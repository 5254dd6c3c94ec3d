#include "failingallocation.h"

#include "sanitizers.h"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t left = 0; // until one fails; 0: none is to fail
thread_local bool failed = false;

bool mustFail()
{
    if (left == 0 || --left > 0)
        return false;
    failed = true;
    return true;
}

} // namespace

// The program's functions take precedence over those of the C library, or of the sanitizer, for all libraries: if they
// can see them.
#ifdef ADDRESS_SANITIZED
#define REAL(function) __interceptor_##function
#else
#define REAL(function) __libc_##function
#endif

extern "C" {

void *REAL(malloc)(std::size_t size);
void *REAL(calloc)(std::size_t count, std::size_t size);
void *REAL(realloc)(void *memory, std::size_t size);
void REAL(free)(void *memory);

[[gnu::visibility("default")]] void *malloc(std::size_t size)
{
    return mustFail() ? nullptr : REAL(malloc)(size);
}

[[gnu::visibility("default")]] void *calloc(std::size_t count, std::size_t size)
{
    return mustFail() ? nullptr : REAL(calloc)(count, size);
}

[[gnu::visibility("default")]] void *realloc(void *memory, std::size_t size)
{
    return mustFail() ? nullptr : REAL(realloc)(memory, size);
}

// All four, or the linker looks for the last where an AllocationCounter has them all.
[[gnu::visibility("default")]] void free(void *memory)
{
    REAL(free)(memory);
}
}

#ifdef ADDRESS_SANITIZED

// Else these call malloc by themselves.
[[gnu::visibility("default")]] void *operator new(std::size_t size)
{
    void *memory = malloc(size == 0 ? 1 : size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

[[gnu::visibility("default")]] void operator delete(void *memory) noexcept
{
    free(memory);
}

[[gnu::visibility("default")]] void operator delete(void *memory, std::size_t) noexcept
{
    free(memory);
}

#endif

namespace test {

FailingAllocation::FailingAllocation(std::size_t number)
{
    failed = false;
    left = number;
}

FailingAllocation::~FailingAllocation()
{
    left = 0;
}

bool FailingAllocation::hasFailed() const
{
    return failed;
}

} // namespace test
