#pragma once

#include "transportfailure.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkReply>

#include <chrono>
#include <functional>

namespace client {

/// A body that is longer is not read to its end: none of an honest device comes near. The head of a reply, which Qt
/// reads by itself, is limited by the time alone.
inline constexpr qsizetype maximumReplySize = qsizetype(1024) * 1024;

/// What TLS has told of the device.
struct Tls
{
    QByteArray fingerprint; ///< SHA-256 of its certificate, in hexadecimal digits with colons; empty without TLS
    QString doubt;          ///< why the certificate proves nothing; empty if it is trusted
};

/// What one request over HTTP brought.
struct HttpReply
{
    QUrl url; ///< that was asked
    TransportFailure failure = TransportFailure::None;
    bool isSilence = false; ///< whether the time was over before the end of the reply
    QString failureText;    ///< the failure in words of this program
    int status = 0;         ///< status of HTTP; 0 if there was no reply
    QString statusText;     ///< status in the words of the device
    QByteArray body;        ///< the bytes of the reply
    QByteArray type;        ///< value of Content-Type
    QByteArray challenge;   ///< value of WWW-Authenticate
    QString location;       ///< value of Location
    Tls tls;
};

/// Waits for a reply of QNetworkAccessManager within a time and a size, and deletes itself when it has told of it.
class HttpExchange : public QObject
{
public:
    using Done = std::function<void(const HttpReply &)>;

    /// Takes \a reply over. Calls \a done once, unless \a owner is destroyed before. A certificate that proves nothing
    /// is accepted only if it has the fingerprint \a accepted, or if that is "any".
    HttpExchange(QNetworkReply *reply, std::chrono::milliseconds timeout, const QByteArray &accepted, Done done,
                 QObject *owner);

private:
    void judge(const QList<QSslError> &errors, const QByteArray &accepted);
    void collect();
    void stop(TransportFailure failure, const QString &why);
    void finish();
    QString failureText(TransportFailure failure) const;

    QNetworkReply *m_reply;
    Done m_done;
    HttpReply m_result;
    bool m_isSent = false; ///< whether there is a connection over which the request went out
    QTimer m_limit;
};

} // namespace client
