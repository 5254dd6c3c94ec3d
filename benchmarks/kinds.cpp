#include "kinds.h"

#include <vorn/onvif/configurations.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <utility>

namespace bench {
namespace {

using Values = std::vector<std::string>;

/// \a values below \a path.
Values below(const std::string &path, Values values)
{
    for (std::string &value : values)
        value.insert(0, path + '/');
    return values;
}

Values operator+(Values first, const Values &second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Values configuration(const Values &values)
{
    return Values{"@token", "Name", "UseCount"} + values;
}

const Values videoSource = configuration({"SourceToken", "Bounds/@x", "Bounds/@y", "Bounds/@width", "Bounds/@height"});
const Values videoEncoder =
    configuration({"Encoding", "Resolution/Width", "Resolution/Height", "Quality", "RateControl/FrameRateLimit",
                   "RateControl/EncodingInterval", "RateControl/BitrateLimit", "SessionTimeout"});
const Values audioSource = configuration({"SourceToken"});
const Values audioOutput = configuration({"OutputToken", "OutputLevel", "SendPrimacy"});
const Values audioEncoder = configuration({"Encoding", "Bitrate", "SampleRate", "SessionTimeout"});
const Values audioDecoder = {"@token", "Name"};
const Values analyticsModules = {"AnalyticsEngineConfiguration/AnalyticsModule/@Name",
                                 "AnalyticsEngineConfiguration/AnalyticsModule/@Type"};
const Values metadata = configuration({"Analytics", "SessionTimeout", "PTZStatus/Status", "PTZStatus/Position",
                                       "Events/Filter", "Events/SubscriptionPolicy"})
                        + analyticsModules;
const Values ptz =
    configuration({"DefaultPTZTimeout", "NodeToken", "PanTiltLimits/Range/XRange/Min", "PanTiltLimits/Range/XRange/Max",
                   "PanTiltLimits/Range/YRange/Min", "PanTiltLimits/Range/YRange/Max", "ZoomLimits/Range/XRange/Min",
                   "ZoomLimits/Range/XRange/Max"});
const Values videoAnalytics =
    configuration({"RuleEngineConfiguration/Rule/@Name", "RuleEngineConfiguration/Rule/@Type"}) + analyticsModules;
const Values profile =
    Values{"@token", "@fixed", "Name"} + below("VideoSourceConfiguration", videoSource)
    + below("AudioSourceConfiguration", audioSource) + below("VideoEncoderConfiguration", videoEncoder)
    + below("AudioEncoderConfiguration", audioEncoder) + below("VideoAnalyticsConfiguration", videoAnalytics)
    + below("PTZConfiguration", ptz) + below("MetadataConfiguration", metadata)
    + below("Extension/AudioOutputConfiguration", audioOutput)
    + below("Extension/AudioDecoderConfiguration", audioDecoder);

const Values linkSettings = {"AutoNegotiation", "Speed", "Duplex"};
const Values address = {"Address", "PrefixLength"};
const Values networkInterface =
    Values{"@token", "Enabled", "Info/Name", "Info/HwAddress", "Info/MTU", "Link/InterfaceType"}
    + below("Link/AdminSettings", linkSettings) + below("Link/OperSettings", linkSettings)
    + Values{"IPv4/Enabled", "IPv4/Config/DHCP"} + below("IPv4/Config/Manual", address)
    + below("IPv4/Config/LinkLocal", address) + below("IPv4/Config/FromDHCP", address)
    + Values{"IPv6/Enabled", "IPv6/Config/DHCP", "IPv6/Config/AcceptRouterAdvert"}
    + below("IPv6/Config/Manual", address) + below("IPv6/Config/LinkLocal", address)
    + below("IPv6/Config/FromDHCP", address) + below("IPv6/Config/FromRA", address);

const Values recording = {"XAddr",          "DynamicRecordings",  "DynamicTracks",  "DeleteData",
                          "ReceiverSource", "MediaProfileSource", "MaxStringLength"};
const Values capabilities =
    Values{"Imaging/XAddr", "PTZ/XAddr", "Extension/Replay/XAddr"}
    + below("Analytics", {"XAddr", "RuleSupport", "AnalyticsModuleSupport"})
    + below("Device", {"XAddr", "IO/RelayOutputs", "IO/InputConnectors", "IO/Extension/Auxiliary",
                       "IO/Extension/AuxiliaryCommands"})
    + below("Device/Network", {"IPFilter", "ZeroConfiguration", "IPVersion6", "DynDNS", "Extension/Dot11Configuration"})
    + below("Device/System", {"DiscoveryResolve", "DiscoveryBye", "RemoteDiscovery", "SystemBackup", "FirmwareUpgrade",
                              "SystemLogging", "SupportedVersions/Major", "SupportedVersions/Minor"})
    + below("Device/System/Extension",
            {"HttpSystemBackup", "HttpFirmwareUpgrade", "HttpSystemLogging", "HttpSupportInformation"})
    + below("Device/Security",
            {"TLS1.1", "TLS1.2", "OnboardKeyGeneration", "AccessPolicyConfig", "X.509Token", "SAMLToken",
             "KerberosToken", "RELToken", "Extension/TLS1.0", "Extension/Extension/Dot1X",
             "Extension/Extension/RemoteUserHandling", "Extension/Extension/SupportedEAPMethod"})
    + below("Events", {"XAddr", "WSSubscriptionPolicySupport", "WSPullPointSupport",
                       "WSPausableSubscriptionManagerInterfaceSupport"})
    + below("Media", {"XAddr", "StreamingCapabilities/RTPMulticast", "StreamingCapabilities/RTP_TCP",
                      "StreamingCapabilities/RTP_RTSP_TCP", "Extension/ProfileCapabilities/MaximumNumberOfProfiles"})
    + below("Extension/DeviceIO", {"XAddr", "VideoSources", "VideoOutputs", "AudioSources", "RelayOutputs"})
    + below("Extension/Recording", recording) + below("Extension/Search", {"XAddr", "MetadataSearch"})
    + below("Extension/AnalyticsDevice", {"XAddr", "RuleSupport"})
    + below("Extension/Display", {"XAddr", "FixedLayout"});

std::string responsePath(const std::string &operation)
{
    return "Body/" + operation + "Response";
}

/// A record of one entry. \a isRead tells a record that was read from one that was not.
template <typename Record, typename IsRead>
Kind recordKind(const std::string &name, const std::string &operation, Limits limits, const ByHand &byHand,
                const IsRead &isRead)
{
    return {name, QString::fromStdString(operation), limits, byHand,
            [isRead](const QByteArray &reply) -> qsizetype { return isRead(Record(reply)) ? 1 : 0; }};
}

/// A list of \a entry that is read from the reply to \a operation.
template <typename List>
Kind listKind(const std::string &name, const std::string &operation, const std::string &entry, Limits limits,
              const Values &values)
{
    const QString root = QString::fromStdString("/Envelope/Body/" + operation + "Response");
    return {name, QString::fromStdString(operation), limits, ByHand(responsePath(operation) + '/' + entry, values),
            [root](const QByteArray &reply) { return List(reply, root).size(); }};
}

/// A list that knows itself where it is in its reply.
template <typename List>
Kind ownListKind(const std::string &name, const std::string &operation, const std::string &entry, Limits limits,
                 const Values &values)
{
    return {name, QString::fromStdString(operation), limits, ByHand(responsePath(operation) + '/' + entry, values),
            [](const QByteArray &reply) { return List(reply).size(); }};
}

constexpr Limits configurationLimits{0.103, 0.125};

/// The lists of one type of configuration: all that a device has, and those that go together with a profile.
template <typename List, typename CompatibleList>
void addConfigurations(std::vector<Kind> &kinds, const std::string &type, const std::string &operation,
                       const Values &values, const std::string &entry = "Configurations",
                       Limits limits = configurationLimits)
{
    const std::string suffix = type + "ConfigurationVector";
    kinds.push_back(listKind<List>("Onvif" + suffix, "Get" + operation, entry, limits, values));
    kinds.push_back(
        ownListKind<CompatibleList>("OnvifCompatible" + suffix, "GetCompatible" + operation, entry, limits, values));
}

std::vector<Kind> makeKinds()
{
    using namespace vorn;

    const auto isGood = [](const QByteArray &reply) { return OnvifFault(reply, "GetProfiles", 0).hasError() ? 0 : 1; };
    const QString getProfiles = QStringLiteral("GetProfiles");
    const ByHand faultByHand("Body/Fault", {"Code/Value", "Code/Subcode/Value", "Code/Subcode/Subcode/Value"});
    const Kind profiles =
        listKind<OnvifProfileVector>("OnvifProfileVector", "GetProfiles", "Profiles", {0.098, 0.14}, profile);

    std::vector<Kind> kinds = {
        {"OnvifFault of a good reply", getProfiles, {0.06, 0.06}, ByHand("Body", {"Fault/Code/Value"}), isGood},
        {"OnvifFault with three codes",
         QStringLiteral("NoProfile*"),
         {0.13, 0.13},
         faultByHand,
         [](const QByteArray &reply) -> qsizetype {
             const OnvifFault fault(reply, "GetProfiles", 0);
             return fault.is(OnvifFault::Sender, OnvifFault::InvalidArgVal, OnvifFault::NoProfile) ? 1 : 0;
         }},
        {"OnvifFault of an error page",
         QStringLiteral("Html*"),
         {0.20, 0.20},
         ByHand("head", {"title"}),
         [](const QByteArray &reply) -> qsizetype { return OnvifFault(reply, "GetProfiles", 0).hasError() ? 1 : 0; }},
        recordKind<OnvifDeviceInformation>(
            "OnvifDeviceInformation", "GetDeviceInformation", {0.072, 0.11},
            ByHand(responsePath("GetDeviceInformation"),
                   {"Manufacturer", "Model", "FirmwareVersion", "SerialNumber", "HardwareId"}),
            [](const OnvifDeviceInformation &information) { return !information.manufacturer.isEmpty(); }),
        recordKind<OnvifNetworkGateway>(
            "OnvifNetworkGateway", "GetNetworkDefaultGateway", {0.072, 0.11},
            ByHand(responsePath("GetNetworkDefaultGateway") + "/NetworkGateway", {"IPv4Address", "IPv6Address"}),
            [](const OnvifNetworkGateway &gateway) { return !gateway.ipv4Address.isEmpty(); }),
        recordKind<OnvifCapabilities>(
            "OnvifCapabilities", "GetCapabilities", {0.13, 0.16},
            ByHand(responsePath("GetCapabilities") + "/Capabilities", capabilities),
            [](const OnvifCapabilities &all) { return all.hasDevice() || all.hasMedia() || all.hasEvents(); }),
        recordKind<OnvifCamera>("OnvifCamera", "ProbeMatches", {0.18, 0.18},
                                ByHand("Body/ProbeMatches/ProbeMatch", {"XAddrs", "Scopes"}),
                                [](const OnvifCamera &camera) { return camera.isValid(); }),
        listKind<OnvifRelayOutputVector>("OnvifRelayOutputVector", "GetRelayOutputs", "RelayOutputs", {0.08, 0.115},
                                         {"@token", "Properties/Mode", "Properties/DelayTime", "Properties/IdleState"}),
        listKind<OnvifNetworkInterfaceVector>("OnvifNetworkInterfaceVector", "GetNetworkInterfaces",
                                              "NetworkInterfaces", {0.12, 0.14}, networkInterface),
        ownListKind<OnvifScopeMap>("OnvifScopeMap", "GetScopes", "Scopes", {0.145, 0.19}, {"ScopeDef", "ScopeItem"}),
    };
    addConfigurations<OnvifVideoSourceConfigurationVector, OnvifCompatibleVideoSourceConfigurationVector>(
        kinds, "VideoSource", "VideoSourceConfigurations", videoSource);
    addConfigurations<OnvifVideoEncoderConfigurationVector, OnvifCompatibleVideoEncoderConfigurationVector>(
        kinds, "VideoEncoder", "VideoEncoderConfigurations", videoEncoder);
    addConfigurations<OnvifAudioSourceConfigurationVector, OnvifCompatibleAudioSourceConfigurationVector>(
        kinds, "AudioSource", "AudioSourceConfigurations", audioSource);
    addConfigurations<OnvifAudioOutputConfigurationVector, OnvifCompatibleAudioOutputConfigurationVector>(
        kinds, "AudioOutput", "AudioOutputConfigurations", audioOutput, "Configurations|Options");
    addConfigurations<OnvifAudioEncoderConfigurationVector, OnvifCompatibleAudioEncoderConfigurationVector>(
        kinds, "AudioEncoder", "AudioEncoderConfigurations", audioEncoder);
    addConfigurations<OnvifAudioDecoderConfigurationVector, OnvifCompatibleAudioDecoderConfigurationVector>(
        kinds, "AudioDecoder", "AudioDecoderConfigurations", audioDecoder);
    addConfigurations<OnvifVideoAnalyticsConfigurationVector, OnvifCompatibleVideoAnalyticsConfigurationVector>(
        kinds, "VideoAnalytics", "VideoAnalyticsConfigurations", videoAnalytics, "Configurations", {0.07, 0.07});
    addConfigurations<OnvifPtzConfigurationVector, OnvifCompatiblePtzConfigurationVector>(
        kinds, "Ptz", "Configurations", ptz, "PTZConfiguration");
    kinds.push_back(ownListKind<OnvifCompatibleMetadataConfigurationVector>(
        "OnvifCompatibleMetadataConfigurationVector", "GetCompatibleMetadataConfigurations", "Configurations",
        configurationLimits, metadata));
    kinds.push_back(profiles);
    for (const char *operation : {"GetProfile", "CreateProfile"}) {
        const QString root = QString::fromStdString("/Envelope/" + responsePath(operation));
        kinds.push_back({"OnvifProfile",
                         QLatin1String(operation),
                         {0.10, 0.11},
                         ByHand(responsePath(operation) + "/Profile", {"@token", "@fixed", "Name"}),
                         [root](const QByteArray &reply) -> qsizetype {
                             return OnvifProfile(reply, root).token.isEmpty() ? 0 : 1;
                         }});
    }
    kinds.push_back({"OnvifFault, then OnvifProfileVector",
                     getProfiles,
                     {0.152, 0.195},
                     profiles.byHand,
                     [isGood, profiles](const QByteArray &reply) -> qsizetype {
                         return isGood(reply) == 1 ? profiles.read(reply) : 0;
                     }});
    // What a program asks for itself: nodes, and values by their paths.
    kinds.push_back({"XmlResponse::getAll of profiles",
                     getProfiles,
                     {0.42, 0.47},
                     profiles.byHand,
                     [](const QByteArray &reply) -> qsizetype {
                         XmlResponse response(reply, QStringLiteral("/Envelope/Body/GetProfilesResponse"));
                         return response.getAll(QStringLiteral("/Profiles")).size();
                     }});
    QStringList paths;
    for (const std::string &value : capabilities)
        paths.append(QLatin1Char('/') + QString::fromStdString(value));
    kinds.push_back({"XmlResponse::getText of capabilities",
                     QStringLiteral("GetCapabilities"),
                     {0.14, 0.24},
                     ByHand(responsePath("GetCapabilities") + "/Capabilities", capabilities),
                     [paths](const QByteArray &reply) -> qsizetype {
                         const QString root = QStringLiteral("/Envelope/Body/GetCapabilitiesResponse/Capabilities");
                         XmlResponse response(reply, root);
                         qsizetype size = 0;
                         for (const QString &path : paths)
                             size += response.getText(path).size();
                         return size > 0 ? 1 : 0;
                     }});
    return kinds;
}

} // namespace

const std::vector<Kind> &kinds()
{
    static const std::vector<Kind> all = makeKinds();
    return all;
}

} // namespace bench
