// The command lines of both programs.

#include "client/programs.h"

namespace {

using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

TEST(Usage, isWrongInOneSentence)
{
    const std::pair<QStringList, const char *> rows[] = {
        {{}, "Name cameras with --address, or with --interface where to search for cameras: "},
        {{"--address", "a", "--interface", "b"}, "Name cameras with --address, or with --interface where"},
        {{"--address", ""}, " is no address: give a host such as 192.0.2.7, 192.0.2.7:8080 or [2001:db8::7], or a URL"},
        {{"--address", "a b"}, "a b is no address: give a host such as"},
        {{"--address", "a", "--address", "a b"}, "a b is no address: give a host such as"},
        {{"--address", "192.0.2.7:99999"}, "192.0.2.7:99999 is no address: "},
        {{"--address", "user:secret@192.0.2.7"}, " is no address: "},
        {{"--address", "192.0.2.7/path"}, "192.0.2.7/path is no address: "},
        {{"--address", "ftp://192.0.2.7"}, "ftp://192.0.2.7 is no address: "},
        {{"--addresses", "/nowhere"}, "The file /nowhere cannot be read: No such file or directory."},
        {{"--addresses", "/dev/null"}, "There is no address in /dev/null."},
        {{"--address", "a", "--all"}, "--all is for a search: give --interface instead of --address."},
        {{"--address", "a", "--timeout", "soon"}, "--timeout wants a number of seconds from 0.01 to 3600."},
        {{"--address", "a", "--timeout", "0"}, "--timeout wants a number of seconds from 0.01 to 3600."},
        {{"--address", "a", "--jobs", "0"}, "--jobs wants a number from 1 to 1000."},
        {{"--address", "a", "--clock-limit", "-1"}, "--clock-limit wants a number of days from 0 to 100000."},
        {{"--address", "a", "--json", "--table"}, "--json and --table exclude each other."},
        {{"--address", "a", "--save", "/proc/nothing"}, "The folder /proc/nothing cannot be made."},
        {{"--probe-address", "192.0.2.7:3702", "--table"}, "--table and --save go with --address, or with a search"},
        {{"--address", "a", "--address", "b", "--set-dhcp", "e"},
         "An interface can be set only of the one camera that"},
        {{"--address", "a", "--set-dhcp", "e", "--table"}, "--table and --save are for reports."},
        {{"--address", "a", "--timeout", "nan"}, "--timeout wants a number of seconds from 0.01 to 3600."},
        {{"--address", "a", "--password-file", "f"}, "--user wants the name of the user, also where"},
        {{"--address", "a", "--user", ""}, "--user wants the name of the user, also where"},
        {{"--address", "a", "--apply"}, "--apply goes with --set-dhcp or --set-address."},
        {{"--address", "a", "--set-address", "eth0"}, "eth0 has not the form eth0=192.0.2.7/24."},
        {{"--address", "a", "--set-dhcp", "e", "--set-address", "e=192.0.2.7/24"},
         "--set-dhcp and --set-address exclude each other."},
        {{"--probe-address", "192.0.2.7:3702", "--set-dhcp", "e"},
         "An interface can be set only of the one camera that"},
        {{"--probe-address", "192.0.2.7"}, "192.0.2.7 is no IPv4 address with a port, such as 192.0.2.7:3702."},
        {{"--probe-address", "host:1"}, "host:1 is no IPv4 address with a port, such as 192.0.2.7:3702."},
        {{"--interface", "no such"}, "This machine has no network interface no such; it has: "},
        {{"--address", "a", "more"}, "more is not understood."},
        {{"--no-such-option"}, "Unknown option 'no-such-option'."},
    };
    for (const auto &[arguments, sentence] : rows) {
        const Result result = report(arguments);
        EXPECT_EQ(result.exitCode, 2) << sentence;
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(result.errors.startsWith("camera-report: ") && result.errors.contains(sentence))
            << result.errors.toStdString();
        EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
    }
}

TEST(Usage, isExplained)
{
    const Result help = report({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_EQ(help.errors, "");
    for (const char *what : {"--address ADDRESS",
                             "--addresses FILE",
                             "--interface NAME",
                             "--probe-address IP:PORT",
                             "--all",
                             "--user NAME",
                             "--password-file FILE",
                             "--insecure",
                             "--clock-limit DAYS",
                             "--timeout SECONDS",
                             "--jobs NUMBER",
                             "--json",
                             "--table",
                             "--save FOLDER",
                             "--quiet",
                             "--set-dhcp INTERFACE",
                             "--set-address INTERFACE=ADDRESS/PREFIX",
                             "--apply",
                             "-h, --help",
                             "-v, --version",
                             "Exit codes: 0",
                             "130"})
        EXPECT_TRUE(help.output.contains(what)) << what;
    const QStringList lines = help.output.split('\n');
    EXPECT_LE(lines.size(), 40);
    for (const QString &line : lines)
        EXPECT_LE(line.size(), 80) << line.toStdString();
    const Result version = report({"--version"});
    EXPECT_EQ(version.exitCode, 0);
    EXPECT_EQ(version.output, "camera-report " PROJECT_VERSION_TEXT "\n");
}

/// Runs simulated-device, with arguments that make it end.
Result simulate(const QStringList &arguments)
{
    QProcess process;
    process.start(QStringLiteral(DEVICE_PROGRAM), arguments);
    return test::resultOf(process);
}

TEST(Usage, ofTheSimulatedDeviceIsWrongInOneSentence)
{
    const QString folder = samples("short-prefixes");
    const std::pair<QStringList, const char *> rows[] = {
        {{folder, folder}, "Name only one folder with replies."},
        {{SAMPLES_FOLDER}, "The folder " SAMPLES_FOLDER " holds no reply that can be read, such as GetScopes.xml."},
        {{"/nowhere"}, "There is no folder /nowhere."},
        {{folder, "--answer", "GetScopes"}, "GetScopes names no action and a file that can be read."},
        {{folder, "--trouble", "bad-luck"}, "There is no trouble bad-luck; there are: silent, "},
        {{folder, "--auth", "smile"}, "--auth wants token, http or basic."},
        {{folder, "--nonce-uses", "0"}, "--nonce-uses wants a number from 1 to 1000000."},
        {{folder, "--nonce-life", "-1"}, "--nonce-life wants a number of seconds from 0 to 1000000."},
        {{folder, "--listen", "0.0.0.0"}, "--listen wants an IPv4 address of this machine."},
        {{folder, "--listen", "192.0.2.77"}, "No device can listen at 192.0.2.77:0: "},
        {{folder, "--port", "65536"}, "--port and --probe-port want the number of a port."},
        {{folder, "--devices", "0"}, "--devices wants a number from 1 to 1000."},
        {{folder, "--clock-ahead", "x"}, "--clock-ahead wants a number of seconds."},
        {{folder, "--record", "/nowhere"}, "There is no folder /nowhere."},
    };
    for (const auto &[arguments, sentence] : rows) {
        const Result result = simulate(arguments);
        EXPECT_EQ(result.exitCode, 2) << sentence;
        EXPECT_TRUE(result.errors.startsWith(QString("simulated-device: ") + sentence)) << result.errors.toStdString();
        EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
    }
}

TEST(Usage, ofTheSimulatedDeviceIsExplained)
{
    const Result help = simulate({"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_EQ(help.errors, "");
    for (const char *what : {"[FOLDER]", "samples/short-prefixes", "--trouble", "endless-head", "Exit codes: 0"})
        EXPECT_TRUE(help.output.contains(what)) << what;
}

TEST(Usage, ofAPortThatIsTakenIsRefused)
{
    const SimulatedDevice device({});
    const QString port = device.address().section(':', 1);
    const Result second = simulate({"--port", port});
    EXPECT_EQ(second.exitCode, 2);
    EXPECT_TRUE(second.errors.startsWith(device.filledIn("simulated-device: No device can listen at {address}: ")))
        << second.errors.toStdString();

    const QString probePort = device.filledIn("{probe}").section(':', 1);
    const Result third = simulate({"--probe-port", probePort});
    EXPECT_EQ(third.exitCode, 2);
    EXPECT_TRUE(third.errors.startsWith(device.filledIn("simulated-device: Probes cannot be taken at {probe}: ")))
        << third.errors.toStdString();
}

TEST(Usage, ofTheSimulatedDeviceNeedsNoArgument)
{
    const SimulatedDevice device({});
    EXPECT_TRUE(device.address().startsWith("127.0.0.1:"));
    EXPECT_TRUE(device.filledIn("{probe}").startsWith("127.0.0.1:"));
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.output.contains("Model: Bullet 4K\n"));
}

TEST(Usage, failsWhereTheOutputIsLost)
{
    if (!QFile::exists("/dev/full"))
        GTEST_SKIP() << "This machine has no device that takes no output.";
    const SimulatedDevice device({});
    const std::pair<const char *, QStringList> rows[] = {
        {REPORT_PROGRAM, {"--quiet", "--address", device.address(), "--timeout", "60"}},
        {REPORT_PROGRAM, {"--help"}},
        {DEVICE_PROGRAM, {}},
        {DEVICE_PROGRAM, {"--help"}},
    };
    for (const auto &[program, arguments] : rows) {
        QProcess process;
        process.setStandardOutputFile("/dev/full");
        process.start(program, arguments);
        const Result result = test::resultOf(process);
        EXPECT_EQ(result.exitCode, 2);
        EXPECT_TRUE(result.errors.endsWith(": The output cannot be written.\n")) << result.errors.toStdString();
    }
}

} // namespace
