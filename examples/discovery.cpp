#include <vorn/onvif/discovery.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    QTextStream out(stdout);

    const vorn::OnvifCamera camera(reply.readAll());
    if (!camera.isValid()) {
        out << "no camera\n";
        return 0;
    }
    out << camera.scopes.value("name") << ": " << camera.scopes.values("type").join(", ") << '\n';
    out << "addresses: " << camera.addresses.join(", ") << '\n';
    out << "link-local: " << camera.linkLocalAddresses.join(", ") << '\n';

    // An address that a user typed, brought into the same form.
    vorn::OnvifCamera typed("192.168.007.020:80", nullptr);
    QString &address = typed.addresses.first();
    typed.removeIPv4AddressDefaultPort(address);
    typed.removeIPv4AddressLeadingZeros(address);
    out << address << (camera.addresses.contains(address) ? " is this camera\n" : " is another camera\n");
    return 0;
}
