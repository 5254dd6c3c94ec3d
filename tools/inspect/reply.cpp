#include "reply.h"

#include "outlines.h"
#include "tree.h"

#include <vorn/util/xmlresponse.h>

#include <algorithm>
#include <iterator>

namespace inspect {
namespace {

/// A record that the library has: the element that its reply holds in the Body, and how to read it.
struct Reader
{
    const char *element;
    Outline (*read)(const QByteArray &bytes, const QString &root); ///< \c root is the path of the element
    QStringList (*requests)(const QByteArray &bytes, const QString &root) = nullptr;
    const char *remark = ""; ///< what a reader has to know about the record
};

template <typename Record>
Outline readRecord(const QByteArray &bytes, const QString &)
{
    return outline(Record(bytes));
}

template <typename Record>
Outline readRecordBelow(const QByteArray &bytes, const QString &root)
{
    return outline(Record(bytes, root));
}

/// The library has no list for this reply, but a record for each of its elements.
Outline readMetadataConfigurations(const QByteArray &bytes, const QString &root)
{
    QList<vorn::OnvifMetadataConfiguration> list;
    vorn::XmlResponse response(bytes, root);
    const QList<vorn::XmlResponseNode> nodes = response.getAll(QStringLiteral("/Configurations"));
    for (const vorn::XmlResponseNode &node : nodes)
        list.append(vorn::OnvifMetadataConfiguration(node));
    return outline(list);
}

QStringList interfaceRequests(const QByteArray &bytes, const QString &root)
{
    QStringList requests;
    for (const vorn::OnvifNetworkInterface &record : vorn::OnvifNetworkInterfaceVector(bytes, root))
        requests.append(record.toString());
    return requests;
}

QStringList gatewayRequests(const QByteArray &bytes, const QString &)
{
    const QString request = vorn::OnvifNetworkGateway(bytes).toString();
    return request.isEmpty() ? QStringList() : QStringList(request);
}

const char *const noConfigurations = "The library reads no configurations from this reply.";
const char *const onlyTheirNumber = "The library keeps only the number of these configurations.";

const Reader readers[] = {
    {"GetDeviceInformationResponse", readRecord<vorn::OnvifDeviceInformation>},
    {"GetCapabilitiesResponse", readRecord<vorn::OnvifCapabilities>},
    {"GetScopesResponse", readRecord<vorn::OnvifScopeMap>},
    {"ProbeMatches", readRecord<vorn::OnvifCamera>},
    {"GetProfilesResponse", readRecordBelow<vorn::OnvifProfileVector>},
    {"GetProfileResponse", readRecordBelow<vorn::OnvifProfile>, nullptr, noConfigurations},
    {"CreateProfileResponse", readRecordBelow<vorn::OnvifProfile>, nullptr, noConfigurations},
    {"GetVideoSourceConfigurationsResponse", readRecordBelow<vorn::OnvifVideoSourceConfigurationVector>},
    {"GetCompatibleVideoSourceConfigurationsResponse", readRecord<vorn::OnvifCompatibleVideoSourceConfigurationVector>},
    {"GetVideoEncoderConfigurationsResponse", readRecordBelow<vorn::OnvifVideoEncoderConfigurationVector>},
    {"GetCompatibleVideoEncoderConfigurationsResponse",
     readRecord<vorn::OnvifCompatibleVideoEncoderConfigurationVector>},
    {"GetAudioSourceConfigurationsResponse", readRecordBelow<vorn::OnvifAudioSourceConfigurationVector>},
    {"GetCompatibleAudioSourceConfigurationsResponse", readRecord<vorn::OnvifCompatibleAudioSourceConfigurationVector>},
    {"GetAudioOutputConfigurationsResponse", readRecordBelow<vorn::OnvifAudioOutputConfigurationVector>},
    {"GetCompatibleAudioOutputConfigurationsResponse", readRecord<vorn::OnvifCompatibleAudioOutputConfigurationVector>},
    {"GetAudioEncoderConfigurationsResponse", readRecordBelow<vorn::OnvifAudioEncoderConfigurationVector>},
    {"GetCompatibleAudioEncoderConfigurationsResponse",
     readRecord<vorn::OnvifCompatibleAudioEncoderConfigurationVector>},
    {"GetAudioDecoderConfigurationsResponse", readRecordBelow<vorn::OnvifAudioDecoderConfigurationVector>, nullptr,
     onlyTheirNumber},
    {"GetCompatibleAudioDecoderConfigurationsResponse",
     readRecord<vorn::OnvifCompatibleAudioDecoderConfigurationVector>, nullptr, onlyTheirNumber},
    {"GetVideoAnalyticsConfigurationsResponse", readRecordBelow<vorn::OnvifVideoAnalyticsConfigurationVector>},
    {"GetCompatibleVideoAnalyticsConfigurationsResponse",
     readRecord<vorn::OnvifCompatibleVideoAnalyticsConfigurationVector>},
    {"GetMetadataConfigurationsResponse", readMetadataConfigurations},
    {"GetCompatibleMetadataConfigurationsResponse", readRecord<vorn::OnvifCompatibleMetadataConfigurationVector>},
    {"GetConfigurationsResponse", readRecordBelow<vorn::OnvifPtzConfigurationVector>},
    {"GetCompatibleConfigurationsResponse", readRecord<vorn::OnvifCompatiblePtzConfigurationVector>},
    {"GetNetworkInterfacesResponse", readRecordBelow<vorn::OnvifNetworkInterfaceVector>, interfaceRequests},
    {"GetNetworkDefaultGatewayResponse", readRecord<vorn::OnvifNetworkGateway>, gatewayRequests},
    {"GetRelayOutputsResponse", readRecordBelow<vorn::OnvifRelayOutputVector>},
};

Reply readBody(const vorn::XmlResponseNode &body, const QByteArray &bytes)
{
    if (body.children.isEmpty())
        return {QStringLiteral("SOAP envelope"), {}, QStringLiteral("Its Body is empty.")};

    const vorn::XmlResponseNode &first = body.children.constFirst();
    const QString element = first.name;
    if (element == QLatin1String("Fault")) {
        Reply reply{
            QStringLiteral("SOAP fault"), {}, QStringLiteral("It has no Code with a Value, as SOAP 1.2 wants it.")};
        reply.tree = treeOf(first);
        return reply;
    }

    const auto *const reader = std::find_if(std::begin(readers), std::end(readers), [&](const Reader &candidate) {
        return element == QLatin1String(candidate.element);
    });
    if (reader == std::end(readers)) {
        Reply reply{element, {}, QStringLiteral("The library has no record for this reply.")};
        reply.tree = treeOf(first);
        return reply;
    }
    const QString root = QLatin1String("/Envelope/Body/") + element;
    Reply reply{element, reader->read(bytes, root), QLatin1String(reader->remark)};
    if (reader->requests)
        reply.requests = [=] { return reader->requests(bytes, root); };
    return reply;
}

Reply readFault(vorn::OnvifFault &fault)
{
    Reply reply;
    if (fault.response.get(QStringLiteral("/html")).valid)
        reply.kind = QStringLiteral("HTML page");
    else if (fault.response.get(QStringLiteral("/Fault")).valid)
        reply.kind = QStringLiteral("bare fault");
    else
        reply.kind = QStringLiteral("SOAP fault");
    reply.record = outline(fault);
    reply.isFault = true;
    return reply;
}

Reply readOther(const QString &text)
{
    const QString start = text.left(4096);
    if (text.trimmed().isEmpty())
        return {QStringLiteral("nothing"), {}, QStringLiteral("The reply is empty.")};
    if (start.contains(QLatin1String("<html"), Qt::CaseInsensitive)
        || start.contains(QLatin1String("<!DOCTYPE html"), Qt::CaseInsensitive))
        return {QStringLiteral("HTML page"),
                {},
                QStringLiteral("It is not well-formed or has no title, so it tells nothing.")};
    return {QStringLiteral("something else"),
            {},
            QStringLiteral("It is neither a SOAP reply nor a fault nor an HTML page, or it is not well-formed.")};
}

} // namespace

Reply read(const QByteArray &bytes, const char *action)
{
    vorn::OnvifFault fault(bytes, action, 0);
    vorn::XmlResponse &response = fault.response;
    if (fault.hasError())
        return readFault(fault);
    const vorn::XmlResponseNode body = response.get(QStringLiteral("/Envelope/Body"));
    if (body.valid)
        return readBody(body, bytes);
    if (response.get(QStringLiteral("/Envelope")).valid)
        return {QStringLiteral("SOAP envelope"), {}, QStringLiteral("It has no Body.")};
    if (response.get(QStringLiteral("/Fault")).valid)
        return {QStringLiteral("bare fault"), {}, QStringLiteral("It has no Reason with a Text.")};
    return readOther(fault.xml);
}

} // namespace inspect
