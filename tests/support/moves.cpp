#include "moves.h"

#include "sanitizers.h"

#include <dlfcn.h>

namespace {

thread_local bool counting = false;
thread_local std::size_t moved = 0;

} // namespace

#ifndef SANITIZED

namespace {

using Move = void *(*)(void *, const void *, std::size_t);

void *countedMove(void *to, const void *from, std::size_t size)
{
    // The C library's: it does what memcpy() has to do, too.
    static const Move move = reinterpret_cast<Move>(dlsym(RTLD_NEXT, "memmove"));
    if (counting)
        moved += size;
    return move(to, from, size);
}

} // namespace

// The program's functions take precedence over the C library's, for all libraries: if they can see them.
extern "C" {

[[gnu::visibility("default")]] void *memcpy(void *to, const void *from, std::size_t size)
{
    return countedMove(to, from, size);
}

[[gnu::visibility("default")]] void *memmove(void *to, const void *from, std::size_t size)
{
    return countedMove(to, from, size);
}
}

#endif

namespace test {

MoveCounter::MoveCounter()
{
    moved = 0;
    counting = true;
}

MoveCounter::~MoveCounter()
{
    counting = false;
}

std::size_t MoveCounter::bytes() const
{
    return moved;
}

} // namespace test
