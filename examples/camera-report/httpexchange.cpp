#include "httpexchange.h"

namespace client {

HttpExchange::HttpExchange(QNetworkReply *reply, std::chrono::milliseconds timeout, Done done, QObject *owner)
    : QObject(owner)
    , m_reply(reply)
    , m_done(std::move(done))
{
    reply->setParent(this);
    reply->setReadBufferSize(maximumReplySize);
    connect(reply, &QNetworkReply::readyRead, this, [this] { collect(); });
    connect(reply, &QNetworkReply::finished, this, [this] { finish(); });
    // For the whole exchange: a device that sends a byte now and then must not hold it up.
    connect(&m_limit, &QTimer::timeout, this, [this, timeout] {
        stop(QString("no complete reply within %1 s").arg(static_cast<double>(timeout.count()) / 1000));
    });
    m_limit.setSingleShot(true);
    m_limit.start(timeout);
}

void HttpExchange::collect()
{
    if (m_result.failure != TransportFailure::None)
        return;
    m_result.body += m_reply->read(maximumReplySize + 1 - m_result.body.size());
    if (m_result.body.size() > maximumReplySize)
        stop(QString("the reply is longer than %1 MiB").arg(maximumReplySize / 1024 / 1024));
}

void HttpExchange::stop(const QString &why)
{
    m_result.failure = TransportFailure::ReceiveFailure;
    m_result.failureText = why;
    m_reply->abort(); // which finishes it
}

void HttpExchange::finish()
{
    collect();
    if (m_result.failure == TransportFailure::None) {
        m_result.status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        m_result.statusText = m_reply->attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString();
        m_result.challenge = m_reply->rawHeader("WWW-Authenticate");
        m_result.failure = transportFailureOf(m_reply->error(), m_result.status != 0);
        if (m_result.failure != TransportFailure::None)
            m_result.failureText = failureText();
    }
    m_done(m_result);
    deleteLater();
}

QString HttpExchange::failureText() const
{
    if (m_reply->error() != QNetworkReply::RemoteHostClosedError)
        return m_reply->errorString();
    return m_result.status == 0 ? "the connection ended before a reply over HTTP came"
                                : "the connection ended in the middle of the reply";
}

} // namespace client
