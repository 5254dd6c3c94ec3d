// Looking for cameras.

#include "client/programs.h"
#include "samples/samples.h"

#include <QtCore/QSet>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QNetworkDatagram>
#include <QtNetwork/QNetworkInterface>
#include <QtNetwork/QUdpSocket>

namespace {

using test::report;
using test::Result;
using test::samples;
using test::search;
using test::SimulatedDevice;

/// The addresses that a search has listed, one from each line.
QSet<QString> listed(const QString &output)
{
    QSet<QString> addresses;
    for (const QString &line : output.split('\n', Qt::SkipEmptyParts))
        addresses.insert(line.section(": ", 0, 0));
    return addresses;
}

QSet<QString> setOf(const QStringList &addresses)
{
    return {addresses.begin(), addresses.end()};
}

QString loopbackName()
{
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces()) {
        if (interface.flags().testFlag(QNetworkInterface::IsLoopBack))
            return interface.name();
    }
    return {};
}

TEST(Search, listsWhoAnswers)
{
    const SimulatedDevice device({samples("many-namespaces")});
    const Result result = search(device, {"--probe-address", "{probe}"}, "\n");
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(
        result.output,
        device.filledIn("{address}, https://192.168.7.20: Front Door (Video, PTZ, Audio, Analytics, ProfileS)\n"));
}

TEST(Search, listsEachOfTwoHundredOnce)
{
    const SimulatedDevice devices({samples("short-prefixes"), "--devices", "200"});
    const Result result = search(devices, {"--probe-address", "{probe}"}, "\n", 200);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output.count('\n'), 200);
    EXPECT_EQ(listed(result.output), setOf(devices.addresses()));
}

TEST(Search, reachesDevicesByMulticast)
{
    const SimulatedDevice device({samples("short-prefixes"), "--devices", "3"});
    if (!device.takesMulticast())
        GTEST_SKIP() << "The loopback interface of this machine does not take multicast.";
    // Others may answer, too: whoever listens on this machine.
    const Result result = search(device, {"--interface", loopbackName()}, device.addresses().last() + ": ");
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(listed(result.output).contains(setOf(device.addresses()))) << result.output.toStdString();
}

TEST(Search, reportsOnAllThatItFinds)
{
    const SimulatedDevice devices({samples("undeclared-prefixes"), "--devices", "3"});
    const Result result = search(devices, {"--probe-address", "{probe}", "--all"}, "Model: PTZ 30x\n", 3);
    EXPECT_EQ(result.exitCode, 1); // the folder has no replies to some requests
    for (const QString &address : devices.addresses())
        EXPECT_TRUE(result.output.contains(QString("\nCamera at %1\n\nDevice\n").arg(address)))
            << result.output.toStdString();
    EXPECT_EQ(result.output.count("Model: PTZ 30x\n"), 3);
}

TEST(Search, asksNobodyButWhoAnswered)
{
    const SimulatedDevice device({samples("short-prefixes"), "--keep-addresses"});
    const Result result = search(device, {"--probe-address", "{probe}", "--all"}, "\n");
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "10.1.2.3:8080: BULLET-4K (Video)\n");
    EXPECT_EQ(result.errors,
              "camera-report: The camera that answered from 127.0.0.1 names no address of that host, so it is "
              "not asked: 10.1.2.3:8080.\n");
}

TEST(Search, printsJson)
{
    const SimulatedDevice device({samples("many-namespaces")});
    const Result result = search(device, {"--probe-address", "{probe}", "--json"}, "\n");
    const QJsonObject expected{{"sender", "127.0.0.1"},
                               {"addresses", QJsonArray{device.address(), "https://192.168.7.20"}},
                               {"name", "Front Door"},
                               {"hardware", "DOME-360"},
                               {"types", QJsonArray{"Video", "PTZ", "Audio", "Analytics", "ProfileS"}},
                               {"locations", QJsonArray{"country", "city"}}};
    QJsonObject found = QJsonDocument::fromJson(result.output.toUtf8()).object()["found"].toObject();
    EXPECT_TRUE(found.take("endpoint").toString().startsWith("urn:uuid:"));
    EXPECT_EQ(found, expected) << result.output.toStdString();
}

TEST(Search, endsWhereNobodyAnswers)
{
    QUdpSocket silent;
    ASSERT_TRUE(silent.bind(QHostAddress::LocalHost));
    const Result result =
        report({"--probe-address", QString("127.0.0.1:%1").arg(silent.localPort()), "--timeout", "0.5"});
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_EQ(result.errors, "camera-report: No camera was found.\n");
    EXPECT_TRUE(silent.hasPendingDatagrams());
}

TEST(Search, endsWhereThePortIsClosed)
{
    QUdpSocket closed;
    ASSERT_TRUE(closed.bind(QHostAddress::LocalHost));
    const QString address = QString("127.0.0.1:%1").arg(closed.localPort());
    closed.close();
    EXPECT_EQ(report({"--probe-address", address, "--timeout", "0.5"}).exitCode, 3);
}

TEST(Search, leavesOutWhatIsNoProbeMatch)
{
    QUdpSocket device;
    ASSERT_TRUE(device.bind(QHostAddress::LocalHost));
    const QString address = QString("127.0.0.1:%1").arg(device.localPort());
    const Result result = test::searchUntil("\n", 1, [&](const QStringList &timeout) {
        QProcess process;
        process.start(QStringLiteral(REPORT_PROGRAM), QStringList{"--quiet", "--probe-address", address} + timeout);
        EXPECT_TRUE(device.waitForReadyRead(test::patience));
        const QNetworkDatagram probe = device.receiveDatagram();
        for (const char *sample : {"sloppy/ProbeMatchesNoScopes.xml", "many-namespaces/ProbeMatches.xml"})
            device.writeDatagram(probe.makeReply(test::contentsOf(samples(sample))));
        return test::resultOf(process);
    });
    EXPECT_EQ(result.output,
              "192.168.7.20, [2001:db8::20]:8080, 169.254.12.7, [fe80::a1b:2cff:fe3d:4e5f], https://192.168.7.20: "
              "Front Door (Video, PTZ, Audio, Analytics, ProfileS)\n");
}

} // namespace
