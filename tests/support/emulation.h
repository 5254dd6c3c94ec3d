#pragma once

#include <sys/prctl.h>

namespace test {

/// Whether the program is emulated by qemu, which filters no system calls and has a stack of its own for it.
inline bool isEmulated()
{
    return prctl(PR_GET_SECCOMP, 0, 0, 0, 0) < 0;
}

} // namespace test
