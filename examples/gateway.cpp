#include <vorn/onvif/network.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    vorn::OnvifNetworkGateway gateway(reply.readAll());
    if (gateway.ipv4Address.isEmpty() && gateway.ipv6Address.isEmpty())
        out << "no gateway\n"; // isNull() does not tell: it is true

    gateway.ipv4Address = QString("192.0.2.254").toHtmlEscaped();
    gateway.ipv6Address = gateway.ipv6Address.toHtmlEscaped();
    out << "<tds:SetNetworkDefaultGateway xmlns:tds=\"http://www.onvif.org/ver10/device/wsdl\""
        << " xmlns:tt=\"http://www.onvif.org/ver10/schema\">" << gateway.toString()
        << "</tds:SetNetworkDefaultGateway>\n";
    return 0;
}
