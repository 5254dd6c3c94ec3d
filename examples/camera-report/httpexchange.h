#pragma once

#include "transportfailure.h"

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtNetwork/QNetworkReply>

#include <chrono>
#include <functional>

namespace client {

/// A body that is longer is not read to its end: none of an honest device comes near. The head of a reply, which Qt
/// reads by itself, is limited by the time alone.
inline constexpr qsizetype maximumReplySize = qsizetype(1024) * 1024;

/// What one request over HTTP brought.
struct HttpReply
{
    TransportFailure failure = TransportFailure::None;
    QString failureText;  ///< the failure in the words of the transport
    int status = 0;       ///< status of HTTP; 0 if there was no reply
    QString statusText;   ///< status in the words of the device
    QByteArray body;      ///< the bytes of the reply
    QByteArray challenge; ///< value of WWW-Authenticate
};

/// Waits for a reply of QNetworkAccessManager within a time and a size, and deletes itself when it has told of it.
class HttpExchange : public QObject
{
public:
    using Done = std::function<void(const HttpReply &)>;

    /// Takes \a reply over. Calls \a done once, unless \a owner is destroyed before.
    HttpExchange(QNetworkReply *reply, std::chrono::milliseconds timeout, Done done, QObject *owner);

private:
    void collect();
    void stop(const QString &why);
    void finish();
    QString failureText() const;

    QNetworkReply *m_reply;
    Done m_done;
    HttpReply m_result;
    QTimer m_limit;
};

} // namespace client
