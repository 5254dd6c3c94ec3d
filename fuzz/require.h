#pragma once

#include <cstdlib>

namespace fuzz {

inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace fuzz
