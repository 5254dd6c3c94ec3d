#include "replies.h"

#include "rewriting.h"
#include "support/replyname.h"

#include <QtCore/QFile>
#include <QtCore/QUrl>
#include <QtCore/QUuid>

namespace simulator {
namespace {

QByteArray inEnvelope(const QByteArray &body)
{
    return R"(<s:Envelope xmlns:s="http://www.w3.org/2003/05/soap-envelope")"
           R"( xmlns:tds="http://www.onvif.org/ver10/device/wsdl" xmlns:trt="http://www.onvif.org/ver10/media/wsdl")"
           R"( xmlns:tt="http://www.onvif.org/ver10/schema" xmlns:ter="http://www.onvif.org/ver10/error"><s:Body>)"
           + body + "</s:Body></s:Envelope>";
}

Reply fault(int status, const QByteArray &code, const QByteArray &subcode, const QByteArray &reason)
{
    return {status, inEnvelope("<s:Fault><s:Code><s:Value>s:" + code + "</s:Value><s:Subcode><s:Value>ter:" + subcode
                               + "</s:Value></s:Subcode></s:Code><s:Reason><s:Text xml:lang=\"en\">" + reason
                               + "</s:Text></s:Reason></s:Fault>")};
}

QByteArray dateAndTime(const QDateTime &now)
{
    return inEnvelope("<tds:GetSystemDateAndTimeResponse><tds:SystemDateAndTime>"
                      "<tt:DateTimeType>Manual</tt:DateTimeType><tt:DaylightSavings>false</tt:DaylightSavings>"
                      "<tt:TimeZone><tt:TZ>UTC0</tt:TZ></tt:TimeZone><tt:UTCDateTime>"
                      + timeElements(now, "tt:")
                      + "</tt:UTCDateTime></tds:SystemDateAndTime></tds:GetSystemDateAndTimeResponse>");
}

/// There is nothing at the address that is named.
QByteArray mediaUri(const Asked &asked, const QByteArray &origin)
{
    const QString token = QString::fromLatin1(QUrl::toPercentEncoding(asked.profileToken));
    const QUrl device(QString::fromLatin1(origin));
    const QString uri = asked.action == "GetStreamUri"
                            ? QString("rtsp://%1:554/%2?transport=%3").arg(device.host(), token, asked.protocol)
                            : QString("%1/snapshot/%2").arg(device.toString(), token);
    const QByteArray element = "trt:" + asked.action.toLatin1() + "Response>";
    return inEnvelope('<' + element + "<trt:MediaUri><tt:Uri>" + escaped(uri)
                      + "</tt:Uri><tt:InvalidAfterConnect>false</tt:InvalidAfterConnect>"
                        "<tt:InvalidAfterReboot>false</tt:InvalidAfterReboot><tt:Timeout>PT0S</tt:Timeout>"
                        "</trt:MediaUri></"
                      + element);
}

QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return !fileName.isEmpty() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What the user has laid down in the folder for \a asked; empty if nothing.
QByteArray replyInFolder(const Asked &asked, const Options &options)
{
    const QByteArray special =
        asked.variant().isEmpty()
            ? QByteArray()
            : contentsOf(options.folder.filePath(example::replyFileName(asked.action, asked.variant())));
    return special.isEmpty() ? contentsOf(options.folder.filePath(example::replyFileName(asked.action))) : special;
}

/// The same for what the user has named on the command line.
QByteArray namedReply(const Asked &asked, const Options &options)
{
    const QString action = options.answers.value(asked.action);
    return contentsOf(options.answers.value(asked.action + '.' + asked.variant(), action));
}

QByteArray withOwnAddresses(const QByteArray &reply, const Options &options, const QByteArray &origin)
{
    return options.keepAddresses ? reply : withAddressesAt(reply, origin);
}

} // namespace

Reply replyTo(const Asked &asked, const Options &options, const QByteArray &origin, const QDateTime &now)
{
    const QByteArray named = namedReply(asked, options);
    if (!named.isEmpty())
        return {200, withOwnAddresses(named, options, origin)};
    const QByteArray given = replyInFolder(asked, options);
    if (asked.action == "GetSystemDateAndTime")
        return {200, given.isEmpty() ? dateAndTime(now) : withTime(given, now)};
    if (!given.isEmpty())
        return {200, withOwnAddresses(given, options, origin)};
    if (asked.action == "GetStreamUri" || asked.action == "GetSnapshotUri")
        return {200, mediaUri(asked, origin)};
    if (asked.action == "SetNetworkInterfaces")
        return {200, inEnvelope("<tds:SetNetworkInterfacesResponse><tds:RebootNeeded>false</tds:RebootNeeded>"
                                "</tds:SetNetworkInterfacesResponse>")};
    return actionNotSupported();
}

QByteArray probeMatch(const Options &options, const QByteArray &origin, const QString &messageId)
{
    const Asked asked{"ProbeMatches", {}, {}, false};
    QByteArray match = namedReply(asked, options);
    if (match.isEmpty())
        match = replyInFolder(asked, options);
    if (match.isEmpty()) {
        match = inEnvelope("<d:ProbeMatches xmlns:d=\"http://schemas.xmlsoap.org/ws/2005/04/discovery\""
                           " xmlns:a=\"http://schemas.xmlsoap.org/ws/2004/08/addressing\"><d:ProbeMatch>"
                           "<a:EndpointReference><a:Address></a:Address></a:EndpointReference>"
                           "<d:Types xmlns:dn=\"http://www.onvif.org/ver10/network/wsdl\">dn:NetworkVideoTransmitter"
                           "</d:Types><d:Scopes>onvif://www.onvif.org/type/video_encoder"
                           " onvif://www.onvif.org/name/Simulated</d:Scopes>"
                           "<d:XAddrs>http://host/onvif/device_service</d:XAddrs>"
                           "</d:ProbeMatch></d:ProbeMatches>");
    }
    // Each device has an identity of its own, which is the same for each probe.
    const QUuid identity = QUuid::createUuidV5(QUuid(), origin.mid(origin.indexOf("//") + 2));
    match = withText(match, "Address", "urn:uuid:" + identity.toString(QUuid::WithoutBraces));
    return withOwnAddresses(withText(match, "RelatesTo", messageId), options, origin);
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
