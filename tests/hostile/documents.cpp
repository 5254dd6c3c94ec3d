#include "documents.h"

#include <vorn/onvif/configurations.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <QtCore/QString>
#include <QtCore/QStringEncoder>

#include <algorithm>

namespace hostile {
namespace {

using namespace Qt::StringLiterals;

/// All numbers have the same length, so that a document grows as its count does, and sort as they count.
QByteArray number(qsizetype value)
{
    return QByteArray::number(value).rightJustified(7, '0');
}

/// What \a make gives for each number below \a count, one behind the other.
template <typename Make>
QByteArray numbered(qsizetype count, const Make &make)
{
    QByteArray all;
    for (qsizetype i = 0; i < count; ++i)
        all += make(number(i));
    return all;
}

/// Whether \a list has one element for each number below \a count, in this order, as \a numberOf tells.
template <typename List, typename NumberOf>
bool isNumbered(const List &list, qsizetype count, const NumberOf &numberOf)
{
    if (list.size() != count)
        return false;
    for (qsizetype i = 0; i < count; ++i) {
        if (numberOf(list[i]) != QLatin1String(number(i)))
            return false;
    }
    return true;
}

QByteArray inUtf16(const QByteArray &reply)
{
    return QStringEncoder(QStringEncoder::Utf16LE, QStringEncoder::Flag::WriteBom)(QString::fromUtf8(reply));
}

QByteArray inBody(const QByteArray &content)
{
    return "<s:Envelope><s:Body>" + content + "</s:Body></s:Envelope>";
}

QByteArray element(const QByteArray &name, const QByteArray &content)
{
    return "<" + name + ">" + content + "</" + name + ">";
}

// For bytes that cannot be parsed.

bool isRefused(const QByteArray &reply, qsizetype)
{
    vorn::OnvifFault fault(reply, "GetProfiles", 1);
    return !fault.hasError() && !fault.response.get(u"/a"_s).valid && !fault.response.get(u"/Envelope"_s).valid
           && fault.xml == QString::fromUtf8(reply);
}

bool isRefusedInUtf16(const QByteArray &reply, qsizetype)
{
    return isRefused(vorn::XmlResponse(reply, QString()).xml().toUtf8(), 0);
}

QByteArray levels(qsizetype count)
{
    return QByteArray("<a>").repeated(count) + "x" + QByteArray("</a>").repeated(count);
}

QByteArray openLevels(qsizetype count)
{
    return QByteArray("<a>").repeated(count);
}

QByteArray levelsInUtf16(qsizetype count)
{
    return inUtf16(levels(count));
}

QByteArray openBrackets(qsizetype count)
{
    return QByteArray("<").repeated(count);
}

// For a profile's token.

const auto profilesPath = u"/Envelope/Body/GetProfilesResponse"_s;

QByteArray profiles(const QByteArray &content)
{
    return inBody("<r:GetProfilesResponse>" + content + "</r:GetProfilesResponse>");
}

bool hasProfile(const QByteArray &reply, QStringView token)
{
    const vorn::OnvifProfileVector profiles(reply, profilesPath);
    return profiles.size() == 1 && profiles.first().token == token;
}

QByteArray siblings(qsizetype count)
{
    return profiles(QByteArray("<a/>").repeated(count) + "<r:Profiles token='last'/>");
}

bool hasSiblings(const QByteArray &reply, qsizetype count)
{
    vorn::XmlResponse response(reply, profilesPath);
    return response.getAll(u"/a"_s).size() == count && hasProfile(reply, u"last");
}

QByteArray siblingsInUtf16(qsizetype count)
{
    return inUtf16(siblings(count));
}

/// What takes the most memory for its bytes: a node with one attribute.
QByteArray siblingsWithAnAttribute(qsizetype count)
{
    return profiles("<r:Profiles token='1'>" + QByteArray("<a b=''/>").repeated(count) + "</r:Profiles>");
}

bool hasSiblingsWithAnAttribute(const QByteArray &reply, qsizetype count)
{
    const vorn::XmlResponseNode node = vorn::XmlResponse(reply, profilesPath).get(u"/Profiles"_s);
    return node.children.size() == count && node.children.last().element.hasAttribute(u"b"_s)
           && hasProfile(reply, u"1");
}

QByteArray attributes(qsizetype count)
{
    return profiles("<r:Profiles " + numbered(count, [](const auto &n) { return "k" + n + "='" + n + "' "; })
                    + "token='last'/>");
}

bool hasAttributes(const QByteArray &reply, qsizetype count)
{
    vorn::XmlResponse response(reply, profilesPath);
    const QString last = QString::fromLatin1(number(count - 1));
    return response.getAttribute("k"_L1 + last, u"/Profiles"_s) == last && hasProfile(reply, u"last");
}

QByteArray repeatedAttributes(qsizetype count)
{
    return profiles("<r:Profiles token='first' " + numbered(count, [](const auto &n) { return "token='" + n + "' "; })
                    + "/>");
}

bool hasFirstAttribute(const QByteArray &reply, qsizetype)
{
    return hasProfile(reply, u"first");
}

QByteArray longName(qsizetype count)
{
    const QByteArray name(count / 2, 'n'); // stands in two tags
    return profiles("<r:Profiles token='1'><" + name + "></" + name + "></r:Profiles>");
}

bool hasLongName(const QByteArray &reply, qsizetype count)
{
    const vorn::XmlResponseNode node = vorn::XmlResponse(reply, profilesPath).get(u"/Profiles"_s);
    return node.children.size() == 1 && node.children.first().name == QString(count / 2, u'n');
}

QByteArray longAttribute(qsizetype count)
{
    return profiles("<r:Profiles token='" + QByteArray(count, 't') + "'/>");
}

bool hasLongAttribute(const QByteArray &reply, qsizetype count)
{
    return hasProfile(reply, QString(count, u't'));
}

// For the text of an element.

QByteArray information(const QByteArray &manufacturer)
{
    return inBody("<r:GetDeviceInformationResponse><r:Manufacturer>" + manufacturer
                  + "</r:Manufacturer></r:GetDeviceInformationResponse>");
}

bool hasText(const QByteArray &reply, QStringView text)
{
    return vorn::OnvifDeviceInformation(reply).manufacturer == text;
}

QByteArray namespaces(qsizetype count)
{
    return "<s:Envelope " + numbered(count, [](const auto &n) { return "xmlns:p" + n + "='urn:" + n + "' "; })
           + "><s:Body><r:GetDeviceInformationResponse><r:Manufacturer>x</r:Manufacturer>"
             "</r:GetDeviceInformationResponse></s:Body></s:Envelope>";
}

bool hasOneX(const QByteArray &reply, qsizetype)
{
    return hasText(reply, u"x");
}

bool hasXs(const QByteArray &reply, qsizetype count)
{
    return hasText(reply, QString(count, u'x'));
}

QByteArray longText(qsizetype count)
{
    return information(QByteArray(count, 'x'));
}

/// At the deepest level that a document may have.
QByteArray deepText(qsizetype count)
{
    const int levelsBelow = 256 - 4;
    return information(QByteArray("<a>").repeated(levelsBelow) + QByteArray(count, 'x')
                       + QByteArray("</a>").repeated(levelsBelow));
}

QByteArray comments(qsizetype count)
{
    return information(QByteArray("x<!---->").repeated(count));
}

QByteArray instructions(qsizetype count)
{
    return information(QByteArray("x<?y?>").repeated(count));
}

QByteArray sections(qsizetype count)
{
    return information(QByteArray("<![CDATA[x]]>").repeated(count));
}

QByteArray characterReferences(qsizetype count)
{
    return information(QByteArray("&#120;").repeated(count));
}

QByteArray ampersands(qsizetype count)
{
    return information(QByteArray("&").repeated(count));
}

bool hasAmpersands(const QByteArray &reply, qsizetype count)
{
    return hasText(reply, QString(count, u'&'));
}

QByteArray nuls(qsizetype count)
{
    return information(QByteArray(count, '\0')) + QByteArray(count, '\0');
}

QByteArray illFormedBytes(qsizetype count)
{
    return information(QByteArray("\xFF").repeated(count));
}

bool hasReplacements(const QByteArray &reply, qsizetype count)
{
    return hasText(reply, QString(count, u'\uFFFD'));
}

/// As many bytes as the square of \a count, if the references were replaced.
QByteArray quadraticEntities(qsizetype count)
{
    return "<!DOCTYPE e [<!ENTITY e '" + QByteArray(count, 'e') + "'>]>"
           + information(QByteArray("&e;").repeated(count));
}

bool hasReferences(const QByteArray &reply, qsizetype count)
{
    return hasText(reply, u"&e;"_s.repeated(count));
}

/// As many bytes as two to the power of \a count, if the reference were replaced.
QByteArray exponentialEntities(qsizetype count)
{
    QByteArray dtd = "<!ENTITY e" + number(0) + " 'ha'>";
    for (qsizetype i = 1; i < count; ++i) {
        const QByteArray previous = "&e" + number(i - 1) + ";";
        dtd += "<!ENTITY e" + number(i) + " '" + previous + previous + "'>";
    }
    return "<!DOCTYPE e [" + dtd + "]>" + information("&e" + number(count - 1) + ";");
}

bool hasLastReference(const QByteArray &reply, qsizetype count)
{
    return hasText(reply, QString::fromLatin1("&e" + number(count - 1) + ";"));
}

QByteArray references(qsizetype count)
{
    return numbered(count, [](const auto &n) { return "&e" + n + ";"; });
}

QByteArray externalEntities(qsizetype count)
{
    return "<!DOCTYPE e SYSTEM 'http://127.0.0.1/e.dtd' [<!ENTITY % p SYSTEM 'file:///etc/passwd'>%p;"
           + numbered(count, [](const auto &n) { return "<!ENTITY e" + n + " SYSTEM 'file:///etc/passwd'>"; }) + "]>"
           + information(references(count));
}

bool hasAllReferences(const QByteArray &reply, qsizetype count)
{
    return hasText(reply, QString::fromLatin1(references(count)));
}

QByteArray openDeclarations(qsizetype count)
{
    return "<!DOCTYPE e [" + QByteArray("<!E [").repeated(count) + "]>" + information("x");
}

// For discovery and scopes.

/// All of one category, so that all have one key.
QByteArray scopes(qsizetype count)
{
    return inBody(
        "<r:GetScopesResponse>"
        + numbered(count,
                   [](const auto &n) {
                       return "<r:Scopes><t:ScopeDef>Fixed</t:ScopeDef><t:ScopeItem>onvif://www.onvif.org/location/" + n
                              + "</t:ScopeItem></r:Scopes>";
                   })
        + "</r:GetScopesResponse>");
}

bool hasScopes(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifScopeMap scopes(reply);
    QList<vorn::OnvifScope> values = scopes.values(u"location"_s);
    std::reverse(values.begin(), values.end()); // the last in the reply comes first
    return scopes.size() == count && scopes.fixedValue(u"location"_s).value == QLatin1String(number(count - 1))
           && isNumbered(values, count, [](const auto &scope) { return scope.value; });
}

QByteArray percentsInAScope(qsizetype count)
{
    return inBody("<r:GetScopesResponse><r:Scopes><t:ScopeItem>onvif://www.onvif.org/name/"
                  + QByteArray("%2F").repeated(count) + "</t:ScopeItem></r:Scopes></r:GetScopesResponse>");
}

bool hasPercentsDecoded(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifScopeMap scopes(reply);
    return scopes.size() == 1 && scopes.first().value == QString(count, u'/');
}

QByteArray probeMatch(const QByteArray &addresses, const QByteArray &scopes)
{
    return inBody("<d:ProbeMatches><d:ProbeMatch><d:Scopes>" + scopes + "</d:Scopes><d:XAddrs>" + addresses
                  + "</d:XAddrs></d:ProbeMatch></d:ProbeMatches>");
}

QByteArray addresses(qsizetype count)
{
    return probeMatch(numbered(count, [](const auto &n) { return "http://192.168.1.20:1" + n + "/x "; }), "");
}

bool hasAddresses(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifCamera camera(reply);
    return camera.isValid() && isNumbered(camera.addresses, count, [](const QString &address) {
               return address.sliced("192.168.1.20:1"_L1.size());
           });
}

QByteArray dotsInAnAddress(qsizetype count)
{
    return probeMatch("http://" + QByteArray("0.").repeated(count) + "/", "");
}

/// From the fifth part on, the dots are lost.
bool hasZeros(const QByteArray &reply, qsizetype count)
{
    return vorn::OnvifCamera(reply).addresses == QStringList("0.0.0."_L1 + QString(count - 3, u'0'));
}

QByteArray discoveryScopes(qsizetype count)
{
    return probeMatch("http://10.0.0.1/", numbered(count, [](const auto &n) {
                          return "onvif://www.onvif.org/hardware/networkcamera onvif://www.onvif.org/location/" + n
                                 + ' ';
                      }));
}

bool hasDiscoveryScopes(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifCamera camera(reply);
    QList<QString> locations = camera.scopes.values(u"location"_s);
    std::reverse(locations.begin(), locations.end());
    return camera.scopes.count(u"hardware"_s) == count && camera.scopes.count(u"name"_s) == 1
           && isNumbered(locations, count, [](const auto &location) { return location; });
}

// For lists.

QByteArray manyProfiles(qsizetype count)
{
    return profiles(numbered(count, [](const auto &n) {
        return "<r:Profiles token='" + n + "'><t:Name>profile</t:Name><t:VideoEncoderConfiguration token='" + n
               + "'><t:Encoding>H264</t:Encoding></t:VideoEncoderConfiguration></r:Profiles>";
    }));
}

bool hasManyProfiles(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifProfileVector profiles(reply, profilesPath);
    return isNumbered(profiles, count, [](const auto &profile) { return profile.token; })
           && isNumbered(profiles, count, [](const auto &profile) { return profile.videoEncoder.token; });
}

/// The records that take the most memory for their bytes.
QByteArray emptyProfiles(qsizetype count)
{
    return profiles(QByteArray("<Profiles/>").repeated(count));
}

QByteArray emptyProfilesWithAnAttribute(qsizetype count)
{
    return profiles(QByteArray("<Profiles b=''/>").repeated(count));
}

bool hasEmptyProfiles(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifProfileVector profiles(reply, profilesPath);
    return profiles.size() == count && profiles.last().token.isEmpty();
}

/// Only the first counts.
QByteArray singleProfiles(qsizetype count)
{
    return inBody(element("r:GetProfileResponse", numbered(count, [](const auto &n) {
                              return "<r:Profile token='" + n + "'>" + element("t:Name", n) + "</r:Profile>";
                          })));
}

bool hasFirstProfile(const QByteArray &reply, qsizetype)
{
    const vorn::OnvifProfile profile(reply, u"/Envelope/Body/GetProfileResponse"_s);
    return profile.token == QLatin1String(number(0)) && profile.name == profile.token;
}

/// An answer to each request for configurations, as all have the same form.
QByteArray configurationsIn(const QByteArray &response, qsizetype count)
{
    return element("r:" + response, numbered(count, [](const auto &n) {
                       return "<r:Configurations token='" + n + "'/><r:PTZConfiguration token='" + n + "'/>";
                   }));
}

const auto configurationsPath = u"/Envelope/Body/GetConfigurationsResponse"_s;

QByteArray configurations(qsizetype count)
{
    return inBody(configurationsIn("GetConfigurationsResponse", count));
}

template <typename List>
bool hasTokens(const List &list, qsizetype count)
{
    return isNumbered(list, count, [](const auto &configuration) { return configuration.token; });
}

bool hasConfigurations(const QByteArray &reply, qsizetype count)
{
    const auto isRead = [count](const auto &list) { return hasTokens(list, count); };
    return isRead(vorn::OnvifVideoSourceConfigurationVector(reply, configurationsPath))
           && isRead(vorn::OnvifVideoEncoderConfigurationVector(reply, configurationsPath))
           && isRead(vorn::OnvifAudioSourceConfigurationVector(reply, configurationsPath))
           && isRead(vorn::OnvifAudioOutputConfigurationVector(reply, configurationsPath))
           && isRead(vorn::OnvifAudioEncoderConfigurationVector(reply, configurationsPath))
           && isRead(vorn::OnvifVideoAnalyticsConfigurationVector(reply, configurationsPath))
           && isRead(vorn::OnvifPtzConfigurationVector(reply, configurationsPath))
           && vorn::OnvifAudioDecoderConfigurationVector(reply, configurationsPath).size() == count; // has no tokens
}

/// All answers in one.
QByteArray compatibleConfigurations(qsizetype count)
{
    QByteArray responses;
    for (const char *kind : {"VideoSource", "VideoEncoder", "AudioSource", "AudioOutput", "AudioEncoder",
                             "AudioDecoder", "VideoAnalytics", "Metadata", ""}) // none for PTZ
        responses += configurationsIn("GetCompatible" + QByteArray(kind) + "ConfigurationsResponse", count);
    return inBody(responses);
}

bool hasCompatibleConfigurations(const QByteArray &reply, qsizetype count)
{
    const auto isRead = [count](const auto &list) { return hasTokens(list, count); };
    return isRead(vorn::OnvifCompatibleVideoSourceConfigurationVector(reply))
           && isRead(vorn::OnvifCompatibleVideoEncoderConfigurationVector(reply))
           && isRead(vorn::OnvifCompatibleAudioSourceConfigurationVector(reply))
           && isRead(vorn::OnvifCompatibleAudioOutputConfigurationVector(reply))
           && isRead(vorn::OnvifCompatibleAudioEncoderConfigurationVector(reply))
           && isRead(vorn::OnvifCompatibleVideoAnalyticsConfigurationVector(reply))
           && isRead(vorn::OnvifCompatibleMetadataConfigurationVector(reply))
           && isRead(vorn::OnvifCompatiblePtzConfigurationVector(reply))
           && vorn::OnvifCompatibleAudioDecoderConfigurationVector(reply).size() == count;
}

QByteArray rules(qsizetype count)
{
    return inBody("<r:GetConfigurationsResponse><r:Configurations token='1'><t:RuleEngineConfiguration>"
                  + numbered(count, [](const auto &n) { return "<t:Rule Name='" + n + "' Type='tt:Line'/>"; })
                  + "</t:RuleEngineConfiguration></r:Configurations></r:GetConfigurationsResponse>");
}

bool hasRules(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifVideoAnalyticsConfigurationVector configurations(reply, configurationsPath);
    return configurations.size() == 1
           && isNumbered(configurations.first().ruleEngineConfiguration, count,
                         [](const auto &rule) { return rule.name; });
}

QByteArray manualAddresses(qsizetype count)
{
    return inBody(
        "<r:GetNetworkInterfacesResponse><r:NetworkInterfaces token='1'><t:IPv4><t:Config>"
        + numbered(count, [](const auto &n) { return "<t:Manual><t:Address>" + n + "</t:Address></t:Manual>"; })
        + "</t:Config></t:IPv4></r:NetworkInterfaces></r:GetNetworkInterfacesResponse>");
}

bool hasManualAddresses(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifNetworkInterfaceVector interfaces(reply, u"/Envelope/Body/GetNetworkInterfacesResponse"_s);
    return interfaces.size() == 1 && interfaces.first().toString().count(u"<tt:Address>") == count
           && isNumbered(interfaces.first().ipv4.config.manual, count,
                         [](const auto &address) { return address.address; });
}

QByteArray relays(qsizetype count)
{
    return inBody(element("r:GetRelayOutputsResponse", numbered(count, [](const auto &n) {
                              return "<r:RelayOutputs token='" + n + "'>"
                                     + element("t:Properties", element("t:DelayTime", n)) + "</r:RelayOutputs>";
                          })));
}

bool hasRelays(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifRelayOutputVector relays(reply, u"/Envelope/Body/GetRelayOutputsResponse"_s);
    return hasTokens(relays, count) && isNumbered(relays, count, [](const auto &relay) { return relay.delayTime; });
}

/// Only the first counts.
QByteArray gateways(qsizetype count)
{
    const QByteArray addresses =
        numbered(count, [](const auto &n) { return element("t:IPv4Address", n) + element("t:IPv6Address", n); });
    return inBody(element("r:GetNetworkDefaultGatewayResponse", element("r:NetworkGateway", addresses)));
}

bool hasFirstGateway(const QByteArray &reply, qsizetype)
{
    const vorn::OnvifNetworkGateway gateway(reply);
    return gateway.ipv4Address == QLatin1String(number(0)) && gateway.ipv6Address == gateway.ipv4Address;
}

/// Each kind of capability that a device may have many of.
QByteArray capabilities(qsizetype count)
{
    const auto system = [](const auto &n) { return element("t:SupportedVersions", element("t:Major", n)); };
    const auto io = [](const auto &n) { return element("t:AuxiliaryCommands", n); };
    const auto security = [](const auto &n) { return element("t:SupportedEAPMethod", n); };
    const QByteArray device =
        element("t:System", numbered(count, system))
        + element("t:IO", element("t:Extension", "<t:Auxiliary>true</t:Auxiliary>" + numbered(count, io)))
        + element("t:Security", element("t:Extension", element("t:Extension", numbered(count, security))));
    return inBody(element("r:GetCapabilitiesResponse", element("r:Capabilities", element("t:Device", device))));
}

bool hasCapabilities(const QByteArray &reply, qsizetype count)
{
    const vorn::OnvifCapabilities capabilities(reply);
    const auto text = [](unsigned int value) { return QString::fromLatin1(number(value)); };
    return isNumbered(capabilities.device.system.supportedVersions, count,
                      [text](const auto &version) { return text(version.major); })
           && isNumbered(capabilities.device.io.auxiliaryCommands, count, [](const auto &command) { return command; })
           && isNumbered(capabilities.device.security.supportedEapMethods, count, text);
}

// For faults.

/// The code is told by what stands behind its last colon, and the reason by what it mentions.
QByteArray colonsInAFault(qsizetype count)
{
    return inBody("<s:Fault><s:Code><s:Value>" + QByteArray(":").repeated(count)
                  + "Sender</s:Value></s:Code><s:Reason><s:Text>" + QByteArray("HTTP:").repeated(count)
                  + "</s:Text></s:Reason></s:Fault>");
}

bool isHttpFault(const QByteArray &reply, qsizetype)
{
    return vorn::OnvifFault(reply, "GetProfiles", 1).is(vorn::OnvifFault::UnknownHttpError);
}

} // namespace

const std::vector<Document> &documents()
{
    static const std::vector<Document> all{
        {"levels", 1'000'000, levels, isRefused},
        {"open levels", 1'000'000, openLevels, isRefused},
        {"levels in UTF-16", 1'000'000, levelsInUtf16, isRefusedInUtf16},
        {"open brackets", 10'000'000, openBrackets, isRefused},
        {"siblings", 1'000'000, siblings, hasSiblings},
        {"siblings with an attribute", 100'000, siblingsWithAnAttribute, hasSiblingsWithAnAttribute},
        {"siblings in UTF-16", 1'000'000, siblingsInUtf16, hasSiblings},
        {"attributes", 1'000'000, attributes, hasAttributes},
        {"repeated attributes", 1'000'000, repeatedAttributes, hasFirstAttribute},
        {"namespace declarations", 1'000'000, namespaces, hasOneX},
        {"bytes in a name", 20'000'000, longName, hasLongName},
        {"bytes in an attribute", 100'000'000, longAttribute, hasLongAttribute},
        {"bytes in a text", 100'000'000, longText, hasXs},
        {"bytes in a deep text", 10'000'000, deepText, hasXs},
        {"comments", 1'000'000, comments, hasXs},
        {"processing instructions", 1'000'000, instructions, hasXs},
        {"CDATA sections", 1'000'000, sections, hasXs},
        {"character references", 1'000'000, characterReferences, hasXs},
        {"ampersands", 10'000'000, ampersands, hasAmpersands},
        {"NULs", 10'000'000, nuls, hasReplacements},
        {"ill-formed bytes", 10'000'000, illFormedBytes, hasReplacements},
        {"quadratic entities", 1'000'000, quadraticEntities, hasReferences},
        {"exponential entities", 100'000, exponentialEntities, hasLastReference},
        {"external entities", 100'000, externalEntities, hasAllReferences},
        {"open declarations in a DTD", 1'000'000, openDeclarations, isRefused},
        {"scopes", 100'000, scopes, hasScopes},
        {"percents in a scope", 1'000'000, percentsInAScope, hasPercentsDecoded},
        {"addresses", 100'000, addresses, hasAddresses},
        {"dots in an address", 1'000'000, dotsInAnAddress, hasZeros},
        {"discovery scopes", 100'000, discoveryScopes, hasDiscoveryScopes},
        {"profiles", 10'000, manyProfiles, hasManyProfiles},
        {"empty profiles", 100'000, emptyProfiles, hasEmptyProfiles},
        {"empty profiles with an attribute", 100'000, emptyProfilesWithAnAttribute, hasEmptyProfiles},
        {"answers of one profile", 100'000, singleProfiles, hasFirstProfile},
        {"configurations", 10'000, configurations, hasConfigurations},
        {"compatible configurations", 10'000, compatibleConfigurations, hasCompatibleConfigurations},
        {"rules", 100'000, rules, hasRules},
        {"manual addresses", 100'000, manualAddresses, hasManualAddresses},
        {"relays", 100'000, relays, hasRelays},
        {"gateways", 100'000, gateways, hasFirstGateway},
        {"capabilities", 100'000, capabilities, hasCapabilities},
        {"colons in a fault", 1'000'000, colonsInAFault, isHttpFault},
    };
    return all;
}

} // namespace hostile
