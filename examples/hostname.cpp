#include <vorn/onvif/paths.h>
#include <vorn/util/xmlresponse.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    vorn::XmlResponse response(reply.readAll(), vorn::paths::GetHostnameResponse);
    const QString name = response.getText("/HostnameInformation/Name");
    if (name.isNull())
        out << "no name\n";
    else
        out << name << (response.getBool("/HostnameInformation/FromDHCP") ? ", from DHCP\n" : ", set by hand\n");
    return 0;
}
