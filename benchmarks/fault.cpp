#include "fault.h"

#include "road.h"

#include <vorn/onvif/faults.h>

#include <benchmark/benchmark.h>

namespace bench {

void addFaultRoads()
{
    const auto classify = [](const QByteArray &bytes) { benchmark::DoNotOptimize(vorn::OnvifFault(bytes, "", 0)); };

    for (const char *style : {"many-namespaces", "short-prefixes"}) {
        const QByteArray reply = sample(QLatin1String(style) + QLatin1String("/GetProfiles.xml"));
        require(!vorn::OnvifFault(reply, "", 0).hasError(), "a good reply is taken for a fault");
        addRoad(std::string("OnvifFault/good reply/") + style, reply, {0.08}, classify);
    }
    for (const char *fault : {"NoProfileNoPrefixes", "NoProfile"}) {
        const QByteArray reply = sample(QLatin1String("faults/") + QLatin1String(fault) + QLatin1String(".xml"));
        require(vorn::OnvifFault(reply, "", 0)
                    .is(vorn::OnvifFault::Sender, vorn::OnvifFault::InvalidArgVal, vorn::OnvifFault::NoProfile),
                "a fault is not recognised");
        addRoad(std::string("OnvifFault/three codes/") + fault, reply, {0.25}, classify);
    }
}

} // namespace bench
