#include <vorn/onvif/paths.h>
#include <vorn/onvif/relays.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const vorn::OnvifRelayOutputVector relays(reply.readAll(), vorn::paths::GetRelayOutputsResponse);
    for (const vorn::OnvifRelayOutput &relay : relays) {
        out << relay.token << ": " << vPrintable(relay.mode);
        if (relay.mode == vorn::OnvifRelayOutput::Monostable)
            out << ", back after " << relay.delayTime;
        out << ", idle: " << vPrintable(relay.idleState) << '\n';
    }
    return 0;
}
