#include "device.h"

#include "road.h"

#include <vorn/onvif/device.h>

#include <benchmark/benchmark.h>

namespace bench {

void addDeviceRoads()
{
    for (const char *style : {"many-namespaces", "short-prefixes", "undeclared-prefixes"}) {
        const QByteArray reply = sample(QLatin1String(style) + QLatin1String("/GetDeviceInformation.xml"));
        const vorn::OnvifDeviceInformation information(reply);
        require(information.manufacturer == QLatin1String("Example Optics") && !information.hardwareId.isEmpty(),
                std::string("device information of style ") + style + " is wrong");
        add({std::string("OnvifDeviceInformation/") + style, reply, 0.12,
             [](const QByteArray &bytes) { benchmark::DoNotOptimize(vorn::OnvifDeviceInformation(bytes)); }});
    }
}

} // namespace bench
