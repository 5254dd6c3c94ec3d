#include "answer.h"

namespace client {
namespace {

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

/// Whether what happened to \a reply is said best by its own words, as the library has none that tell it from others.
bool speaksForItself(TransportFailure failure)
{
    return failure == TransportFailure::NotConnected || failure == TransportFailure::NoTls
           || failure == TransportFailure::NotTrusted;
}

/// One sentence about a status of HTTP that the library has no sentence for; empty if it has.
QString sentenceAboutStatus(const HttpReply &reply)
{
    const QString status = QString("HTTP status %1 %2").arg(reply.status).arg(reply.statusText).trimmed();
    switch (reply.status / 100) {
    case 3:
        return QString("The device sends on to another address, which is not followed: %1 (%2). If that is right, ask "
                       "there.")
            .arg(reply.location.isEmpty() ? "none is named" : reply.location, status);
    case 5:
        return QString("The web server of the device failed (%1). Try again later.").arg(status);
    default:
        break;
    }
    if (reply.status == 404)
        return QString("There is no ONVIF service at %1 (%2). If it is elsewhere, give its whole URL.")
            .arg(reply.url.toString(), status);
    return {};
}

/// What the transport or the device itself says of a failure; may be empty.
QString remarkOn(const Answer &answer)
{
    const HttpReply &reply = answer.http;
    if (reply.failure != TransportFailure::None)
        return reply.failureText;
    vorn::XmlResponse response = answer.fault.response; // queries are not const
    const QString reason = response.getText("/Envelope/Body/Fault/Reason/Text").simplified();
    if (!reason.isEmpty())
        return QString("the device says: %1").arg(reason);
    if (reply.status / 100 != 2)
        return QString("HTTP status %1 %2").arg(reply.status).arg(reply.statusText).trimmed();
    const bool isXml = reply.type.isEmpty() || reply.type.contains("xml");
    return isXml ? QString() : "it is of the type " + QString::fromLatin1(reply.type);
}

} // namespace

Answer::Answer(const Request &asked, const HttpReply &reply, unsigned int number)
    : request(asked)
    , http(reply)
    , bytes(documentOf(reply))
    , fault(bytes, asked.action, number)
{
    vorn::XmlResponse response = fault.response;
    isReply = !fault.hasError() && !response.getText(root()).isNull();
}

QString Answer::complaint() const
{
    if (isReply)
        return {};
    if (speaksForItself(http.failure))
        return http.failureText;
    const bool isStatus = isReceived() && http.status / 100 != 2;
    const bool saysMore = fault.is(vorn::OnvifFault::UnknownHttpError) || fault.is(vorn::OnvifFault::HttpNotFound);
    QString aboutStatus = isStatus && saysMore ? sentenceAboutStatus(http) : QString();
    if (!aboutStatus.isEmpty())
        return aboutStatus;
    const QString sentence = fault.hasError() ? fault.toString() : "The device gave no answer that can be read.";
    const QString remark = remarkOn(*this);
    return remark.isEmpty() ? sentence : QString("%1 (%2)").arg(sentence, remark);
}

bool Answer::isRefusal() const
{
    return fault.is(vorn::OnvifFault::Sender, vorn::OnvifFault::NotAuthorized)
           || fault.is(vorn::OnvifFault::HttpUnauthorised);
}

QString Answer::root() const
{
    return QString("/Envelope/Body/%1Response").arg(request.action);
}

} // namespace client
