// simulated-device: ONVIF devices that answer out of a folder of replies, for trying out clients.

#include "certificate.h"
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

/// \a exitCode, unless the output is lost.
int afterOutput(int exitCode)
{
    return example::isOutputWritten() ? exitCode : fail("The output cannot be written.");
}

using Devices = std::vector<std::unique_ptr<simulator::Device>>;

/// What devices need for TLS, if the user wants it. Puts one sentence into \a complaint if it cannot be.
std::optional<QSslConfiguration> tlsFor(const simulator::Options &options, QString &complaint)
{
    if (!options.tls)
        return std::nullopt;
    const simulator::OwnCertificate own = simulator::makeCertificate(options.listen);
    complaint = own.complaint;
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(own.certificate);
    tls.setPrivateKey(own.key);
    return tls;
}

/// Adds as many \a devices as are wanted, all listening. Returns one sentence if that fails.
QString startDevices(const simulator::Options &options, Devices &devices)
{
    QString complaint;
    const std::optional<QSslConfiguration> tls = tlsFor(options, complaint);
    if (!complaint.isEmpty())
        return complaint;
    for (int index = 0; index < options.devices; ++index) {
        devices.push_back(std::make_unique<simulator::Device>(options, tls));
        complaint = devices.back()->start(static_cast<quint16>(options.port == 0 ? 0 : options.port + index));
        if (!complaint.isEmpty())
            return complaint;
    }
    return {};
}

QList<QByteArray> originsOf(const Devices &devices)
{
    QList<QByteArray> origins;
    for (const auto &device : devices)
        origins.append(device->origin());
    return origins;
}

/// Names each of \a origins as a client takes it: one of plain HTTP by its host and port alone.
void announce(const QList<QByteArray> &origins, const simulator::ProbeResponder &responder)
{
    QJsonArray devices;
    for (const QByteArray &origin : origins)
        devices.append(QString::fromLatin1(origin.startsWith("http://") ? origin.mid(7) : origin));
    const QJsonObject line{{"devices", devices},
                           {"probe", QString::fromLatin1(responder.address())},
                           {"multicast", responder.takesMulticast()}};
    example::print(QString::fromUtf8(QJsonDocument(line).toJson(QJsonDocument::Compact)) + '\n');
}

int run(const simulator::Options &options)
{
    QSocketNotifier stopped(example::catchStopSignals(), QSocketNotifier::Read);
    QObject::connect(&stopped, &QSocketNotifier::activated, [] { QCoreApplication::exit(WasStopped); });

    Devices devices;
    QString complaint = startDevices(options, devices);
    if (!complaint.isEmpty())
        return fail(complaint);
    const QList<QByteArray> origins = originsOf(devices);
    simulator::ProbeResponder responder(options, origins);
    complaint = responder.start();
    if (!complaint.isEmpty())
        return fail(complaint);

    announce(origins, responder);
    const int exitCode = afterOutput(WasStopped);
    return exitCode == WasStopped ? QCoreApplication::exec() : exitCode;
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
        return afterOutput(WasStopped);
    }
    return run(*line.options);
}
