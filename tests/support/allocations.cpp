#include "allocations.h"

#if defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define SANITIZED
#endif
#endif
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define SANITIZED
#endif

namespace {

thread_local bool counting = false;
thread_local std::size_t allocations = 0;

void countAllocation()
{
    if (counting)
        ++allocations;
}

} // namespace

#ifdef SANITIZED

// The sanitizers replace malloc themselves and tell who asks.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void *, std::size_t),
                                                         void (*onFree)(const volatile void *));

namespace {

[[maybe_unused]] const int installed = __sanitizer_install_malloc_and_free_hooks(
    [](const volatile void *, std::size_t) { countAllocation(); }, [](const volatile void *) {});

} // namespace

#else

// The program's malloc takes precedence over the C library's, for all libraries: if they can see it.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

[[gnu::visibility("default")]] void *malloc(std::size_t size)
{
    countAllocation();
    return __libc_malloc(size);
}

[[gnu::visibility("default")]] void *calloc(std::size_t count, std::size_t size)
{
    countAllocation();
    return __libc_calloc(count, size);
}

[[gnu::visibility("default")]] void *realloc(void *memory, std::size_t size)
{
    countAllocation();
    return __libc_realloc(memory, size);
}
}

#endif

namespace test {

AllocationCounter::AllocationCounter()
{
    allocations = 0;
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

} // namespace test
