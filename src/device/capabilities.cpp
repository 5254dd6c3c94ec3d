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
        elementAt(response, {}),
        {
            queriesBelow("Analytics",
                         {
                             query("XAddr", analytics.xAddr),
                             query("RuleSupport", analytics.ruleSupport),
                             query("AnalyticsModuleSupport", analytics.analyticsModuleSupport),
                         }),
            queriesBelow(
                "Device",
                {
                    query("XAddr", device.xAddr),
                    queriesBelow(
                        "Network",
                        {
                            query("IPFilter", device.network.ipFilter),
                            query("ZeroConfiguration", device.network.zeroConfiguration),
                            query("IPVersion6", device.network.ipVersion6),
                            query("DynDNS", device.network.dynDns),
                            queriesBelow("Extension", {query("Dot11Configuration", device.network.dot11Configuration)}),
                        }),
                    queriesBelow(
                        "System",
                        {
                            query("DiscoveryResolve", device.system.discoveryResolve),
                            query("DiscoveryBye", device.system.discoveryBye),
                            query("RemoteDiscovery", device.system.remoteDiscovery),
                            query("SystemBackup", device.system.systemBackup),
                            query("FirmwareUpgrade", device.system.firmwareUpgrade),
                            query("SystemLogging", device.system.systemLogging),
                            queriesBelow("Extension",
                                         {
                                             query("HttpSystemBackup", device.system.httpSystemBackup),
                                             query("HttpFirmwareUpgrade", device.system.httpFirmwareUpgrade),
                                             query("HttpSystemLogging", device.system.httpSystemLogging),
                                             query("HttpSupportInformation", device.system.httpSupportInformation),
                                         }),
                        }),
                    queriesBelow("IO",
                                 {
                                     query("RelayOutputs", device.io.relayOutputs),
                                     query("InputConnectors", device.io.inputConnectors),
                                     queriesBelow("Extension", {query("Auxiliary", device.io.auxiliary)}),
                                 }),
                    queriesBelow("Security",
                                 {
                                     query("TLS1.1", device.security.tls11),
                                     query("TLS1.2", device.security.tls12),
                                     query("OnboardKeyGeneration", device.security.onboardKeyGeneration),
                                     query("AccessPolicyConfig", device.security.accessPolicyConfig),
                                     query("X.509Token", device.security.x509Token),
                                     query("SAMLToken", device.security.samlToken),
                                     query("KerberosToken", device.security.kerberosToken),
                                     query("RELToken", device.security.relToken),
                                     queriesBelow("Extension",
                                                  {
                                                      query("TLS1.0", device.security.tls10),
                                                      queriesBelow("Extension",
                                                                   {
                                                                       query("Dot1X", device.security.dot1x),
                                                                       query("RemoteUserHandling",
                                                                             device.security.remoteUserHandling),
                                                                   }),
                                                  }),
                                 }),
                }),
            queriesBelow("Events",
                         {
                             query("XAddr", events.xAddr),
                             query("WSSubscriptionPolicySupport", events.wsSubscriptionPolicySupport),
                             query("WSPullPointSupport", events.wsPullPointSupport),
                             query("WSPausableSubscriptionManagerInterfaceSupport",
                                   events.wsPausableSubscriptionManagerInterfaceSupport),
                         }),
            queriesBelow("Imaging", {query("XAddr", imaging.xAddr)}),
            queriesBelow("Media",
                         {
                             query("XAddr", media.xAddr),
                             queriesBelow("StreamingCapabilities",
                                          {
                                              query("RTPMulticast", media.rtpMulticast),
                                              query("RTP_TCP", media.rtpTcp),
                                              query("RTP_RTSP_TCP", media.rtpRtspTcp),
                                          }),
                             queriesBelow("Extension", {queriesBelow("ProfileCapabilities",
                                                                     {query("MaximumNumberOfProfiles",
                                                                            media.maximumNumberOfProfiles)})}),
                         }),
            queriesBelow("PTZ", {query("XAddr", ptz.xAddr)}),
            queriesBelow(
                "Extension",
                {
                    queriesBelow("DeviceIO",
                                 {
                                     query("XAddr", device.io.xAddr),
                                     query("VideoSources", device.io.videoSources),
                                     query("VideoOutputs", device.io.videoOutputs),
                                     query("AudioSources", device.io.audioSources),
                                     query("RelayOutputs", relayOutputsOfDeviceIO),
                                 }),
                    queriesBelow("Recording",
                                 {
                                     query("XAddr", recording.xAddr),
                                     query("DynamicRecordings", recording.dynamicRecordings),
                                     query("DynamicTracks", recording.dynamicTracks),
                                     query("DeleteData", recording.deleteData),
                                     query("ReceiverSource", recording.receiverSource),
                                     query("MediaProfileSource", recording.mediaProfileSource),
                                     query("MaxStringLength", recording.maxStringLength),
                                 }),
                    queriesBelow("Search",
                                 {query("XAddr", search.xAddr), query("MetadataSearch", search.metadataSearch)}),
                    queriesBelow("Replay", {query("XAddr", replay.xAddr)}),
                    queriesBelow("AnalyticsDevice", {query("XAddr", analyticsDevice.xAddr),
                                                     query("RuleSupport", analyticsDevice.ruleSupport)}),
                    queriesBelow("Display", {query("XAddr", display.xAddr), query("FixedLayout", display.fixedLayout)}),
                }),
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
