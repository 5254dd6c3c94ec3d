#include <vorn/onvif/device.h>
#include <vorn/onvif/faults.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    const QByteArray bytes = reply.readAll();
    QTextStream out(stdout);

    const vorn::OnvifFault fault(bytes, "GetDeviceInformation", 0);
    if (fault.hasError()) {
        out << fault.toString() << '\n';
        return 0;
    }

    const vorn::OnvifDeviceInformation device(bytes);
    if (device.response.view("").isNull()) {
        out << "The device gave no answer that can be read.\n";
        return 0;
    }
    out << device.manufacturer << ' ' << device.model << ", firmware " << device.firmwareVersion << '\n';
    return 0;
}
