#include "httpexchange.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QStringList>
#include <QtNetwork/QSslCertificate>
#include <QtNetwork/QSslConfiguration>
#include <QtNetwork/QSslError>

namespace client {
namespace {

QByteArray fingerprintOf(const QSslCertificate &certificate)
{
    return certificate.isNull() ? QByteArray() : certificate.digest(QCryptographicHash::Sha256).toHex(':').toUpper();
}

/// The host and port of \a url as a user names them.
QString placeOf(const QUrl &url)
{
    return url.authority(QUrl::FullyEncoded);
}

} // namespace

HttpExchange::HttpExchange(QNetworkReply *reply, std::chrono::milliseconds timeout, const QByteArray &accepted,
                           Done done, QObject *owner)
    : QObject(owner)
    , m_reply(reply)
    , m_done(std::move(done))
{
    m_result.url = reply->url();
    reply->setParent(this);
    reply->setReadBufferSize(maximumReplySize);
    connect(reply, &QNetworkReply::sslErrors, this,
            [this, accepted](const QList<QSslError> &errors) { judge(errors, accepted); });
    connect(reply, &QNetworkReply::encrypted, this,
            [this] { m_result.tls.fingerprint = fingerprintOf(m_reply->sslConfiguration().peerCertificate()); });
    connect(reply, &QNetworkReply::requestSent, this, [this] { m_isSent = true; });
    connect(reply, &QNetworkReply::readyRead, this, [this] { collect(); });
    connect(reply, &QNetworkReply::finished, this, [this] { finish(); });
    // For the whole exchange: a device that sends a byte now and then must not hold it up.
    connect(&m_limit, &QTimer::timeout, this, [this, timeout] {
        const double seconds = static_cast<double>(timeout.count()) / 1000;
        m_result.isSilence = m_isSent;
        if (m_isSent)
            stop(TransportFailure::ReceiveFailure, QString("no complete reply within %1 s").arg(seconds));
        else
            stop(TransportFailure::NotConnected,
                 QString("There was no connection to %1 within %2 s: check that it is on, and reached from here%3.")
                     .arg(placeOf(m_result.url))
                     .arg(seconds)
                     .arg(m_result.url.scheme() == "https" ? " by TLS" : ""));
    });
    m_limit.setSingleShot(true);
    m_limit.start(timeout);
}

void HttpExchange::judge(const QList<QSslError> &errors, const QByteArray &accepted)
{
    QStringList doubts;
    for (const QSslError &error : errors) {
        if (m_result.tls.fingerprint.isEmpty())
            m_result.tls.fingerprint = fingerprintOf(error.certificate());
        doubts += error.errorString();
    }
    doubts.removeDuplicates();
    const QByteArray present = fingerprintOf(m_reply->sslConfiguration().peerCertificate());
    if (!present.isEmpty())
        m_result.tls.fingerprint = present;
    m_result.tls.doubt = doubts.join("; ");
    if (accepted == "any" || (!accepted.isEmpty() && accepted == m_result.tls.fingerprint))
        m_reply->ignoreSslErrors();
}

void HttpExchange::collect()
{
    if (m_result.failure != TransportFailure::None)
        return;
    m_result.body += m_reply->read(maximumReplySize + 1 - m_result.body.size());
    if (m_result.body.size() > maximumReplySize)
        stop(TransportFailure::ReceiveFailure,
             QString("the reply is longer than %1 MiB").arg(maximumReplySize / 1024 / 1024));
}

void HttpExchange::stop(TransportFailure failure, const QString &why)
{
    m_result.failure = failure;
    m_result.failureText = why;
    m_reply->abort(); // which finishes it
}

void HttpExchange::finish()
{
    collect();
    m_result.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (m_result.failure == TransportFailure::None) {
        m_result.statusText = m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
        m_result.type = m_reply->rawHeader("Content-Type");
        m_result.challenge = m_reply->rawHeader("WWW-Authenticate");
        m_result.location = QString::fromLatin1(m_reply->rawHeader("Location"));
        m_result.failure = transportFailureOf(m_reply->error(), m_result.status != 0);
        if (m_result.failure == TransportFailure::NoTls && !m_result.tls.doubt.isEmpty())
            m_result.failure = TransportFailure::NotTrusted;
        if (m_result.failure == TransportFailure::Other && !m_isSent)
            m_result.failure = TransportFailure::NotConnected;
        if (m_result.failure == TransportFailure::EmptyReply && !m_isSent && m_result.url.scheme() == "https")
            m_result.failure = TransportFailure::NoTls;
        m_result.failureText = failureText(m_result.failure);
    }
    m_done(m_result);
    deleteLater();
}

QString HttpExchange::failureText(TransportFailure failure) const
{
    const QString place = placeOf(m_result.url);
    const bool isTls = m_result.url.scheme() == "https";
    switch (failure) {
    case TransportFailure::None:
        return {};
    case TransportFailure::HostNotResolved:
        return "check the name: " + m_result.url.host();
    case TransportFailure::NotConnected:
        if (m_reply->error() == QNetworkReply::ConnectionRefusedError)
            return QString(
                       "Nothing listens at %1: the connection was refused. Check the port; without one, %2 is asked.")
                .arg(place)
                .arg(isTls ? 443 : 80);
        return QString("There is no way to %1: %2.").arg(place, m_reply->errorString());
    case TransportFailure::NoTls:
        return QString("TLS with %1 failed: %2. If it speaks plain HTTP, write http instead of https.")
            .arg(place, m_reply->errorString());
    case TransportFailure::NotTrusted:
        return QString("The certificate of %1 is not trusted: %2. If its SHA-256 fingerprint is that of your camera, "
                       "give --insecure: %3")
            .arg(place, m_result.tls.doubt, QString::fromLatin1(m_result.tls.fingerprint));
    case TransportFailure::EmptyReply:
        return QString("the connection ended before a reply over HTTP came")
               + (isTls ? "" : "; if the port speaks TLS, give https://" + place);
    case TransportFailure::PartialReply:
        return "the connection ended in the middle of the reply";
    default:
        return m_reply->errorString();
    }
}

} // namespace client
