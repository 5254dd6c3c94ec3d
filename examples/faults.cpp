#include <vorn/onvif/faults.h>

#include <QtCore/QFile>
#include <QtCore/QTextStream>

#include <cstdio>

int main(int argc, char **argv)
{
    QFile reply(argc > 1 ? argv[1] : "reply.xml");
    if (!reply.open(QIODevice::ReadOnly))
        return 1;
    const char *action = argc > 2 ? argv[2] : "";
    QTextStream out(stdout);

    using vorn::OnvifFault;
    const OnvifFault fault(reply.readAll(), action, 0);
    if (!fault.hasError())
        out << "no fault\n";
    else if (fault.is(OnvifFault::Sender, OnvifFault::NotAuthorized) || fault.is(OnvifFault::HttpUnauthorised))
        out << "Enter the password of the device.\n";
    else
        out << fault.toString() << " (" << fault.errorId() << ")\n";
    return 0;
}
