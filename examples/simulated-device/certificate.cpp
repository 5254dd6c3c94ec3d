#include "certificate.h"

#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <chrono>

namespace simulator {
namespace {

constexpr std::chrono::milliseconds patience = std::chrono::minutes(2);

QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

OwnCertificate makeCertificate(const QHostAddress &address)
{
    const QTemporaryDir folder;
    const QString keyFile = folder.filePath("key.pem");
    const QString certificateFile = folder.filePath("certificate.pem");
    QProcess openssl;
    openssl.start("openssl", {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1", "-nodes",
                              "-days", "30", "-subj", "/CN=simulated-device", "-addext",
                              "subjectAltName=IP:" + address.toString(), "-keyout", keyFile, "-out", certificateFile});
    if (!openssl.waitForFinished(static_cast<int>(patience.count())) || openssl.exitCode() != 0) {
        const QString reason = openssl.error() == QProcess::FailedToStart
                                   ? openssl.errorString()
                                   : QString::fromUtf8(openssl.readAllStandardError()).simplified();
        OwnCertificate none;
        none.complaint = QString("--tls needs the command openssl, which failed: %1").arg(reason);
        return none;
    }
    OwnCertificate own{QSslCertificate(contentsOf(certificateFile)), QSslKey(contentsOf(keyFile), QSsl::Ec), {}};
    if (own.certificate.isNull() || own.key.isNull())
        own.complaint = "Qt cannot read the certificate that openssl made.";
    return own;
}

} // namespace simulator
