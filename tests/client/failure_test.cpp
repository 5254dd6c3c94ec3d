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

struct Case
{
    const char *trouble;
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
    EXPECT_EQ(result.errors,
              QString("camera-report: %1: GetDeviceInformation: %2\n").arg(device.address(), GetParam().sentence));
}

INSTANTIATE_TEST_SUITE_P(
    Device, Failures,
    testing::Values(
        Case{"silent", "Failure when receiving data from the peer. (no complete reply within 0.5 s)", "0.5"},
        Case{"slow", "Failure when receiving data from the peer. (no complete reply within 0.5 s)", "0.5"},
        Case{"dropped", "Empty reply from Camera (the connection ended before a reply over HTTP came)"},
        Case{"truncated", "Transferred a partial file. (the connection ended in the middle of the reply)"},
        Case{"endless", "Failure when receiving data from the peer. (the reply is longer than 1 MiB)"},
        Case{"endless-head", "Failure when receiving data from the peer. (no complete reply within 0.5 s)", "0.5"},
        Case{"garbage", "Empty reply from Camera (the connection ended before a reply over HTTP came)"},
        Case{"empty", "Empty reply from Camera"}, Case{"json", "The device gave no answer that can be read."},
        Case{"redirect", "Unknown HTTP Error. (HTTP status 302: the device sends on to another address, which is not "
                         "followed)"},
        Case{"not-found", "Unknown Error. (HTTP status 404 Simulated)"},
        Case{"unavailable", "Unknown HTTP Error. (HTTP status 503 Simulated)"}));

TEST(Failure, ofTheTransportEndsTheReportButKeepsWhatWasAnswered)
{
    const SimulatedDevice device({samples("short-prefixes"), "--trouble", "GetScopes=truncated"});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, device.filledIn("camera-report: {address}: GetScopes: Transferred a partial file. (the "
                                             "connection ended in the middle of the reply)\n"));
    EXPECT_TRUE(result.output.contains("Model: Bullet 4K\n"));
    EXPECT_FALSE(result.output.contains("Profiles\n"));
}

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
    EXPECT_TRUE(
        result.errors.startsWith("camera-report: camera.invalid: GetDeviceInformation: Couldn't resolve host name. ("))
        << result.errors.toStdString();
    EXPECT_EQ(result.errors.count('\n'), 1);
}

TEST(Failure, ofAPortWhereNobodyListens)
{
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    const QString address = QString("127.0.0.1:%1").arg(server.serverPort());
    server.close();
    const Result result = report({"--address", address, "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              QString("camera-report: %1: GetDeviceInformation: Unknown Error. (Connection refused)\n").arg(address));
}

} // namespace
