#include "core/queries.h"

#include <vorn/onvif/device.h>

namespace vorn {
using namespace Qt::StringLiterals;

/// A version is read whole: a part that is missing is 0.
static OnvifCapabilities::SupportedVersion versionFrom(const RecordElement &element)
{
    OnvifCapabilities::SupportedVersion version;
    readFirstChildren(element, {field("Major", version.major), field("Minor", version.minor)});
    return version;
}

OnvifCapabilities::OnvifCapabilities() = default;

// The paths are not uniform, and each is meant as it stands. No path leads to the number of audio outputs.
OnvifCapabilities::OnvifCapabilities(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, u"/Envelope/Body/GetCapabilitiesResponse/Capabilities"_s)
{
    unsigned int relayOutputsOfDeviceIO = 0;
    readQueries(
        response,
        {
            query(u"/Analytics/XAddr", analytics.xAddr),
            query(u"/Analytics/RuleSupport", analytics.ruleSupport),
            query(u"/Analytics/AnalyticsModuleSupport", analytics.analyticsModuleSupport),
            query(u"/Device/XAddr", device.xAddr),
            query(u"/Device/Network/IPFilter", device.network.ipFilter),
            query(u"/Device/Network/ZeroConfiguration", device.network.zeroConfiguration),
            query(u"/Device/Network/IPVersion6", device.network.ipVersion6),
            query(u"/Device/Network/DynDNS", device.network.dynDns),
            query(u"/Device/Network/Extension/Dot11Configuration", device.network.dot11Configuration),
            query(u"/Device/System/DiscoveryResolve", device.system.discoveryResolve),
            query(u"/Device/System/DiscoveryBye", device.system.discoveryBye),
            query(u"/Device/System/RemoteDiscovery", device.system.remoteDiscovery),
            query(u"/Device/System/SystemBackup", device.system.systemBackup),
            query(u"/Device/System/FirmwareUpgrade", device.system.firmwareUpgrade),
            query(u"/Device/System/SystemLogging", device.system.systemLogging),
            query(u"/Device/System/Extension/HttpSystemBackup", device.system.httpSystemBackup),
            query(u"/Device/System/Extension/HttpFirmwareUpgrade", device.system.httpFirmwareUpgrade),
            query(u"/Device/System/Extension/HttpSystemLogging", device.system.httpSystemLogging),
            query(u"/Device/System/Extension/HttpSupportInformation", device.system.httpSupportInformation),
            query(u"/Device/IO/RelayOutputs", device.io.relayOutputs),
            query(u"/Device/IO/InputConnectors", device.io.inputConnectors),
            query(u"/Device/IO/Extension/Auxiliary", device.io.auxiliary),
            query(u"/Device/Security/TLS1.1", device.security.tls11),
            query(u"/Device/Security/TLS1.2", device.security.tls12),
            query(u"/Device/Security/OnboardKeyGeneration", device.security.onboardKeyGeneration),
            query(u"/Device/Security/AccessPolicyConfig", device.security.accessPolicyConfig),
            query(u"/Device/Security/X.509Token", device.security.x509Token),
            query(u"/Device/Security/SAMLToken", device.security.samlToken),
            query(u"/Device/Security/KerberosToken", device.security.kerberosToken),
            query(u"/Device/Security/RELToken", device.security.relToken),
            query(u"/Device/Security/Extension/TLS1.0", device.security.tls10),
            query(u"/Device/Security/Extension/Extension/Dot1X", device.security.dot1x),
            query(u"/Device/Security/Extension/Extension/RemoteUserHandling", device.security.remoteUserHandling),
            query(u"/Events/XAddr", events.xAddr),
            query(u"/Events/WSSubscriptionPolicySupport", events.wsSubscriptionPolicySupport),
            query(u"/Events/WSPullPointSupport", events.wsPullPointSupport),
            query(u"/Events/WSPausableSubscriptionManagerInterfaceSupport",
                  events.wsPausableSubscriptionManagerInterfaceSupport),
            query(u"/Imaging/XAddr", imaging.xAddr),
            query(u"/Media/XAddr", media.xAddr),
            query(u"/Media/StreamingCapabilities/RTPMulticast", media.rtpMulticast),
            query(u"/Media/StreamingCapabilities/RTP_TCP", media.rtpTcp),
            query(u"/Media/StreamingCapabilities/RTP_RTSP_TCP", media.rtpRtspTcp),
            query(u"/Media/Extension/ProfileCapabilities/MaximumNumberOfProfiles", media.maximumNumberOfProfiles),
            query(u"/PTZ/XAddr", ptz.xAddr),
            query(u"/Extension/DeviceIO/XAddr", device.io.xAddr),
            query(u"/Extension/DeviceIO/VideoSources", device.io.videoSources),
            query(u"/Extension/DeviceIO/VideoOutputs", device.io.videoOutputs),
            query(u"/Extension/DeviceIO/AudioSources", device.io.audioSources),
            query(u"/Extension/DeviceIO/RelayOutputs", relayOutputsOfDeviceIO),
            query(u"/Extension/Recording/XAddr", recording.xAddr),
            query(u"/Extension/Recording/DynamicRecordings", recording.dynamicRecordings),
            query(u"/Extension/Recording/DynamicTracks", recording.dynamicTracks),
            query(u"/Extension/Recording/DeleteData", recording.deleteData),
            query(u"/Extension/Recording/ReceiverSource", recording.receiverSource),
            query(u"/Extension/Recording/MediaProfileSource", recording.mediaProfileSource),
            query(u"/Extension/Recording/MaxStringLength", recording.maxStringLength),
            query(u"/Extension/Search/XAddr", search.xAddr),
            query(u"/Extension/Search/MetadataSearch", search.metadataSearch),
            query(u"/Extension/Replay/XAddr", replay.xAddr),
            query(u"/Extension/AnalyticsDevice/XAddr", analyticsDevice.xAddr),
            query(u"/Extension/AnalyticsDevice/RuleSupport", analyticsDevice.ruleSupport),
            query(u"/Extension/Display/XAddr", display.xAddr),
            query(u"/Extension/Display/FixedLayout", display.fixedLayout),
        });
    if (device.io.relayOutputs == 0)
        device.io.relayOutputs = relayOutputsOfDeviceIO;
    if (device.io.auxiliary) {
        for (const RecordElement command : elementsAt(response, u"/Device/IO/Extension/AuxiliaryCommands"_s))
            device.io.auxiliaryCommands.append(command.text());
    }
    for (const RecordElement version : elementsAt(response, u"/Device/System/SupportedVersions"_s))
        device.system.supportedVersions.append(versionFrom(version));
    for (const RecordElement method :
         elementsAt(response, u"/Device/Security/Extension/Extension/SupportedEAPMethod"_s))
        device.security.supportedEapMethods.append(method.toUInt());
}

OnvifCapabilities::OnvifCapabilities(const OnvifCapabilities &other) = default;
OnvifCapabilities::OnvifCapabilities(OnvifCapabilities &&other) noexcept = default;
OnvifCapabilities &OnvifCapabilities::operator=(const OnvifCapabilities &other) = default;
OnvifCapabilities &OnvifCapabilities::operator=(OnvifCapabilities &&other) noexcept = default;
OnvifCapabilities::~OnvifCapabilities() = default;

bool OnvifCapabilities::hasAnalytics() const
{
    return !analytics.xAddr.isEmpty();
}

bool OnvifCapabilities::hasAnalyticsDevice() const
{
    return !analyticsDevice.xAddr.isEmpty();
}

bool OnvifCapabilities::hasDevice() const
{
    return !device.xAddr.isEmpty();
}

bool OnvifCapabilities::hasDisplay() const
{
    return !display.xAddr.isEmpty();
}

bool OnvifCapabilities::hasEvents() const
{
    return !events.xAddr.isEmpty();
}

bool OnvifCapabilities::hasIO() const
{
    return !device.io.xAddr.isEmpty();
}

bool OnvifCapabilities::hasImaging() const
{
    return !imaging.xAddr.isEmpty();
}

bool OnvifCapabilities::hasMedia() const
{
    return !media.xAddr.isEmpty();
}

bool OnvifCapabilities::hasPTZ() const
{
    return !ptz.xAddr.isEmpty();
}

bool OnvifCapabilities::hasRecording() const
{
    return !recording.xAddr.isEmpty();
}

bool OnvifCapabilities::hasReplay() const
{
    return !replay.xAddr.isEmpty();
}

bool OnvifCapabilities::hasSearch() const
{
    return !search.xAddr.isEmpty();
}

} // namespace vorn
