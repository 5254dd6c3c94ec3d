#include <vorn/onvif/device.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const vorn::OnvifCapabilities capabilities(reply.readAll());
    if (capabilities.hasMedia())
        out << "media: " << capabilities.media.xAddr << '\n';
    if (capabilities.hasPTZ())
        out << "PTZ: " << capabilities.ptz.xAddr << '\n';
    for (const vorn::OnvifCapabilities::SupportedVersion &version : capabilities.device.system.supportedVersions)
        out << "ONVIF " << version.major << '.' << version.minor << '\n';
    out << capabilities.device.io.relayOutputs << " relay outputs\n";
    out << "auxiliary commands: " << capabilities.device.io.auxiliaryCommands.join(", ") << '\n';
    return 0;
}
