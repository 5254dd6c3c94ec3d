// HTTP over TLS, with a certificate that signs itself as those of most cameras do.

#include "client/programs.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtNetwork/QSslSocket>

namespace {

using test::ReplyFolder;
using test::report;
using test::Result;
using test::samples;
using test::SimulatedDevice;

/// A folder with a password, and room for what a device records.
class OverTls : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!QSslSocket::supportsSsl())
            GTEST_SKIP() << "Qt has no TLS on this system.";
        QFile file(m_folder.filePath("password"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("simulated\n");
        ASSERT_TRUE(QDir(m_folder.path()).mkdir("record"));
    }

    QStringList asOperator() const { return {"--user", "operator", "--password-file", m_folder.filePath("password")}; }

    QString recordFolder() const { return m_folder.filePath("record"); }

    qsizetype recordedRequests() const { return QDir(recordFolder()).entryList(QDir::Files).size(); }

private:
    QTemporaryDir m_folder;
};

TEST_F(OverTls, aCertificateThatProvesNothingIsRefused)
{
    const SimulatedDevice device({samples("short-prefixes"), "--tls", "--record", recordFolder()});
    EXPECT_TRUE(device.address().startsWith("https://127.0.0.1:"));
    const Result result = report(device, QStringList{"--address", "{address}", "--timeout", "60"} + asOperator());
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    const QRegularExpression sentence(
        "^camera-report: https://127\\.0\\.0\\.1:\\d+: GetSystemDateAndTime: The certificate of 127\\.0\\.0\\.1:\\d+ "
        "is not "
        "trusted: [^\\n]*self-signed[^\\n]*\\. If its SHA-256 fingerprint is that of your camera, give --insecure: "
        "([0-9A-F]{2}:){31}[0-9A-F]{2}\\n$");
    EXPECT_TRUE(sentence.match(result.errors).hasMatch()) << result.errors.toStdString();
    EXPECT_EQ(recordedRequests(), 0);
}

TEST_F(OverTls, anyCertificateIsAcceptedWhereTheUserSaysSoAndItsFingerprintShown)
{
    const SimulatedDevice device({samples("short-prefixes"), "--tls"});
    const Result text = report(device, {"--address", "{address}", "--timeout", "60", "--insecure"});
    EXPECT_EQ(text.exitCode, 0) << text.errors.toStdString();
    EXPECT_TRUE(text.output.startsWith(device.filledIn("Camera at {address}\n  Certificate: not trusted: ")))
        << text.output.toStdString();
    EXPECT_TRUE(text.output.contains(device.filledIn("  Media: {address}/onvif/media\n")));
    EXPECT_TRUE(text.output.contains("Relay outputs\n  AlarmOut_1"));

    const Result json = report(device, {"--address", "{address}", "--timeout", "60", "--insecure", "--json"});
    const QJsonObject tls = QJsonDocument::fromJson(json.output.toUtf8()).object()["tls"].toObject();
    EXPECT_EQ(tls["isTrusted"], QJsonValue(false));
    const QString fingerprint = tls["fingerprint"].toString();
    EXPECT_EQ(fingerprint.size(), 95);
    EXPECT_TRUE(text.output.contains("\n  Fingerprint: SHA-256 " + fingerprint + "\n"));
}

TEST_F(OverTls, theUserIsLetIn)
{
    for (const char *kind : {"token", "http"}) {
        const SimulatedDevice device({samples("short-prefixes"), "--tls", "--auth", kind});
        const Result result =
            report(device, QStringList{"--address", "{address}", "--timeout", "60", "--insecure"} + asOperator());
        EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    }
}

TEST_F(OverTls, nothingGoesOutInTheClear)
{
    // The device names plain HTTP for all services.
    const SimulatedDevice device({samples("short-prefixes"), "--tls", "--keep-addresses", "--record", recordFolder()});
    const Result result =
        report(device, QStringList{"--address", "{address}", "--timeout", "60", "--insecure"} + asOperator());
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.output.contains("Media: http://10.1.2.3:8080/onvif/media\n"));
    EXPECT_EQ(recordedRequests(), 14);
}

TEST_F(OverTls, anotherCertificateOnTheWayIsRefused)
{
    const SimulatedDevice other({samples("short-prefixes"), "--tls", "--record", recordFolder()});
    const ReplyFolder capabilities("GetCapabilities", "<Capabilities><Media><XAddr>" + other.address().toUtf8()
                                                          + "/onvif/media</XAddr></Media></Capabilities>");
    const SimulatedDevice device(
        {samples("short-prefixes"), "--tls", "--answer", "GetCapabilities=" + capabilities.fileName()});
    const Result result =
        report(device, QStringList{"--address", "{address}", "--timeout", "60", "--insecure"} + asOperator());
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.output.contains("\nProfiles\n  not answered: The certificate of " + other.address().mid(8)
                                       + " is not trusted: "))
        << result.output.toStdString();
    EXPECT_EQ(recordedRequests(), 0);
}

TEST_F(OverTls, aSearchFindsTheDevice)
{
    const SimulatedDevice device({samples("short-prefixes"), "--tls"});
    const Result result = test::search(device, {"--probe-address", "{probe}", "--all", "--insecure"},
                                       device.filledIn("Camera at {address}"));
    EXPECT_EQ(result.exitCode, 0) << result.errors.toStdString();
    EXPECT_TRUE(result.output.startsWith(device.filledIn("{address}: BULLET-4K (Video)\n")))
        << result.output.toStdString();
}

TEST_F(OverTls, aPortThatIsAskedWithoutIsRecognised)
{
    const SimulatedDevice device({samples("short-prefixes"), "--tls"});
    const QString place = device.address().mid(8);
    const Result result = report({"--address", place, "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.contains("if the port speaks TLS, give https://" + place + ")\n"))
        << result.errors.toStdString();
}

TEST_F(OverTls, aPortThatSpeaksNoneIsRecognised)
{
    const SimulatedDevice device({samples("short-prefixes")});
    const Result result = report(device, {"--address", "https://{address}", "--timeout", "60"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(result.errors.startsWith(
        device.filledIn("camera-report: https://{address}: GetSystemDateAndTime: TLS with {address} failed: ")))
        << result.errors.toStdString();
    EXPECT_TRUE(result.errors.endsWith(" If it speaks plain HTTP, write http instead of https.\n"));
}

} // namespace
