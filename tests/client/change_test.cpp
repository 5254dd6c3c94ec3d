// Requests that set a network interface.

#include "client/programs.h"

#include <vorn/util/xmlresponse.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {

using test::ReplyFolder;
using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

/// The text at \a path below SetNetworkInterfaces in a message.
QString textIn(const QString &message, const char *path)
{
    vorn::XmlResponse request(message.toUtf8(), "/Envelope/Body/SetNetworkInterfaces");
    return request.getText(path);
}

TEST(Change, ofTheAddressIsPrintedAndNotSent)
{
    const QTemporaryDir folder;
    const SimulatedDevice device({samples("short-prefixes"), "--record", folder.path()});
    const Result result =
        report(device, {"--address", "{address}", "--timeout", "60", "--set-address", "eth0=192.0.2.9/24"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_EQ(textIn(result.output, "/InterfaceToken"), "NetworkInterface_1");
    EXPECT_EQ(textIn(result.output, "/NetworkInterface/Enabled"), "true");
    EXPECT_EQ(textIn(result.output, "/NetworkInterface/IPv4/Manual/Address"), "192.0.2.9");
    EXPECT_EQ(textIn(result.output, "/NetworkInterface/IPv4/Manual/PrefixLength"), "24");
    EXPECT_EQ(textIn(result.output, "/NetworkInterface/IPv4/DHCP"), "false");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("0001-GetNetworkInterfaces.txt"));
}

TEST(Change, toDhcpIsSentWhenItIsApplied)
{
    const QTemporaryDir folder;
    const SimulatedDevice device({samples("short-prefixes"), "--record", folder.path()});
    const Result result =
        report(device, {"--address", "{address}", "--timeout", "60", "--set-dhcp", "NetworkInterface_1", "--apply"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    QFile recorded(folder.filePath("0002-SetNetworkInterfaces.txt"));
    ASSERT_TRUE(recorded.open(QIODevice::ReadOnly));
    const QString sent = QString::fromUtf8(recorded.readAll()).section("\r\n\r\n", 1);
    EXPECT_EQ(result.output, sent + '\n');
    EXPECT_EQ(textIn(sent, "/InterfaceToken"), "NetworkInterface_1");
    EXPECT_EQ(textIn(sent, "/NetworkInterface/IPv4/DHCP"), "true");
    EXPECT_EQ(textIn(sent, "/NetworkInterface/IPv4/Manual/Address"), "203.0.113.9"); // what was there is kept
}

TEST(Change, isRefusedWithTheSentenceOfTheFault)
{
    const SimulatedDevice device({samples("short-prefixes"), "--trouble", "SetNetworkInterfaces=not-supported"});
    const Result result =
        report(device, {"--address", "{address}", "--timeout", "60", "--set-dhcp", "eth0", "--apply"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              device.filledIn("camera-report: {address}: SetNetworkInterfaces: The requested action is optional and is "
                              "not implemented by the device. (the device says: Not simulated)\n"));
}

TEST(Change, needsAnInterfaceThatIsThere)
{
    const SimulatedDevice device({samples("many-namespaces")});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60", "--set-dhcp", "eth7"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors,
              device.filledIn("camera-report: {address}: The device has no network interface eth7; it has: "
                              "eth0, wlan0.\n"));
}

TEST(Change, escapesWhatTheDeviceCallsItsInterface)
{
    const ReplyFolder folder(
        "GetNetworkInterfaces",
        "<NetworkInterfaces token=\"&lt;&amp;\"><Info><Name>eth0</Name></Info></NetworkInterfaces>");
    const SimulatedDevice device({folder.path()});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60", "--set-dhcp", "eth0"});
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_EQ(textIn(result.output, "/InterfaceToken"), "<&");
}

} // namespace
