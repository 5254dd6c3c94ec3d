// Who asks, and how that is proved.

#include "client/programs.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace {

using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

const QString refusal = QStringLiteral("camera-report: {address}: GetDeviceInformation: The action requested requires "
                                       "authorisation and the sender is not authorised. (the device says: Sender not "
                                       "authorized)\n");

/// A folder with a file that holds a password, and room for what a device records.
class Authentication : public testing::TestWithParam<const char *>
{
protected:
    QStringList as(const QString &user, const QString &password)
    {
        QFile file(m_folder.filePath("password"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(password.toUtf8() + '\n');
        return {"--address", "{address}", "--timeout", "60", "--user", user, "--password-file", file.fileName()};
    }

    QString recordFolder()
    {
        EXPECT_TRUE(QDir(m_folder.path()).mkpath("record"));
        return m_folder.filePath("record");
    }

    QByteArray recorded()
    {
        QByteArray all;
        const QDir folder(recordFolder());
        for (const QString &name : folder.entryList(QDir::Files, QDir::Name)) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            all += file.readAll();
        }
        return all;
    }

private:
    QTemporaryDir m_folder;
};

TEST_P(Authentication, letsTheUserIn)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", GetParam(), "--user", "Zoë", "--password",
                                  "a <b> & ü", "--record", recordFolder()});
    const Result result = report(device, as("Zoë", "a <b> & ü"));
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.output.contains("Relay outputs\n"));
    EXPECT_FALSE(recorded().isEmpty());
    EXPECT_FALSE(recorded().contains("a <b>"));
    EXPECT_FALSE(recorded().contains("a &lt;b"));
}

TEST_P(Authentication, refusesAWrongPasswordAfterOneTry)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", GetParam(), "--record", recordFolder()});
    const Result result = report(device, as("operator", "wrong"));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.output.contains(
        "\nServices\n  not answered: It was not asked, as the device has refused the user or the password.\n"))
        << result.output.toStdString();
    EXPECT_EQ(result.errors, device.filledIn(refusal));
    EXPECT_FALSE(recorded().contains("GetCapabilities"));
}

TEST_P(Authentication, isAskedForWhereThereIsNoUser)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", GetParam()});
    const Result result = report(device, {"--address", "{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              device.filledIn("camera-report: {address}: GetDeviceInformation, GetCapabilities, GetScopes, "
                              "GetProfiles, GetNetworkInterfaces, GetNetworkDefaultGateway, GetRelayOutputs: The "
                              "action requested requires authorisation and the sender is not authorised. (the device "
                              "says: Sender not authorized) Give --user.\n"));
    EXPECT_EQ(result.output.count("not answered: The action requested requires authorisation"), 7);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Authentication, testing::Values("token", "http"));

TEST_F(Authentication, goesByTheClockOfTheDevice)
{
    for (const char *seconds : {"86400", "-86400"}) {
        const SimulatedDevice device({samples("short-prefixes"), "--auth", "token", "--clock-ahead", seconds});
        const Result result = report(device, as("operator", "simulated"));
        EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    }
}

TEST_F(Authentication, goesByTheOwnClockWhereTheDeviceTellsNoTime)
{
    const SimulatedDevice device(
        {samples("short-prefixes"), "--auth", "token", "--trouble", "GetSystemDateAndTime=not-supported"});
    const Result result = report(device, as("operator", "simulated"));
    EXPECT_TRUE(result.output.contains("Relay outputs\n  AlarmOut_1")) << result.output.toStdString();
    EXPECT_TRUE(result.errors.startsWith(device.filledIn("camera-report: {address}: GetSystemDateAndTime: ")));
    EXPECT_EQ(result.errors.count('\n'), 1) << result.errors.toStdString();
}

TEST_F(Authentication, goesByTheOwnClockWhereTheQuestionForItFails)
{
    const SimulatedDevice device(
        {samples("short-prefixes"), "--auth", "token", "--trouble", "GetSystemDateAndTime=dropped"});
    const Result result = report(device, as("operator", "simulated"));
    EXPECT_TRUE(result.output.contains("Relay outputs\n  AlarmOut_1")) << result.output.toStdString();
    EXPECT_TRUE(
        result.errors.startsWith(device.filledIn("camera-report: {address}: GetSystemDateAndTime: Empty reply")))
        << result.errors.toStdString();
}

TEST_F(Authentication, isTriedWhereTheClockIsNotToldToStrangers)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "token", "--answer",
                                  "GetSystemDateAndTime=" + samples("faults/NotAuthorized.xml")});
    const Result result = report(device, as("operator", "simulated"));
    EXPECT_TRUE(result.output.contains("Relay outputs\n  AlarmOut_1")) << result.output.toStdString();
}

TEST_F(Authentication, neverHandsThePasswordItselfOver)
{
    const SimulatedDevice device({samples("short-prefixes"), "--auth", "basic", "--record", recordFolder()});
    const Result result = report(device, as("operator", "simulated"));
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors, device.filledIn(refusal));
    EXPECT_TRUE(recorded().contains("GetDeviceInformation"));
    EXPECT_FALSE(recorded().toLower().contains("authorization:"));
    EXPECT_FALSE(recorded().contains("simulated"));
}

TEST_F(Authentication, saysWhyThereIsNoPassword)
{
    const Result result =
        report({"--address", "192.0.2.1", "--user", "operator", "--password-file", "/nowhere/password"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.errors,
              "camera-report: The password file /nowhere/password cannot be read: No such file or directory.\n");
}

} // namespace
