// Many cameras side by side.

#include "client/fakeserver.h"
#include "client/programs.h"
#include "client/terminal.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <csignal>
#include <sys/types.h>

namespace {

using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

QStringList addressArguments(const QStringList &addresses)
{
    QStringList arguments;
    for (const QString &address : addresses)
        arguments += {"--address", address};
    return arguments;
}

TEST(Many, areReportedOnEach)
{
    const SimulatedDevice devices({samples("short-prefixes"), "--devices", "3"});
    const Result result = report(addressArguments(devices.addresses()) + QStringList{"--timeout", "60"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    for (const QString &address : devices.addresses())
        EXPECT_EQ(result.output.count(QString("Camera at %1\n").arg(address)), 1) << address.toStdString();
    EXPECT_EQ(result.output.count("\n\nCamera at "), 2);
}

TEST(Many, areNamedOnceThoughTheyAreNamedTwice)
{
    const SimulatedDevice device({samples("short-prefixes")});
    const Result result = report(device, {"--address", "{address}", "--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.output.count("Camera at "), 1);
}

TEST(Many, canStandInAFile)
{
    const SimulatedDevice devices({samples("short-prefixes"), "--devices", "2"});
    const QTemporaryDir folder;
    QFile file(folder.filePath("addresses"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("# cameras\n\n  " + devices.addresses()[0].toUtf8() + "  # the first\r\n"
               + devices.addresses()[1].toUtf8());
    file.close();
    const Result result = report({"--addresses", file.fileName(), "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_EQ(result.output.count("Camera at "), 2);

    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("192.0.2.7\n192.0.2.8/x\n");
    file.close();
    EXPECT_TRUE(
        report({"--addresses", file.fileName()})
            .errors.startsWith(QString("camera-report: Line 2 of %1 is no address: give a host").arg(file.fileName())));
}

TEST(Many, areListedInATable)
{
    const SimulatedDevice device({samples("short-prefixes")});
    const SimulatedDevice silent({samples("short-prefixes"), "--trouble", "not-found"});
    const Result result = report(addressArguments({device.address(), silent.address()})
                                 + QStringList{"--table", "--timeout", "60", "--jobs", "1"});
    EXPECT_EQ(result.exitCode, 1);
    const QStringList lines = result.output.split('\n');
    ASSERT_EQ(lines.size(), 4) << result.output.toStdString();
    EXPECT_EQ(lines[0],
              "ADDRESS                MANUFACTURER     MODEL              FIRMWARE             SERIAL NUMBER      "
              "        CLOCK              NOT ANSWERED");
    EXPECT_TRUE(result.output.contains("\n" + device.address().leftJustified(22)
                                       + " Example Optics   Bullet 4K          V2.1.0 build 250314  "
                                         "BULLET-4K-20250314-000271  right\n"))
        << result.output.toStdString();
    EXPECT_TRUE(result.output.contains("There is no ONVIF service at http://" + silent.address()));
}

/// Runs camera-report until it has printed \a count lines that start with \a start.
bool waitForLines(QProcess &process, const QByteArray &start, int count)
{
    process.setReadChannel(QProcess::StandardOutput);
    while (count > 0) {
        while (count > 0 && process.canReadLine())
            count -= process.readLine().startsWith(start) ? 1 : 0;
        if (count > 0 && !process.waitForReadyRead(test::patience))
            return false;
    }
    return true;
}

TEST(Many, areNotHeldUpByThoseThatAreSilent)
{
    const SimulatedDevice devices({samples("undeclared-prefixes"), "--devices", "180"});
    const SimulatedDevice silent({samples("undeclared-prefixes"), "--devices", "20", "--trouble", "silent"});
    QProcess process;
    // Those that never answer come first, and there are more of them than are asked at once.
    process.start(QStringLiteral(REPORT_PROGRAM), addressArguments(silent.addresses() + devices.addresses())
                                                      + QStringList{"--quiet", "--timeout", "3600"});
    EXPECT_TRUE(waitForLines(process, "Camera at ", 180));
    EXPECT_EQ(process.state(), QProcess::Running);
    ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    EXPECT_EQ(test::resultOf(process).exitCode, 130);
}

TEST(Many, areAskedOneAfterTheOtherWhereTheUserWantsThat)
{
    QByteArray asked;
    // Where the machine keeps a camera waiting for long, the next one is asked beside it.
    for (int run = 0; run < 5 && asked != "aaaaaaaabbbbbbbbcccccccc"; ++run) {
        test::FakeServer server([](const QByteArray &) { return test::httpReply("404 Not Found", ""); });
        const QString url = "http://" + server.address();
        report(addressArguments({url + "/a", url + "/b", url + "/c"}) + QStringList{"--jobs", "1", "--timeout", "60"});
        asked.clear();
        for (const QByteArray &request : server.requests())
            asked += request.mid(6, 1); // of "POST /a"
    }
    EXPECT_EQ(asked, "aaaaaaaabbbbbbbbcccccccc");
}

TEST(Many, haveATimeLimitEach)
{
    const SimulatedDevice silent({samples("short-prefixes"), "--devices", "40", "--trouble", "silent"});
    const Result result = report(addressArguments(silent.addresses()) + QStringList{"--timeout", "1"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    for (const QString &address : silent.addresses()) {
        EXPECT_TRUE(
            result.errors.contains(QString("camera-report: %1: GetSystemDateAndTime: Failure when receiving data "
                                           "from the peer. (no complete reply within 1 s)\n")
                                       .arg(address)))
            << address.toStdString();
    }
}

TEST(Found, camerasAreShownAndReportedOnWhenTheyAnswer)
{
    const SimulatedDevice devices({samples("short-prefixes"), "--devices", "3"});
    QProcess process;
    process.start(QStringLiteral(REPORT_PROGRAM),
                  {"--quiet", "--probe-address", devices.filledIn("{probe}"), "--all", "--timeout", "3600"});
    EXPECT_TRUE(waitForLines(process, "Camera at ", 3));
    EXPECT_EQ(process.state(), QProcess::Running);
    ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    EXPECT_EQ(test::resultOf(process).exitCode, 130);
}

TEST(Progress, isShownAtATerminal)
{
    const SimulatedDevice devices({samples("short-prefixes"), "--devices", "2"});
    const SimulatedDevice failing({samples("short-prefixes"), "--trouble", "not-found"});
    const test::Terminal terminal;
    QProcess process;
    terminal.giveTo(process, true);
    process.start(QStringLiteral(REPORT_PROGRAM),
                  addressArguments(devices.addresses() + failing.addresses()) + QStringList{"--timeout", "60"});
    const QByteArray end = "\r\033[K3 of 3 done, 1 failed";
    const QByteArray shown = terminal.shownUntil(end);
    EXPECT_TRUE(shown.contains("\r\033[K0 of 3 done, 0 failed")) << shown.toStdString();
    EXPECT_TRUE(shown.contains(end)) << shown.toStdString();
    EXPECT_EQ(test::resultOf(process).exitCode, 1);
}

TEST(Progress, isNotShownElsewhere)
{
    const SimulatedDevice devices({samples("short-prefixes"), "--devices", "2"});
    QProcess process;
    process.start(QStringLiteral(REPORT_PROGRAM),
                  addressArguments(devices.addresses()) + QStringList{"--timeout", "60"});
    EXPECT_EQ(test::resultOf(process).errors, "");
}

} // namespace
