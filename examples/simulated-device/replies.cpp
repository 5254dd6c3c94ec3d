#include "replies.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QUuid>

namespace simulator {
namespace {

QByteArray inEnvelope(const QByteArray &body)
{
    return R"(<s:Envelope xmlns:s="http://www.w3.org/2003/05/soap-envelope")"
           R"( xmlns:tds="http://www.onvif.org/ver10/device/wsdl" xmlns:tt="http://www.onvif.org/ver10/schema")"
           R"( xmlns:ter="http://www.onvif.org/ver10/error"><s:Body>)"
           + body + "</s:Body></s:Envelope>";
}

Reply fault(int status, const QByteArray &code, const QByteArray &subcode, const QByteArray &reason)
{
    return {status, inEnvelope("<s:Fault><s:Code><s:Value>s:" + code + "</s:Value><s:Subcode><s:Value>ter:" + subcode
                               + "</s:Value></s:Subcode></s:Code><s:Reason><s:Text xml:lang=\"en\">" + reason
                               + "</s:Text></s:Reason></s:Fault>")};
}

QByteArray element(const char *name, int value)
{
    return QByteArray("<tt:") + name + '>' + QByteArray::number(value) + "</tt:" + name + '>';
}

QByteArray dateAndTime(const QDateTime &now)
{
    const QDate date = now.date();
    const QTime time = now.time();
    return inEnvelope("<tds:GetSystemDateAndTimeResponse><tds:SystemDateAndTime>"
                      "<tt:DateTimeType>Manual</tt:DateTimeType><tt:DaylightSavings>false</tt:DaylightSavings>"
                      "<tt:UTCDateTime><tt:Time>"
                      + element("Hour", time.hour()) + element("Minute", time.minute())
                      + element("Second", time.second()) + "</tt:Time><tt:Date>" + element("Year", date.year())
                      + element("Month", date.month()) + element("Day", date.day())
                      + "</tt:Date></tt:UTCDateTime></tds:SystemDateAndTime></tds:GetSystemDateAndTimeResponse>");
}

/// Makes each HTTP address in the elements XAddr and XAddrs one of the device at \a address, unless the user objects.
QByteArray withOwnAddresses(const QByteArray &reply, const Options &options, const QByteArray &address)
{
    if (options.keepAddresses)
        return reply;
    static const QRegularExpression xAddrs("(<(?:[\\w.-]+:)?XAddrs?>)([^<]*)");
    static const QRegularExpression host("(\\bhttp://)[^/\\s]*");
    // Latin-1 has a character for each byte, so that the bytes stay what they are whatever they mean.
    const QString text = QString::fromLatin1(reply);
    QString result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : xAddrs.globalMatch(text)) {
        result += text.mid(end, match.capturedStart(2) - end);
        result += match.captured(2).replace(host, "\\1" + QString::fromLatin1(address));
        end = match.capturedEnd();
    }
    return (result + text.mid(end)).toLatin1();
}

/// Makes \a value the text of each element \a name in \a reply.
QByteArray withText(const QByteArray &reply, const char *name, const QByteArray &value)
{
    const QRegularExpression pattern(QString("(<(?:[\\w.-]+:)?%1>)[^<]*").arg(name));
    return QString::fromLatin1(reply).replace(pattern, "\\1" + QString::fromLatin1(value)).toLatin1();
}

QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What the user has laid down for \a action; empty if nothing.
QByteArray givenReply(const QString &action, const Options &options)
{
    return contentsOf(options.answers.value(action, options.folder.filePath(action + ".xml")));
}

} // namespace

Reply replyTo(const QString &action, const Options &options, const QByteArray &address, const QDateTime &now)
{
    const QByteArray given = givenReply(action, options);
    if (!given.isEmpty())
        return {200, withOwnAddresses(given, options, address)};
    if (action == "GetSystemDateAndTime")
        return {200, dateAndTime(now)};
    if (action == "SetNetworkInterfaces")
        return {200, inEnvelope("<tds:SetNetworkInterfacesResponse><tds:RebootNeeded>false</tds:RebootNeeded>"
                                "</tds:SetNetworkInterfacesResponse>")};
    return actionNotSupported();
}

QByteArray probeMatch(const Options &options, const QByteArray &address, const QByteArray &messageId)
{
    QByteArray match = givenReply("ProbeMatches", options);
    if (match.isEmpty()) {
        match = inEnvelope("<d:ProbeMatches xmlns:d=\"http://schemas.xmlsoap.org/ws/2005/04/discovery\""
                           " xmlns:a=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\"><d:ProbeMatch>"
                           "<a:EndpointReference><a:Address></a:Address></a:EndpointReference>"
                           "<d:Scopes>onvif://www.onvif.org/type/video_encoder"
                           " onvif://www.onvif.org/name/Simulated</d:Scopes>"
                           "<d:XAddrs>http://host/onvif/device_service</d:XAddrs>"
                           "</d:ProbeMatch></d:ProbeMatches>");
    }
    // Each device has an identity of its own, which is the same for each probe.
    const QUuid identity = QUuid::createUuidV5(QUuid(), address);
    match = withText(match, "Address", "urn:uuid:" + identity.toByteArray(QUuid::WithoutBraces));
    return withOwnAddresses(withText(match, "RelatesTo", messageId), options, address);
}

Reply notAuthorized()
{
    return fault(400, "Sender", "NotAuthorized", "Sender not authorized");
}

Reply actionNotSupported()
{
    return fault(500, "Receiver", "ActionNotSupported", "Not simulated");
}

} // namespace simulator
