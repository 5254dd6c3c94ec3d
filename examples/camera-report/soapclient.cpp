#include "soapclient.h"

#include <QtCore/QDateTime>
#include <QtCore/QTimeZone>
#include <QtCore/QUuid>
#include <QtNetwork/QNetworkProxy>
#include <QtNetwork/QNetworkRequest>

namespace client {
namespace {

const Request clockRequest{Service::Device, "GetSystemDateAndTime"};

/// The time that a device tells, in UTC. Not valid if it tells none.
QDateTime timeIn(const QByteArray &bytes)
{
    vorn::XmlResponse response(bytes, "/Envelope/Body/GetSystemDateAndTimeResponse/SystemDateAndTime/UTCDateTime");
    const auto number = [&](const char *path) { return static_cast<int>(response.getUInt(path)); };
    const QDate date(number("/Date/Year"), number("/Date/Month"), number("/Date/Day"));
    const QTime time(number("/Time/Hour"), number("/Time/Minute"), number("/Time/Second"));
    return {date, time, QTimeZone::utc()};
}

/// What the library is given: the reply if it says something, else a document that stands for the failure.
QByteArray documentOf(const HttpReply &reply)
{
    if (reply.failure != TransportFailure::None)
        return bareFault(reply.failure);
    const bool isGood = reply.status / 100 == 2;
    if (isGood)
        return reply.body.trimmed().isEmpty() ? bareFault(TransportFailure::EmptyReply) : reply.body;
    // Faults come with a status of their own. Anything else that does says less than its status.
    vorn::XmlResponse response(reply.body, "/Envelope/Body/Fault");
    return response.getText("/Code/Value").isNull() ? statusPage(reply.status) : reply.body;
}

QString remarkOn(const HttpReply &reply, vorn::OnvifFault &fault)
{
    if (reply.failure != TransportFailure::None)
        return reply.failureText;
    const QString reason = fault.response.getText("/Envelope/Body/Fault/Reason/Text").simplified();
    if (!reason.isEmpty())
        return QString("the device says: %1").arg(reason);
    if (reply.status / 100 == 3)
        return QString("HTTP status %1: the device sends on to another address, which is not followed")
            .arg(reply.status);
    return reply.status / 100 == 2 ? QString() : QString("HTTP status %1 %2").arg(reply.status).arg(reply.statusText);
}

HttpReply failed(TransportFailure failure, const QString &text)
{
    HttpReply reply;
    reply.failure = failure;
    reply.failureText = text;
    return reply;
}

} // namespace

QString Answer::complaint() const
{
    QString sentence;
    if (fault.hasError()) {
        sentence = fault.toString();
    } else {
        vorn::XmlResponse response = fault.response; // queries are not const
        if (!response.getText(QString("/Envelope/Body/%1Response").arg(action)).isNull())
            return {};
        sentence = "The device gave no answer that can be read.";
    }
    return remark.isEmpty() ? sentence : QString("%1 (%2)").arg(sentence, remark);
}

bool Answer::isRefusal() const
{
    return fault.is(vorn::OnvifFault::Sender, vorn::OnvifFault::NotAuthorized)
           || fault.is(vorn::OnvifFault::HttpUnauthorised);
}

SoapClient::SoapClient(const Credentials &credentials, std::chrono::milliseconds timeout)
    : m_credentials(credentials)
    , m_timeout(timeout)
{
    m_manager.setProxy(QNetworkProxy::NoProxy); // devices stand in the own network
}

void SoapClient::ask(const QUrl &url, const Request &request, const Done &done)
{
    if (m_credentials.isEmpty() || m_clockAhead)
        askOfKnownClock(url, request, done);
    else
        askClock(url, request, done);
}

void SoapClient::askClock(const QUrl &url, const Request &request, const Done &done)
{
    post(url, clockRequest, false, [=](const HttpReply &reply) {
        const Answer answer = answerTo(clockRequest, reply);
        if (!answer.received)
            return done(answer);
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const QDateTime deviceTime = timeIn(answer.bytes);
        m_clockAhead = deviceTime.isValid() ? now.secsTo(deviceTime) : 0;
        askOfKnownClock(url, request, done);
    });
}

void SoapClient::askOfKnownClock(const QUrl &url, const Request &request, const Done &done)
{
    post(url, request, true, [=](const HttpReply &reply) {
        // The device wants Digest authentication of HTTP, or wants it anew.
        const auto challenge =
            reply.status == 401 && !m_credentials.isEmpty() ? digestChallenge(reply.challenge) : std::nullopt;
        if (!challenge)
            return done(answerTo(request, reply));
        m_challenge = challenge;
        m_challengeUses = 0;
        post(url, request, true, [=](const HttpReply &second) { done(answerTo(request, second)); });
    });
}

void SoapClient::post(const QUrl &url, const Request &request, bool authenticated, const HttpExchange::Done &done)
{
    if (!url.isValid() || url.host().isEmpty())
        return done(failed(TransportFailure::BadUrl, url.toString()));
    if (url.scheme() != "http" && url.scheme() != "https")
        return done(failed(TransportFailure::UnsupportedProtocol, url.toString()));

    QNetworkRequest http(url);
    http.setHeader(QNetworkRequest::ContentTypeHeader, contentType(request));
    http.setHeader(QNetworkRequest::UserAgentHeader, "camera-report");
    http.setRawHeader("Connection", "close");         // devices close idle connections without notice
    http.setRawHeader("Accept-Encoding", "identity"); // so that nothing swells while it is unpacked
    http.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    http.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);

    QString header;
    if (authenticated && !m_credentials.isEmpty()) {
        header = securityHeader(m_credentials, QDateTime::currentDateTimeUtc().addSecs(m_clockAhead.value_or(0)));
        if (m_challenge)
            http.setRawHeader("Authorization", authorizationFor(url));
    }
    new HttpExchange(m_manager.post(http, message(request, header)), m_timeout, done, this);
}

QByteArray SoapClient::authorizationFor(const QUrl &url)
{
    DigestUse use;
    use.method = "POST";
    use.uri = url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    use.clientNonce = QUuid::createUuid().toByteArray(QUuid::Id128);
    use.count = ++m_challengeUses;
    return digestAuthorization(*m_challenge, m_credentials, use);
}

Answer SoapClient::answerTo(const Request &request, const HttpReply &reply)
{
    Answer answer;
    answer.action = request.action;
    answer.bytes = documentOf(reply);
    answer.fault = vorn::OnvifFault(answer.bytes, request.action, ++m_answers);
    answer.remark = remarkOn(reply, answer.fault);
    answer.received = reply.failure == TransportFailure::None;
    return answer;
}

} // namespace client
