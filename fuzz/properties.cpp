#include "properties.h"

#include "require.h"

#include <vorn/onvif/configurations.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <array>

namespace fuzz {
namespace {

using vorn::XmlResponse;
using vorn::XmlResponseNode;

/// The elements of a list that is read from \a childPath, as the reply has them.
QList<XmlResponseNode> nodesAt(const QByteArray &reply, const QString &root, const char *childPath)
{
    return XmlResponse(reply, root).getAll(QLatin1String(childPath));
}

template <typename List>
void checkCopy(const List &list)
{
    List copy(list);
    require(copy.xml == list.xml && copy.size() == list.size());
    List assigned;
    assigned = list;
    require(assigned.xml == list.xml && assigned.size() == list.size());
    const List moved(std::move(copy));
    require(moved.xml == list.xml && moved.size() == list.size());
}

/// \a list has one entry for each of \a nodes; its tokens are theirs.
template <typename List>
void checkList(const List &list, const QList<XmlResponseNode> &nodes)
{
    require(list.size() == nodes.size());
    for (qsizetype i = 0; i < list.size(); ++i) {
        require(!list[i].isNull());
        require(list[i].token == nodes[i].element.attribute(QStringLiteral("token")));
    }
    checkCopy(list);
}

template <typename List>
void checkListBelow(const QByteArray &reply, const QString &root, const char *childPath)
{
    checkList(List(reply, root), nodesAt(reply, root, childPath));
}

void checkDecoders(const QByteArray &reply, const QString &root)
{
    const vorn::OnvifAudioDecoderConfigurationVector list(reply, root);
    require(list.size() == nodesAt(reply, root, "/Configurations").size());
    for (const vorn::OnvifAudioDecoderConfiguration &configuration : list)
        require(configuration.isNull() && configuration.token.isEmpty());
    checkCopy(list);
}

void checkProfiles(const QByteArray &reply, const QString &root)
{
    const vorn::OnvifProfileVector profiles(reply, root);
    checkList(profiles, nodesAt(reply, root, "/Profiles"));
    for (const vorn::OnvifProfile &profile : profiles) {
        require(profile.isSaved() && profile.audioDecoder.isNull());
        require(profile.metadata.analyticsEngineConfiguration.isEmpty());
    }
    require(!vorn::OnvifProfile(reply, root).isNull());
}

void checkInterfaces(const QByteArray &reply, const QString &root)
{
    const vorn::OnvifNetworkInterfaceVector interfaces(reply, root);
    checkList(interfaces, nodesAt(reply, root, "/NetworkInterfaces"));
    for (const vorn::OnvifNetworkInterface &networkInterface : interfaces) {
        require(qHash(networkInterface) == qHash(vorn::OnvifNetworkInterface(networkInterface)));
        const QByteArray request = networkInterface.toString().toUtf8();
        require(request.startsWith("<tds:InterfaceToken>" + networkInterface.name.toUtf8() + "</tds:InterfaceToken>"));
        for (const auto &entry : networkInterface.ipv4.config.manual)
            require(request.contains("<tt:Address>" + entry.address.toUtf8() + "</tt:Address>"));
    }
}

void checkGateway(const QByteArray &reply)
{
    const vorn::OnvifNetworkGateway gateway(reply);
    const QByteArray request = gateway.toString().toUtf8();
    require(gateway.isNull());
    require(request.contains(gateway.ipv4Address.toUtf8()) && request.contains(gateway.ipv6Address.toUtf8()));
    require(request.isEmpty() == (gateway.ipv4Address.isEmpty() && gateway.ipv6Address.isEmpty()));
}

/// Writes \a node with another prefix, without attributes. All text is written as references.
void write(QString &output, const XmlResponseNode &node)
{
    const QString name = QLatin1String("other:") + node.name;
    output += QLatin1Char('<') + name + QLatin1Char('>');
    qsizetype next = 0;
    for (QDomNode content = node.element.firstChild(); !content.isNull(); content = content.nextSibling()) {
        if (content.isElement()) {
            write(output, node.children[next++]);
            continue;
        }
        for (const QChar character : content.nodeValue())
            output += QStringLiteral("&#%1;").arg(character.unicode());
    }
    output += QLatin1String("</") + name + QLatin1Char('>');
}

bool isSpeakable(const XmlResponseNode &node)
{
    // Surrogates have no reference of their own, and a NUL ends a value.
    for (const QChar character : node.element.text()) {
        if (character.isSurrogate() || character.isNull())
            return false;
    }
    return true;
}

std::array<int, 3> codesOf(const vorn::OnvifFault &fault)
{
    return {fault.faultType, fault.subcodeType, fault.specificType};
}

} // namespace

void checkRecords(const QByteArray &reply)
{
    XmlResponse response(reply, QString());
    const XmlResponseNode body = response.get(QStringLiteral("/Envelope/Body"));
    // A root path that leads to something, whatever the reply is.
    const QString element = body.children.isEmpty() ? QStringLiteral("None") : body.children.constFirst().name;
    const QString root = QLatin1String("/Envelope/Body/") + element;

    const vorn::OnvifDeviceInformation information(reply);
    require(information.xml == response.xml());
    const vorn::OnvifCapabilities capabilities(reply);
    require(capabilities.hasMedia() != capabilities.media.xAddr.isEmpty());
    const vorn::OnvifScopeMap scopes(reply);
    require(scopes.size() == nodesAt(reply, QStringLiteral("/Envelope/Body/GetScopesResponse"), "/Scopes").size());
    const vorn::OnvifCamera camera(reply);
    require(camera.isValid() || camera.addresses.isEmpty());

    checkListBelow<vorn::OnvifVideoSourceConfigurationVector>(reply, root, "/Configurations");
    checkListBelow<vorn::OnvifVideoEncoderConfigurationVector>(reply, root, "/Configurations");
    checkListBelow<vorn::OnvifAudioSourceConfigurationVector>(reply, root, "/Configurations");
    checkListBelow<vorn::OnvifAudioEncoderConfigurationVector>(reply, root, "/Configurations");
    checkListBelow<vorn::OnvifVideoAnalyticsConfigurationVector>(reply, root, "/Configurations");
    checkListBelow<vorn::OnvifPtzConfigurationVector>(reply, root, "/PTZConfiguration");
    checkListBelow<vorn::OnvifRelayOutputVector>(reply, root, "/RelayOutputs");
    checkList(vorn::OnvifAudioOutputConfigurationVector(reply, root),
              nodesAt(reply, root, "/Configurations") + nodesAt(reply, root, "/Options"));
    checkList(vorn::OnvifCompatibleMetadataConfigurationVector(reply),
              nodesAt(reply, QStringLiteral("/Envelope/Body/GetCompatibleMetadataConfigurationsResponse"),
                      "/Configurations"));
    checkDecoders(reply, root);
    checkProfiles(reply, root);
    checkInterfaces(reply, root);
    checkGateway(reply);
}

void checkFault(const QByteArray &reply)
{
    vorn::OnvifFault fault(reply, "DeleteProfile", 7);
    require(fault.responseId() == 7);
    require(!fault.toString().isNull() || !fault.hasError());
    const vorn::OnvifFault copy(fault);
    require(codesOf(copy) == codesOf(fault) && copy.toString() == fault.toString());

    for (const char *documentElement : {"/Envelope", "/html", "/Fault"}) {
        const XmlResponseNode node = fault.response.get(QLatin1String(documentElement));
        if (!node.valid || !isSpeakable(node))
            continue;
        QString rewritten;
        write(rewritten, node);
        vorn::OnvifFault again(rewritten.toUtf8(), "DeleteProfile", 7);
        require(again.xml == rewritten);
        if (again.response.get(QLatin1String(documentElement))
                .valid) // the parser forgives names that do not bear a prefix
            require(codesOf(again) == codesOf(fault) && again.toString() == fault.toString());
    }
}

} // namespace fuzz
