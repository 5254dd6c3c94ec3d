#include <vorn/onvif/device.h>

#include <QtCore/QDebug>
#include <QtCore/QFile>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    const bool opened = reply.open(QIODevice::ReadOnly);
    const vorn::OnvifDeviceInformation device(reply.readAll());
    qDebug() << device.manufacturer << device.model << device.firmwareVersion;
    return opened ? 0 : 1;
}
