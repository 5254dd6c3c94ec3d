// Ctrl-C, and the password that is typed at a terminal.

#include "client/programs.h"
#include "client/terminal.h"

#include <csignal>
#include <sys/types.h>
#include <unistd.h>

namespace {

using test::Result;
using test::samples;
using test::SimulatedDevice;

/// Runs \a process until it has written \a text to standard error.
bool waitForError(QProcess &process, const QByteArray &text)
{
    process.setReadChannel(QProcess::StandardError);
    QByteArray errors;
    while (!errors.contains(text)) {
        if (!process.waitForReadyRead(test::patience))
            return false;
        errors += process.readAllStandardError();
    }
    return true;
}

TEST(Stop, endsAReportThatWaits)
{
    const SimulatedDevice device({samples("short-prefixes"), "--trouble", "silent"});
    for (const int signal : {SIGINT, SIGTERM}) {
        QProcess process;
        process.start(QStringLiteral(REPORT_PROGRAM), {"--address", device.address(), "--timeout", "3600"});
        ASSERT_TRUE(waitForError(process, "for GetSystemDateAndTime"));
        ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), signal), 0);
        const Result result = test::resultOf(process);
        EXPECT_EQ(result.exitCode, 130);
        EXPECT_EQ(result.output, "");
    }
}

TEST(Stop, endsASearch)
{
    const SimulatedDevice device({samples("short-prefixes")});
    QProcess process;
    process.start(QStringLiteral(REPORT_PROGRAM), {"--probe-address", device.filledIn("{probe}"), "--timeout", "3600"});
    ASSERT_TRUE(waitForError(process, "searching"));
    ASSERT_EQ(kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    EXPECT_EQ(test::resultOf(process).exitCode, 130);
}

TEST(Password, isTypedWithoutBeingShown)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "token", "--password", "ü secret"});
    const test::Terminal terminal;
    QProcess process;
    terminal.giveTo(process);
    process.start(QStringLiteral(REPORT_PROGRAM),
                  {"--quiet", "--address", device.address(), "--timeout", "60", "--user", "operator"});
    EXPECT_TRUE(terminal.shownUntil("Password of operator: ").contains("Password of operator: "));
    terminal.type("ü secret\n");
    EXPECT_EQ(terminal.shownUntil("\n"), "\r\n");
    const Result result = test::resultOf(process);
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.output.contains("Relay outputs\n"));
}

TEST(Password, canBeGivenUp)
{
    for (const char *key : {"\x03", "\x04"}) { // Ctrl-C, Ctrl-D
        const test::Terminal terminal;
        QProcess process;
        terminal.giveTo(process);
        process.start(QStringLiteral(REPORT_PROGRAM), {"--address", "192.0.2.1", "--user", "operator"});
        EXPECT_TRUE(terminal.shownUntil(": ").contains("Password of operator: "));
        terminal.type(key);
        EXPECT_EQ(test::resultOf(process).exitCode, 130);
    }
}

TEST(Password, needsATerminal)
{
    QProcess process;
    process.setChildProcessModifier([] { setsid(); });
    process.start(QStringLiteral(REPORT_PROGRAM), {"--address", "192.0.2.1", "--user", "operator"});
    const Result result = test::resultOf(process);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors, "camera-report: There is no terminal to ask for the password at: give --password-file.\n");
}

} // namespace
