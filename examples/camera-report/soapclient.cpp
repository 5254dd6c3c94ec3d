#include "soapclient.h"

#include <QtCore/QDateTime>
#include <QtCore/QThreadPool>
#include <QtCore/QUuid>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkRequest>

#include <cstdlib>

namespace client {
namespace {

const Request clockRequest{Service::Device, "GetSystemDateAndTime"};

/// A proof that was right but for its nonce is made anew, once: a device could ask for that for ever.
constexpr int mostChallenges = 2;

/// Destroys \a manager, which waits for a thread of its own: for seconds if a device floods the head of its reply. The
/// event loop, which has other devices to serve, must not.
void dispose(std::unique_ptr<QNetworkAccessManager> manager)
{
    manager->moveToThread(nullptr);
    QThreadPool::globalInstance()->start([doomed = manager.release()] { delete doomed; });
}

HttpReply failed(TransportFailure failure, const QUrl &url)
{
    HttpReply reply;
    reply.url = url;
    reply.failure = failure;
    reply.failureText = url.toString();
    return reply;
}

QNetworkRequest httpRequest(const QUrl &url, const Request &request)
{
    QNetworkRequest http(url);
    http.setHeader(QNetworkRequest::ContentTypeHeader, contentType(request));
    http.setHeader(QNetworkRequest::UserAgentHeader, "camera-report");
    http.setRawHeader("Connection", "close");         // devices close idle connections without notice
    http.setRawHeader("Accept-Encoding", "identity"); // so that nothing swells while it is unpacked
    http.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    http.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    // Qt itself would answer challenges, also of NTLM and Negotiate, with what it knows of the user of this machine.
    http.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    http.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    http.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    return http;
}

} // namespace

SoapClient::SoapClient(const Access &access)
    : m_manager(std::make_unique<QNetworkAccessManager>())
    , m_access(access)
{
    m_manager->setProxy(QNetworkProxy::NoProxy); // devices stand in the own network
}

SoapClient::~SoapClient()
{
    const QObjectList exchanges = children(); // a copy, as each takes itself out
    qDeleteAll(exchanges);
    dispose(std::move(m_manager));
}

void SoapClient::askClock(const QUrl &url, const ClockDone &done)
{
    const QDateTime sent = QDateTime::currentDateTimeUtc();
    post(url, clockRequest, false, [=](const HttpReply &reply) {
        const Answer answer(clockRequest, reply, ++m_answers);
        ClockReading reading;
        if (answer.isReply) {
            reading.clock = clockIn(answer.bytes);
            reading.secondsAhead = reading.clock.secondsAhead(sent, QDateTime::currentDateTimeUtc());
        }
        reading.isUsed = reading.secondsAhead && std::abs(*reading.secondsAhead) <= m_access.clockLimit.count();
        m_clock = reading;
        done(answer, reading);
    });
}

void SoapClient::ask(const QUrl &url, const Request &request, const Done &done)
{
    if (m_access.credentials.isEmpty() || m_clock)
        return askOfKnownClock(url, request, 0, done);
    askClock(url, [=](const Answer &answer, const ClockReading &) {
        if (isFinal(answer.http.failure) || answer.http.isSilence)
            done(answer);
        else
            askOfKnownClock(url, request, 0, done);
    });
}

void SoapClient::askOfKnownClock(const QUrl &url, const Request &request, int challenges, const Done &done)
{
    post(url, request, true, [=](const HttpReply &reply) {
        // The device wants Digest authentication of HTTP, or wants it anew.
        const auto challenge =
            reply.status == 401 && !m_access.credentials.isEmpty() ? digestChallenge(reply.challenge) : std::nullopt;
        const bool isAnswered = challenge && (challenges == 0 || (challenge->stale && challenges < mostChallenges));
        if (!isAnswered)
            return done(Answer(request, reply, ++m_answers));
        m_challenge = challenge;
        m_challengeUses = 0;
        askOfKnownClock(url, request, challenges + 1, done);
    });
}

void SoapClient::post(const QUrl &url, const Request &request, bool authenticated, const HttpExchange::Done &done)
{
    if (!url.isValid() || url.host().isEmpty())
        return done(failed(TransportFailure::BadUrl, url));
    if (url.scheme() != "http" && url.scheme() != "https")
        return done(failed(TransportFailure::UnsupportedProtocol, url));

    QNetworkRequest http = httpRequest(url, request);
    QString header;
    if (authenticated && !m_access.credentials.isEmpty()) {
        const qint64 ahead = m_clock && m_clock->isUsed ? m_clock->secondsAhead.value_or(0) : 0;
        const Token token = freshToken(m_access.credentials, QDateTime::currentDateTimeUtc().addSecs(ahead));
        header = securityHeader(m_access.credentials, token);
        m_secretsSent = {token.digest, token.nonce.toBase64()};
        if (m_challenge) {
            const QByteArray authorization = authorizationFor(url);
            http.setRawHeader("Authorization", authorization);
            m_secretsSent.append(authorization);
        }
    }
    new HttpExchange(
        m_manager->post(http, message(request, header)), m_access.timeout, acceptedFingerprint(),
        [=](const HttpReply &reply) {
            if (m_fingerprint.isEmpty() && reply.failure != TransportFailure::NotTrusted)
                m_fingerprint = reply.tls.fingerprint;
            done(reply);
        },
        this);
}

QByteArray SoapClient::acceptedFingerprint() const
{
    if (!m_access.insecure)
        return {};
    return m_fingerprint.isEmpty() ? "any" : m_fingerprint;
}

QByteArray SoapClient::authorizationFor(const QUrl &url)
{
    DigestUse use;
    use.method = "POST";
    use.uri = url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    use.clientNonce = QUuid::createUuid().toByteArray(QUuid::Id128);
    use.count = ++m_challengeUses;
    return digestAuthorization(*m_challenge, m_access.credentials, use);
}

} // namespace client
