// simulated-device: ONVIF devices that answer out of a folder of replies, for trying out clients.

#include "device.h"
#include "options.h"
#include "proberesponder.h"
#include "support/stopsignals.h"
#include "support/terminal.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QSocketNotifier>

#include <memory>
#include <vector>

namespace {

enum ExitCode : int { WasStopped = 0, CannotRun = 2 };

int fail(const QString &sentence)
{
    example::note("simulated-device: " + example::printable(sentence));
    return CannotRun;
}

/// As many devices as are wanted, all listening; fewer if that is not possible.
std::vector<std::unique_ptr<simulator::Device>> startDevices(const simulator::Options &options)
{
    std::vector<std::unique_ptr<simulator::Device>> devices;
    for (int index = 0; index < options.devices; ++index) {
        auto device = std::make_unique<simulator::Device>(options);
        if (!device->start(static_cast<quint16>(options.port == 0 ? 0 : options.port + index)))
            break;
        devices.push_back(std::move(device));
    }
    return devices;
}

void announce(const QList<QByteArray> &addresses, const simulator::ProbeResponder &responder)
{
    QJsonArray devices;
    for (const QByteArray &address : addresses)
        devices.append(QString::fromLatin1(address));
    const QJsonObject line{{"devices", devices},
                           {"probe", QString::fromLatin1(responder.address())},
                           {"multicast", responder.takesMulticast()}};
    example::print(QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)) + '\n');
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const simulator::CommandLine line = simulator::readCommandLine(QCoreApplication::arguments());
    if (!line.complaint.isEmpty())
        return fail(line.complaint + " Try --help.");
    if (!line.options) {
        example::print(line.answer);
        return WasStopped;
    }

    QSocketNotifier stopped(example::catchStopSignals(), QSocketNotifier::Read);
    QObject::connect(&stopped, &QSocketNotifier::activated, [] { QCoreApplication::exit(WasStopped); });

    const auto devices = startDevices(*line.options);
    if (devices.size() < static_cast<std::size_t>(line.options->devices))
        return fail("It cannot listen there: the address is not of this machine, or a port is taken.");
    QList<QByteArray> addresses;
    for (const auto &device : devices)
        addresses.append(device->address());
    simulator::ProbeResponder responder(*line.options, addresses);
    if (!responder.start())
        return fail("It cannot listen for probes: the port is taken.");

    announce(addresses, responder);
    return example::isOutputWritten() ? QCoreApplication::exec() : fail("The output cannot be written.");
}
