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
    if (interfaces.isEmpty())
        return 0;
    const vorn::OnvifNetworkInterface &old = interfaces.constFirst();
    vorn::OnvifNetworkInterface changed = old;
    changed.ipv4.config.dhcp = true;
    if (changed.ipv4 == old.ipv4) // the interfaces themselves are equal: their tokens are
        return 0;

    changed.name = changed.token.toHtmlEscaped(); // InterfaceToken holds the name
    for (vorn::OnvifNetworkInterface::PrefixedAddress &entry : changed.ipv4.config.manual)
        entry.address = entry.address.toHtmlEscaped();
    out << "<tds:SetNetworkInterfaces xmlns:tds=\"http://www.onvif.org/ver10/device/wsdl\""
        << " xmlns:tt=\"http://www.onvif.org/ver10/schema\">" << changed.toString() << "</tds:SetNetworkInterfaces>\n";
    return 0;
}
