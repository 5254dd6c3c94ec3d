// The classification of faults and their sentences.

#include "properties.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray reply(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    fuzz::checkFault(reply);
    fuzz::checkLists(reply);
    return 0;
}
