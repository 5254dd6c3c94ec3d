#include "properties.h"

#include "require.h"
#include "sameview.h"

#include <vorn/onvif/compare.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <type_traits>
#include <utility>

namespace fuzz {
namespace {

using vorn::XmlResponse;
using vorn::XmlResponseNode;

/// A reply and the nodes that a list is made of.
struct ListSource
{
    ListSource(const QByteArray &reply, const QString &root, std::initializer_list<const char *> paths)
        : response(reply, root)
    {
        for (const char *path : paths)
            nodes += response.getAll(QLatin1String(path));
    }

    XmlResponse response; // for as long as the nodes are read
    QList<XmlResponseNode> nodes;
};

/// Whether \a one and \a other hold the same, the reply included.
template <typename Record>
bool isSameRecord(const Record &one, const Record &other)
{
    if constexpr (std::is_base_of_v<vorn::OnvifResponseStructure, Record>) {
        if (one.xml != other.xml || XmlResponse(one.response).getText({}) != XmlResponse(other.response).getText({}))
            return false;
    }
    if constexpr (std::is_same_v<vorn::OnvifProfile, Record>) {
        if (one.isSaved() != other.isSaved())
            return false;
    }
    return vorn::sameContent(one, other);
}

/// Construction takes \a constructed over from \a record, and assignment \a assigned.
template <typename Record>
void checkCopies(const Record &record, const Record &constructed, const Record &assigned)
{
    Record copy(record);
    require(isSameRecord(copy, constructed));
    const Record moved(std::move(copy));
    require(isSameRecord(moved, constructed));
    Record target;
    target = record;
    require(isSameRecord(target, assigned));
    Record lastTarget;
    lastTarget = std::move(target);
    require(isSameRecord(lastTarget, assigned));
}

template <typename Record>
void checkCopies(const Record &record)
{
    checkCopies(record, record, record);
}

void checkCopies(const vorn::OnvifAudioDecoderConfiguration &decoder)
{
    checkCopies(decoder, vorn::OnvifAudioDecoderConfiguration(), decoder);
}

void checkCopies(const vorn::OnvifMetadataConfiguration &metadata)
{
    vorn::OnvifMetadataConfiguration withoutModules(metadata);
    withoutModules.analyticsEngineConfiguration.clear();
    checkCopies(metadata, metadata, withoutModules);
}

/// \a profile, as it stands in a list, with all that it could not take there.
void checkCopiesOfWhole(const vorn::OnvifProfile &profile, const vorn::OnvifAudioDecoderConfiguration &decoder)
{
    vorn::OnvifProfile constructed(profile);
    constructed.metadata.analyticsEngineConfiguration = profile.videoAnalytics.analyticsEngineConfiguration;
    vorn::OnvifProfile assigned(profile);
    assigned.audioDecoder = decoder;
    vorn::OnvifProfile whole(constructed);
    whole.audioDecoder = decoder;
    checkCopies(whole, constructed, assigned);
}

/// What the constructor makes of each of \a nodes, as it stands in a list.
template <typename Record>
QList<Record> recordsOf(const QList<XmlResponseNode> &nodes)
{
    QList<Record> records;
    for (const XmlResponseNode &node : nodes) {
        const Record record(node);
        records.append(record);
    }
    return records;
}

/// Each entry of \a list holds what the one of \a records in its place does.
template <typename List, typename Record>
void checkEntries(const List &list, const QList<Record> &records)
{
    require(std::equal(list.begin(), list.end(), records.begin(), records.end(),
                       [](const Record &entry, const Record &record) {
                           return isSameRecord(entry, record) && entry.token.isNull() == record.token.isNull();
                       }));
    checkCopies(list);
}

/// The same, and each entry has the token of its node.
template <typename List, typename Record>
void checkList(const List &list, const QList<Record> &records, const QList<XmlResponseNode> &nodes)
{
    checkEntries(list, records);
    for (qsizetype i = 0; i < list.size(); ++i) {
        require(!list[i].isNull());
        require(list[i].token == nodes[i].element.attribute(QStringLiteral("token")));
        checkCopies(list[i]);
    }
}

template <typename List>
void checkListOf(const List &list, const ListSource &source)
{
    checkList(list, recordsOf<typename List::value_type>(source.nodes), source.nodes);
}

template <typename List>
void checkListAt(const QByteArray &reply, const QString &root, std::initializer_list<const char *> paths)
{
    checkListOf(List(reply, root), ListSource(reply, root, paths));
}

/// The list of configurations that can be added to a profile, from the reply \a name.
template <typename List>
void checkCompatible(const QByteArray &reply, const char *name, std::initializer_list<const char *> paths)
{
    const ListSource source(reply, QLatin1String("/Envelope/Body/") + QLatin1String(name), paths);
    if constexpr (std::is_same_v<typename List::value_type, vorn::OnvifAudioDecoderConfiguration>)
        checkEntries(List(reply), recordsOf<vorn::OnvifAudioDecoderConfiguration>(source.nodes));
    else
        checkListOf(List(reply), source);
}

void checkDecoders(const QByteArray &reply, const QString &root)
{
    const vorn::OnvifAudioDecoderConfigurationVector list(reply, root);
    const ListSource source(reply, root, {"/Configurations"});
    checkEntries(list, recordsOf<vorn::OnvifAudioDecoderConfiguration>(source.nodes));
    for (const vorn::OnvifAudioDecoderConfiguration &configuration : list)
        require(configuration.isNull() && configuration.token.isEmpty());
    for (const XmlResponseNode &node : source.nodes)
        checkCopies(vorn::OnvifAudioDecoderConfiguration(node));
}

/// The profile that \a node holds, put together from what the constructors make of the nodes below.
vorn::OnvifProfile profileOf(XmlResponse &response, const XmlResponseNode &node)
{
    const auto below = [&](const char *path) {
        return response.get(node, QLatin1String("/Profiles/") + QLatin1String(path));
    };
    vorn::OnvifProfile profile(below("Name").element.text(), node.element.attribute(QStringLiteral("token")),
                               node.element.attribute(QStringLiteral("fixed")) == QLatin1String("true"));
    profile.videoSource = vorn::OnvifVideoSourceConfiguration(below("VideoSourceConfiguration"));
    profile.audioSource = vorn::OnvifAudioSourceConfiguration(below("AudioSourceConfiguration"));
    profile.videoEncoder = vorn::OnvifVideoEncoderConfiguration(below("VideoEncoderConfiguration"));
    profile.audioEncoder = vorn::OnvifAudioEncoderConfiguration(below("AudioEncoderConfiguration"));
    profile.videoAnalytics = vorn::OnvifVideoAnalyticsConfiguration(below("VideoAnalyticsConfiguration"));
    profile.ptz = vorn::OnvifPtzConfiguration(below("PTZConfiguration"));
    profile.metadata = vorn::OnvifMetadataConfiguration(below("MetadataConfiguration"));
    profile.audioOutput = vorn::OnvifAudioOutputConfiguration(below("Extension/AudioOutputConfiguration"));
    profile.audioDecoder = vorn::OnvifAudioDecoderConfiguration(below("Extension/AudioDecoderConfiguration"));
    return profile;
}

void checkProfiles(const QByteArray &reply, const QString &root)
{
    const vorn::OnvifProfileVector profiles(reply, root);
    ListSource source(reply, root, {"/Profiles"});
    QList<vorn::OnvifProfile> expected;
    for (const XmlResponseNode &node : source.nodes) {
        const vorn::OnvifProfile profile = profileOf(source.response, node);
        expected.append(profile);
        require(profile.name.isNull() == source.response.getText(node, QStringLiteral("/Profiles/Name")).isNull());
    }
    checkList(profiles, expected, source.nodes);
    for (qsizetype i = 0; i < profiles.size(); ++i) {
        require(profiles[i].name.isNull() == expected[i].name.isNull());
        require(profiles[i].isSaved() && profiles[i].audioDecoder.isNull());
        require(profiles[i].metadata.analyticsEngineConfiguration.isEmpty());
        checkCopiesOfWhole(profiles[i], vorn::OnvifAudioDecoderConfiguration(source.nodes[i]));
    }
}

/// Of the scopes with one key, the last in the reply comes first.
void checkScopes(const QByteArray &reply)
{
    const vorn::OnvifScopeMap scopes(reply);
    ListSource source(reply, QStringLiteral("/Envelope/Body/GetScopesResponse"), {"/Scopes"});
    QMultiMap<QString, vorn::OnvifScope> expected;
    for (const XmlResponseNode &node : source.nodes) {
        const QString definition = source.response.getText(node, QStringLiteral("/Scopes/ScopeDef"));
        const auto type = definition == QLatin1String("Fixed")          ? vorn::OnvifScope::Fixed
                          : definition == QLatin1String("Configurable") ? vorn::OnvifScope::Configurable
                                                                        : vorn::OnvifScope::Unknown;
        const QString uri = source.response.getText(node, QStringLiteral("/Scopes/ScopeItem"));
        expected.insert(uri.section(u'/', 3, 3), vorn::OnvifScope(type, uri));
    }
    require(scopes.keys() == expected.keys());
    require(std::equal(scopes.begin(), scopes.end(), expected.begin(), expected.end(),
                       [](const vorn::OnvifScope &scope, const vorn::OnvifScope &other) {
                           return isSameRecord(scope, other) && scope.uri.isNull() == other.uri.isNull();
                       }));
    for (const vorn::OnvifScope &scope : scopes)
        checkCopies(scope);
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
    checkListAt<vorn::OnvifNetworkInterfaceVector>(reply, root, {"/NetworkInterfaces"});
    const vorn::OnvifNetworkInterfaceVector interfaces(reply, root);
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
            output += QStringLiteral("&#%1;").arg(static_cast<int>(character.unicode()));
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

/// A root path that leads to something, whatever the reply is.
QString rootOf(XmlResponse &response)
{
    const XmlResponseNode body = response.get(QStringLiteral("/Envelope/Body"));
    const QString element = body.children.isEmpty() ? QStringLiteral("None") : body.children.constFirst().name;
    return QLatin1String("/Envelope/Body/") + element;
}

} // namespace

void checkRecords(const QByteArray &reply)
{
    XmlResponse response(reply, QString());
    const QString root = rootOf(response);

    const vorn::OnvifDeviceInformation information(reply);
    require(information.xml == response.xml());
    checkCopies(information);
    const vorn::OnvifCapabilities capabilities(reply);
    require(capabilities.hasMedia() != capabilities.media.xAddr.isEmpty());
    checkCopies(capabilities);
    const vorn::OnvifCamera camera(reply);
    require(camera.isValid() || camera.addresses.isEmpty());
    checkCopies(camera);
    const vorn::OnvifProfile profile(reply, root);
    require(!profile.isNull());
    checkCopies(profile);
    checkGateway(reply);
    checkLists(reply);
}

void checkLists(const QByteArray &reply)
{
    XmlResponse response(reply, QString());
    const QString root = rootOf(response);
    require(isSame(response.view(u"/Envelope"), response.get(QStringLiteral("/Envelope"))));

    checkListAt<vorn::OnvifVideoSourceConfigurationVector>(reply, root, {"/Configurations"});
    checkListAt<vorn::OnvifVideoEncoderConfigurationVector>(reply, root, {"/Configurations"});
    checkListAt<vorn::OnvifAudioSourceConfigurationVector>(reply, root, {"/Configurations"});
    checkListAt<vorn::OnvifAudioEncoderConfigurationVector>(reply, root, {"/Configurations"});
    checkListAt<vorn::OnvifAudioOutputConfigurationVector>(reply, root, {"/Configurations", "/Options"});
    checkListAt<vorn::OnvifVideoAnalyticsConfigurationVector>(reply, root, {"/Configurations"});
    checkListAt<vorn::OnvifPtzConfigurationVector>(reply, root, {"/PTZConfiguration"});
    checkListAt<vorn::OnvifRelayOutputVector>(reply, root, {"/RelayOutputs"});
    checkDecoders(reply, root);
    checkProfiles(reply, root);
    checkInterfaces(reply, root);
    checkScopes(reply);

    if (!root.contains(QLatin1String("GetCompatible"))) // not worth the time
        return;
    checkCompatible<vorn::OnvifCompatibleVideoSourceConfigurationVector>(
        reply, "GetCompatibleVideoSourceConfigurationsResponse", {"/Configurations"});
    checkCompatible<vorn::OnvifCompatibleVideoEncoderConfigurationVector>(
        reply, "GetCompatibleVideoEncoderConfigurationsResponse", {"/Configurations"});
    checkCompatible<vorn::OnvifCompatibleAudioSourceConfigurationVector>(
        reply, "GetCompatibleAudioSourceConfigurationsResponse", {"/Configurations"});
    checkCompatible<vorn::OnvifCompatibleAudioEncoderConfigurationVector>(
        reply, "GetCompatibleAudioEncoderConfigurationsResponse", {"/Configurations"});
    checkCompatible<vorn::OnvifCompatibleAudioOutputConfigurationVector>(
        reply, "GetCompatibleAudioOutputConfigurationsResponse", {"/Configurations", "/Options"});
    checkCompatible<vorn::OnvifCompatibleAudioDecoderConfigurationVector>(
        reply, "GetCompatibleAudioDecoderConfigurationsResponse", {"/Configurations"});
    checkCompatible<vorn::OnvifCompatibleMetadataConfigurationVector>(
        reply, "GetCompatibleMetadataConfigurationsResponse", {"/Configurations"});
    checkCompatible<vorn::OnvifCompatiblePtzConfigurationVector>(reply, "GetCompatibleConfigurationsResponse",
                                                                 {"/PTZConfiguration"});
    checkCompatible<vorn::OnvifCompatibleVideoAnalyticsConfigurationVector>(
        reply, "GetCompatibleVideoAnalyticsConfigurationsResponse", {"/Configurations"});
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
        require(isSame(fault.response.view(documentElement), node));
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
