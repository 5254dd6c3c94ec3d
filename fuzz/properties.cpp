#include "properties.h"

#include "children.h"
#include "inspect/outlines.h"
#include "require.h"

#include <QtCore/QJsonArray>

#include <array>
#include <type_traits>
#include <utility>

namespace fuzz {
namespace {

using vorn::XmlResponse;
using vorn::XmlResponseNode;

/// The elements that a list is read from: those of their parent's children that are called \a name.
QList<XmlResponseNode> nodesAt(const QByteArray &reply, const QString &root, QStringView name)
{
    return childrenNamed(XmlResponse(reply, root).get({}), name);
}

template <typename Record, typename = void>
constexpr bool isList = false;

template <typename Record>
constexpr bool isList<Record, std::void_t<typename Record::value_type>> = true;

/// All that the public fields of \a record hold.
template <typename Record>
QJsonArray contentsOf(const Record &record)
{
    QJsonArray contents;
    if constexpr (isList<Record>)
        contents.append(inspect::outlineOfRecords(record).toJson());
    else
        contents.append(inspect::outline(record).toJson());
    if constexpr (std::is_base_of_v<vorn::OnvifDataStructure, Record>)
        contents.append(record.isNull());
    if constexpr (std::is_base_of_v<vorn::OnvifResponseStructure, Record>) {
        contents.append(record.xml);
        contents.append(XmlResponse(record.response).getText({}));
    }
    return contents;
}

/// Construction takes \a constructed over from \a record, and assignment \a assigned.
template <typename Record>
void checkCopies(const Record &record, const QJsonArray &constructed, const QJsonArray &assigned)
{
    Record copy(record);
    require(contentsOf(copy) == constructed);
    const Record moved(std::move(copy));
    require(contentsOf(moved) == constructed);
    Record target;
    target = record;
    require(contentsOf(target) == assigned);
    Record lastTarget;
    lastTarget = std::move(target);
    require(contentsOf(lastTarget) == assigned);
}

template <typename Record>
void checkCopies(const Record &record)
{
    const QJsonArray contents = contentsOf(record);
    checkCopies(record, contents, contents);
}

void checkCopies(const vorn::OnvifAudioDecoderConfiguration &decoder)
{
    checkCopies(decoder, contentsOf(vorn::OnvifAudioDecoderConfiguration()), contentsOf(decoder));
}

void checkCopies(const vorn::OnvifMetadataConfiguration &metadata)
{
    vorn::OnvifMetadataConfiguration withoutModules(metadata);
    withoutModules.analyticsEngineConfiguration.clear();
    checkCopies(metadata, contentsOf(metadata), contentsOf(withoutModules));
}

/// \a profile, as it stands in a list, with all that it could not take there.
void checkCopiesOfWhole(vorn::OnvifProfile profile, const vorn::OnvifAudioDecoderConfiguration &decoder)
{
    profile.audioDecoder = decoder;
    const QJsonArray assigned = contentsOf(profile);
    profile.audioDecoder = vorn::OnvifAudioDecoderConfiguration();
    profile.metadata.analyticsEngineConfiguration = profile.videoAnalytics.analyticsEngineConfiguration;
    const QJsonArray constructed = contentsOf(profile);
    profile.audioDecoder = decoder;
    checkCopies(profile, constructed, assigned);
}

/// \a list has one entry for each of \a nodes; its tokens are theirs.
template <typename List>
void checkList(const List &list, const QList<XmlResponseNode> &nodes)
{
    require(list.size() == nodes.size());
    for (qsizetype i = 0; i < list.size(); ++i) {
        require(!list[i].isNull());
        require(list[i].token == nodes[i].element.attribute(QStringLiteral("token")));
        checkCopies(list[i]);
    }
    checkCopies(list);
}

template <typename List>
void checkListBelow(const QByteArray &reply, const QString &root, QStringView name)
{
    checkList(List(reply, root), nodesAt(reply, root, name));
}

void checkDecoders(const QByteArray &reply, const QString &root)
{
    const vorn::OnvifAudioDecoderConfigurationVector list(reply, root);
    const QList<XmlResponseNode> nodes = nodesAt(reply, root, u"Configurations");
    require(list.size() == nodes.size());
    for (const vorn::OnvifAudioDecoderConfiguration &configuration : list)
        require(configuration.isNull() && configuration.token.isEmpty());
    for (const XmlResponseNode &node : nodes)
        checkCopies(vorn::OnvifAudioDecoderConfiguration(node));
    checkCopies(list);
}

void checkProfiles(const QByteArray &reply, const QString &root)
{
    const vorn::OnvifProfileVector profiles(reply, root);
    const QList<XmlResponseNode> nodes = nodesAt(reply, root, u"Profiles");
    checkList(profiles, nodes);
    for (qsizetype i = 0; i < profiles.size(); ++i) {
        require(profiles[i].isSaved() && profiles[i].audioDecoder.isNull());
        require(profiles[i].metadata.analyticsEngineConfiguration.isEmpty());
        checkCopiesOfWhole(profiles[i], vorn::OnvifAudioDecoderConfiguration(nodes[i]));
    }
    const vorn::OnvifProfile profile(reply, root);
    require(!profile.isNull());
    checkCopies(profile);
}

/// Of the scopes with one key, the last in the reply comes first.
void checkScopes(const QByteArray &reply)
{
    const vorn::OnvifScopeMap scopes(reply);
    QStringList uris;
    for (const XmlResponseNode &node : nodesAt(reply, QStringLiteral("/Envelope/Body/GetScopesResponse"), u"Scopes")) {
        const QList<XmlResponseNode> items = childrenNamed(node, u"ScopeItem");
        uris.prepend(items.isEmpty() ? QString() : items.constFirst().element.text());
    }
    require(scopes.size() == uris.size());
    const QStringList keys = scopes.uniqueKeys();
    for (const QString &key : keys) {
        qsizetype next = 0;
        const QList<vorn::OnvifScope> values = scopes.values(key);
        for (const vorn::OnvifScope &scope : values) {
            next = uris.indexOf(scope.uri, next) + 1;
            require(next > 0);
            checkCopies(scope);
        }
    }
    checkCopies(scopes);
}

QString element(const char *name, const QString &content)
{
    return QStringLiteral("<%1>%2</%1>").arg(QLatin1String(name), content);
}

QString element(const char *name, bool value)
{
    return element(name, value ? QStringLiteral("true") : QStringLiteral("false"));
}

QString requestOf(const vorn::OnvifNetworkInterface &networkInterface)
{
    QString ipv4 = element("tt:Enabled", networkInterface.ipv4.enabled);
    for (const auto &[address, prefixLength] : networkInterface.ipv4.config.manual) {
        const QString length = element("tt:PrefixLength", QString::number(prefixLength));
        ipv4 += element("tt:Manual", element("tt:Address", address) + length);
    }
    ipv4 += element("tt:DHCP", networkInterface.ipv4.config.dhcp);
    return element("tds:InterfaceToken", networkInterface.name)
           + element("tds:NetworkInterface",
                     element("tt:Enabled", networkInterface.enabled) + element("tt:IPv4", ipv4));
}

void checkInterfaces(const QByteArray &reply, const QString &root)
{
    const vorn::OnvifNetworkInterfaceVector interfaces(reply, root);
    checkList(interfaces, nodesAt(reply, root, u"NetworkInterfaces"));
    for (const vorn::OnvifNetworkInterface &networkInterface : interfaces) {
        require(qHash(networkInterface) == qHash(vorn::OnvifNetworkInterface(networkInterface)));
        require(networkInterface.toString() == requestOf(networkInterface));
    }
}

void checkGateway(const QByteArray &reply)
{
    const vorn::OnvifNetworkGateway gateway(reply);
    QString request;
    if (!gateway.ipv4Address.isEmpty())
        request += element("tt:IPv4Address", gateway.ipv4Address);
    if (!gateway.ipv6Address.isEmpty())
        request += element("tt:IPv6Address", gateway.ipv6Address);
    require(gateway.isNull() && gateway.toString() == request);
    checkCopies(gateway);
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
    // Surrogates have no reference of their own.
    for (const QChar character : node.element.text()) {
        if (character.isSurrogate())
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
    checkCopies(information);
    const vorn::OnvifCapabilities capabilities(reply);
    require(capabilities.hasMedia() != capabilities.media.xAddr.isEmpty());
    checkCopies(capabilities);
    const vorn::OnvifCamera camera(reply);
    require(camera.isValid() || camera.addresses.isEmpty());
    checkCopies(camera);

    checkListBelow<vorn::OnvifVideoSourceConfigurationVector>(reply, root, u"Configurations");
    checkListBelow<vorn::OnvifVideoEncoderConfigurationVector>(reply, root, u"Configurations");
    checkListBelow<vorn::OnvifAudioSourceConfigurationVector>(reply, root, u"Configurations");
    checkListBelow<vorn::OnvifAudioEncoderConfigurationVector>(reply, root, u"Configurations");
    checkListBelow<vorn::OnvifVideoAnalyticsConfigurationVector>(reply, root, u"Configurations");
    checkListBelow<vorn::OnvifPtzConfigurationVector>(reply, root, u"PTZConfiguration");
    checkListBelow<vorn::OnvifRelayOutputVector>(reply, root, u"RelayOutputs");
    checkList(vorn::OnvifAudioOutputConfigurationVector(reply, root),
              nodesAt(reply, root, u"Configurations") + nodesAt(reply, root, u"Options"));
    checkList(vorn::OnvifCompatibleMetadataConfigurationVector(reply),
              nodesAt(reply, QStringLiteral("/Envelope/Body/GetCompatibleMetadataConfigurationsResponse"),
                      u"Configurations"));
    checkScopes(reply);
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
    require(vorn::OnvifFault(fault).responseId() == 7);
    checkCopies(fault);

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
