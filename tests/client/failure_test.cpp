// Each way in which a device or the way to it fails ends in one sentence and an exit code, within its time.

#include "client/programs.h"

#include <QtCore/QProcessEnvironment>
#include <QtNetwork/QHostAddress>
#include <QtNetwork/QTcpServer>

namespace {

using test::ReplyFolder;
using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

/// All requests that a device without profiles is asked, as failures name them.
const char *const allRequests = "GetSystemDateAndTime, GetDeviceInformation, GetCapabilities, GetScopes, GetProfiles, "
                                "GetNetworkInterfaces, GetNetworkDefaultGateway, GetRelayOutputs";
const char *const firstTwo = "GetSystemDateAndTime, GetDeviceInformation";
const char *const first = "GetSystemDateAndTime";

struct Case
{
    const char *trouble;
    const char *requests;
    const char *sentence;
    const char *timeout = "60"; ///< short only where it is what ends the wait
};

void PrintTo(const Case &failure, std::ostream *stream)
{
    *stream << failure.trouble;
}

class Failures : public testing::TestWithParam<Case>
{
};

TEST_P(Failures, endInOneSentence)
{
    const SimulatedDevice device({samples("short-prefixes"), "--trouble", GetParam().trouble});
    const Result result = report(device, {"--address", "{address}", "--timeout", GetParam().timeout});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, QString("camera-report: %1: %2: %3\n")
                                 .arg(device.address(), GetParam().requests, device.filledIn(GetParam().sentence)));
}

INSTANTIATE_TEST_SUITE_P(
    Device, Failures,
    testing::Values(
        Case{"silent", first, "Failure when receiving data from the peer. (no complete reply within 0.5 s)", "0.5"},
        Case{"slow", first, "Failure when receiving data from the peer. (no complete reply within 0.5 s)", "0.5"},
        Case{"dropped", firstTwo,
             "Empty reply from Camera (the connection ended before a reply over HTTP came; if the port speaks TLS, "
             "give https://{address})"},
        Case{"truncated", allRequests, "Transferred a partial file. (the connection ended in the middle of the reply)"},
        Case{"endless", allRequests, "Failure when receiving data from the peer. (the reply is longer than 1 MiB)"},
        Case{"endless-head", first, "Failure when receiving data from the peer. (no complete reply within 0.5 s)",
             "0.5"},
        Case{"garbage", firstTwo,
             "Empty reply from Camera (the connection ended before a reply over HTTP came; if the port speaks TLS, "
             "give https://{address})"},
        Case{"empty", allRequests, "Empty reply from Camera"},
        Case{"json", allRequests, "The device gave no answer that can be read. (it is of the type application/json)"},
        Case{"redirect", allRequests,
             "The device sends on to another address, which is not followed: http://192.0.2.1/elsewhere (HTTP status "
             "302 Simulated). If that is right, ask there."},
        Case{"not-found", allRequests,
             "There is no ONVIF service at http://{address}/onvif/device_service (HTTP status 404 Simulated). If it "
             "is elsewhere, give its whole URL."},
        Case{"unavailable", allRequests,
             "The web server of the device failed (HTTP status 503 Simulated). Try again later."}));

class BadAnswers : public testing::TestWithParam<const char *>
{
};

TEST_P(BadAnswers, doNotEndTheReport)
{
    const SimulatedDevice device(
        {samples("short-prefixes"), "--trouble", QString("GetDeviceInformation=%1").arg(GetParam())});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
    const QString complaint = result.errors.section(": ", 3).trimmed();
    EXPECT_TRUE(result.output.contains("\nDevice\n  not answered: " + complaint + "\n")) << result.output.toStdString();
    for (const char *section : {"Clock", "Services", "Scopes", "Profiles", "Network interfaces", "Relay outputs"})
        EXPECT_TRUE(result.output.contains(QString("\n%1\n").arg(section))) << section;
    EXPECT_EQ(result.output.count("not answered"), 1);
}

INSTANTIATE_TEST_SUITE_P(Device, BadAnswers,
                         testing::Values("dropped", "truncated", "endless", "garbage", "empty", "json", "redirect",
                                         "not-found", "unavailable", "not-supported"));

#ifdef THREAD_WAITS
/// Whether camera-report, asking \a device, waits for a thread of Qt's before it ends.
bool waitsForAThread(const SimulatedDevice &device, const QString &timeout)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LD_PRELOAD", THREAD_WAITS);
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(REPORT_PROGRAM), {"--address", device.address(), "--timeout", timeout});
    return test::resultOf(process).errors.contains("waits for a thread\n");
}

// Of a device that floods the head of its reply, Qt's thread hears nothing but the flood, and would be waited for.
TEST(Failure, isNotFollowedByAWaitForAThread)
{
    const SimulatedDevice good({samples("short-prefixes")});
    EXPECT_TRUE(waitsForAThread(good, "60"));
    const SimulatedDevice bad({samples("short-prefixes"), "--trouble", "endless-head"});
    EXPECT_FALSE(waitsForAThread(bad, "0.5"));
}
#endif

TEST(Failure, isAReplyOfMoreThanAMebibyte)
{
    const auto errorsFor = [](int kibibytes) {
        const ReplyFolder folder("GetDeviceInformation", QByteArray(qsizetype(kibibytes) * 1024, ' '));
        const SimulatedDevice device(
            {samples("short-prefixes"), "--answer", "GetDeviceInformation=" + folder.fileName()});
        return report(device, {"--address", "{address}", "--timeout", "60"}).errors;
    };
    EXPECT_EQ(errorsFor(800), "");
    EXPECT_TRUE(errorsFor(1200).contains("(the reply is longer than 1 MiB)\n"));
}

TEST(Failure, ofAHostThatIsNotKnown)
{
    const Result result = report({"--address", "camera.invalid", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, "camera-report: camera.invalid: GetSystemDateAndTime: Couldn't resolve host name. (check "
                             "the name: camera.invalid)\n");
}

TEST(Failure, ofAPortWhereNobodyListens)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QString address = QString("127.0.0.1:%1").arg(server.serverPort());
    server.close();
    const Result result = report({"--address", address, "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(
        result.errors,
        QString("camera-report: %1: GetSystemDateAndTime: Nothing listens at %1: the connection was refused. Check "
                "the port; without one, 80 is asked.\n")
            .arg(address));
}

} // namespace
