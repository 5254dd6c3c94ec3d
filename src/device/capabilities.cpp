#include "core/queries.h"

#include <vorn/onvif/device.h>

namespace vorn {
using namespace Qt::StringLiterals;

/// A version is read whole: a part that is missing is 0.
static OnvifCapabilities::SupportedVersion versionFrom(const RecordElement &element)
{
    OnvifCapabilities::SupportedVersion version;
    readFirstChildren(element, {query("Major", version.major), query("Minor", version.minor)});
    return version;
}

OnvifCapabilities::OnvifCapabilities() = default;

// The paths are not uniform, and each is meant as it stands. No path leads to the number of audio outputs.
OnvifCapabilities::OnvifCapabilities(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, u"/Envelope/Body/GetCapabilitiesResponse/Capabilities"_s)
{
    readQueries(response, u"/Analytics"_s,
                {
                    query("XAddr", analytics.xAddr),
                    query("RuleSupport", analytics.ruleSupport),
                    query("AnalyticsModuleSupport", analytics.analyticsModuleSupport),
                });

    readQueries(response, u"/Device"_s, {query("XAddr", device.xAddr)});

    readQueries(response, u"/Device/Network"_s,
                {
                    query("IPFilter", device.network.ipFilter),
                    query("ZeroConfiguration", device.network.zeroConfiguration),
                    query("IPVersion6", device.network.ipVersion6),
                    query("DynDNS", device.network.dynDns),
                });
    readQueries(response, u"/Device/Network/Extension"_s,
                {query("Dot11Configuration", device.network.dot11Configuration)});

    readQueries(response, u"/Device/System"_s,
                {
                    query("DiscoveryResolve", device.system.discoveryResolve),
                    query("DiscoveryBye", device.system.discoveryBye),
                    query("RemoteDiscovery", device.system.remoteDiscovery),
                    query("SystemBackup", device.system.systemBackup),
                    query("FirmwareUpgrade", device.system.firmwareUpgrade),
                    query("SystemLogging", device.system.systemLogging),
                });
    for (const RecordElement version : elementsAt(response, u"/Device/System/SupportedVersions"_s))
        device.system.supportedVersions.append(versionFrom(version));
    readQueries(response, u"/Device/System/Extension"_s,
                {
                    query("HttpSystemBackup", device.system.httpSystemBackup),
                    query("HttpFirmwareUpgrade", device.system.httpFirmwareUpgrade),
                    query("HttpSystemLogging", device.system.httpSystemLogging),
                    query("HttpSupportInformation", device.system.httpSupportInformation),
                });

    readQueries(response, u"/Extension/DeviceIO"_s,
                {
                    query("XAddr", device.io.xAddr),
                    query("VideoSources", device.io.videoSources),
                    query("VideoOutputs", device.io.videoOutputs),
                    query("AudioSources", device.io.audioSources),
                });
    readQueries(response, u"/Device/IO"_s,
                {
                    query("RelayOutputs", device.io.relayOutputs),
                    query("InputConnectors", device.io.inputConnectors),
                });
    if (device.io.relayOutputs == 0)
        readQueries(response, u"/Extension/DeviceIO"_s, {query("RelayOutputs", device.io.relayOutputs)});
    readQueries(response, u"/Device/IO/Extension"_s, {query("Auxiliary", device.io.auxiliary)});
    if (device.io.auxiliary) {
        for (const RecordElement command : elementsAt(response, u"/Device/IO/Extension/AuxiliaryCommands"_s))
            device.io.auxiliaryCommands.append(command.text());
    }

    readQueries(response, u"/Device/Security/Extension"_s, {query("TLS1.0", device.security.tls10)});
    readQueries(response, u"/Device/Security"_s,
                {
                    query("TLS1.1", device.security.tls11),
                    query("TLS1.2", device.security.tls12),
                    query("OnboardKeyGeneration", device.security.onboardKeyGeneration),
                    query("AccessPolicyConfig", device.security.accessPolicyConfig),
                    query("X.509Token", device.security.x509Token),
                    query("SAMLToken", device.security.samlToken),
                    query("KerberosToken", device.security.kerberosToken),
                    query("RELToken", device.security.relToken),
                });
    readQueries(response, u"/Device/Security/Extension/Extension"_s,
                {
                    query("Dot1X", device.security.dot1x),
                    query("RemoteUserHandling", device.security.remoteUserHandling),
                });
    for (const RecordElement method :
         elementsAt(response, u"/Device/Security/Extension/Extension/SupportedEAPMethod"_s))
        device.security.supportedEapMethods.append(method.toUInt());

    readQueries(response, u"/Events"_s,
                {
                    query("XAddr", events.xAddr),
                    query("WSSubscriptionPolicySupport", events.wsSubscriptionPolicySupport),
                    query("WSPullPointSupport", events.wsPullPointSupport),
                    query("WSPausableSubscriptionManagerInterfaceSupport",
                          events.wsPausableSubscriptionManagerInterfaceSupport),
                });

    readQueries(response, u"/Imaging"_s, {query("XAddr", imaging.xAddr)});

    readQueries(response, u"/Media"_s, {query("XAddr", media.xAddr)});
    readQueries(response, u"/Media/StreamingCapabilities"_s,
                {
                    query("RTPMulticast", media.rtpMulticast),
                    query("RTP_TCP", media.rtpTcp),
                    query("RTP_RTSP_TCP", media.rtpRtspTcp),
                });
    readQueries(response, u"/Media/Extension/ProfileCapabilities"_s,
                {query("MaximumNumberOfProfiles", media.maximumNumberOfProfiles)});

    readQueries(response, u"/PTZ"_s, {query("XAddr", ptz.xAddr)});

    readQueries(response, u"/Extension/Recording"_s,
                {
                    query("XAddr", recording.xAddr),
                    query("DynamicRecordings", recording.dynamicRecordings),
                    query("DynamicTracks", recording.dynamicTracks),
                    query("DeleteData", recording.deleteData),
                    query("ReceiverSource", recording.receiverSource),
                    query("MediaProfileSource", recording.mediaProfileSource),
                    query("MaxStringLength", recording.maxStringLength),
                });

    readQueries(response, u"/Extension/Search"_s,
                {
                    query("XAddr", search.xAddr),
                    query("MetadataSearch", search.metadataSearch),
                });

    readQueries(response, u"/Extension/Replay"_s, {query("XAddr", replay.xAddr)});

    readQueries(response, u"/Extension/AnalyticsDevice"_s,
                {
                    query("XAddr", analyticsDevice.xAddr),
                    query("RuleSupport", analyticsDevice.ruleSupport),
                });

    readQueries(response, u"/Extension/Display"_s,
                {
                    query("XAddr", display.xAddr),
                    query("FixedLayout", display.fixedLayout),
                });
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
