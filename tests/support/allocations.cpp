#include "allocations.h"

#include "sanitizers.h"

#include <algorithm>
#include <malloc.h>

namespace {

thread_local bool counting = false;
thread_local std::size_t allocations = 0;
thread_local std::size_t taken = 0;
thread_local std::ptrdiff_t held = 0; // less than zero when more goes that was there before the counter
thread_local std::ptrdiff_t peak = 0;

void countAllocation(std::size_t size)
{
    if (!counting)
        return;
    ++allocations;
    taken += size;
    held += static_cast<std::ptrdiff_t>(size);
    peak = std::max(peak, held);
}

void countRelease(std::size_t size)
{
    if (counting)
        held -= static_cast<std::ptrdiff_t>(size);
}

} // namespace

#ifdef SANITIZED

// The sanitizers replace malloc themselves and tell who asks.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void *, std::size_t),
                                                         void (*onFree)(const volatile void *));
extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void *memory);

namespace {

[[maybe_unused]] const int installed = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void *, std::size_t size) { countAllocation(size); },
    [](const volatile void *memory) { countRelease(memory ? __sanitizer_get_allocated_size(memory) : 0); });

} // namespace

#else

// The program's malloc takes precedence over the C library's, for all libraries: if they can see it.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);
void __libc_free(void *memory);

[[gnu::visibility("default")]] void *malloc(std::size_t size)
{
    void *memory = __libc_malloc(size);
    countAllocation(malloc_usable_size(memory));
    return memory;
}

[[gnu::visibility("default")]] void *calloc(std::size_t count, std::size_t size)
{
    void *memory = __libc_calloc(count, size);
    countAllocation(malloc_usable_size(memory));
    return memory;
}

[[gnu::visibility("default")]] void *realloc(void *memory, std::size_t size)
{
    countRelease(malloc_usable_size(memory));
    void *moved = __libc_realloc(memory, size);
    countAllocation(malloc_usable_size(moved));
    return moved;
}

[[gnu::visibility("default")]] void free(void *memory)
{
    countRelease(malloc_usable_size(memory));
    __libc_free(memory);
}
}

#endif

namespace test {

AllocationCounter::AllocationCounter()
{
    allocations = 0;
    taken = 0;
    held = 0;
    peak = 0;
    counting = true;
}

AllocationCounter::~AllocationCounter()
{
    counting = false;
}

std::size_t AllocationCounter::count() const
{
    return allocations;
}

std::size_t AllocationCounter::takenBytes() const
{
    return taken;
}

std::ptrdiff_t AllocationCounter::heldBytes() const
{
    return held;
}

std::size_t AllocationCounter::peakBytes() const
{
    return static_cast<std::size_t>(peak);
}

} // namespace test
