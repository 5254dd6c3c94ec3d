#include <vorn/onvif/network.h>
#include <vorn/onvif/paths.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const vorn::OnvifNetworkInterfaceVector interfaces(reply.readAll(), vorn::paths::GetNetworkInterfacesResponse);
    for (const vorn::OnvifNetworkInterface &card : interfaces) {
        out << card.name << ' ' << card.hwAddress << (card.enabled ? "\n" : ", off\n");
        if (card.operSettings.present)
            out << "  " << card.operSettings.speed << " Mbit/s, duplex: " << vPrintable(card.operSettings.duplex)
                << '\n';
        for (const vorn::OnvifNetworkInterface::PrefixedAddress &entry : card.ipv4.config.manual)
            out << "  " << entry.address << '/' << entry.prefixLength << '\n';
        if (card.ipv4.config.dhcp)
            out << "  " << card.ipv4.config.fromDHCP.address << " from DHCP\n";
        out << "  DHCPv6: " << vPrintable(card.ipv6.config.dhcp) << '\n';
    }
    return 0;
}
