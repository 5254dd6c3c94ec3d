#include "xml/numbers.h"

#include <vorn/onvif/device.h>

namespace vorn {
namespace {

using namespace Qt::StringLiterals;

/// Reads one field; its type decides how.
class FieldReader
{
public:
    explicit FieldReader(XmlResponse &response)
        : m_response(response)
    {
    }

    void operator()(QString &field, const QString &path) { field = m_response.getText(path); }

    void operator()(bool &field, const QString &path) { field = m_response.getBool(path); }

    void operator()(unsigned int &field, const QString &path) { field = m_response.getUInt(path); }

private:
    XmlResponse &m_response;
};

} // namespace

OnvifCapabilities::OnvifCapabilities() = default;

// The paths are not uniform, and each is meant as it stands. No path leads to the number of audio outputs.
OnvifCapabilities::OnvifCapabilities(const QByteArray &bytes)
    : OnvifResponseStructure(bytes, u"/Envelope/Body/GetCapabilitiesResponse/Capabilities"_s)
{
    FieldReader read(response);

    read(analytics.xAddr, u"/Analytics/XAddr"_s);
    read(analytics.ruleSupport, u"/Analytics/RuleSupport"_s);
    read(analytics.analyticsModuleSupport, u"/Analytics/AnalyticsModuleSupport"_s);

    read(device.xAddr, u"/Device/XAddr"_s);

    read(device.network.ipFilter, u"/Device/Network/IPFilter"_s);
    read(device.network.zeroConfiguration, u"/Device/Network/ZeroConfiguration"_s);
    read(device.network.ipVersion6, u"/Device/Network/IPVersion6"_s);
    read(device.network.dynDns, u"/Device/Network/DynDNS"_s);
    read(device.network.dot11Configuration, u"/Device/Network/Extension/Dot11Configuration"_s);

    read(device.system.discoveryResolve, u"/Device/System/DiscoveryResolve"_s);
    read(device.system.discoveryBye, u"/Device/System/DiscoveryBye"_s);
    read(device.system.remoteDiscovery, u"/Device/System/RemoteDiscovery"_s);
    read(device.system.systemBackup, u"/Device/System/SystemBackup"_s);
    read(device.system.firmwareUpgrade, u"/Device/System/FirmwareUpgrade"_s);
    read(device.system.systemLogging, u"/Device/System/SystemLogging"_s);
    read(device.system.httpSystemBackup, u"/Device/System/Extension/HttpSystemBackup"_s);
    read(device.system.httpFirmwareUpgrade, u"/Device/System/Extension/HttpFirmwareUpgrade"_s);
    read(device.system.httpSystemLogging, u"/Device/System/Extension/HttpSystemLogging"_s);
    read(device.system.httpSupportInformation, u"/Device/System/Extension/HttpSupportInformation"_s);
    const QList<XmlResponseNode> versions = response.getAll(u"/Device/System/SupportedVersions"_s);
    for (const XmlResponseNode &version : versions) {
        device.system.supportedVersions.append({response.getUInt(version, u"/SupportedVersions/Major"_s),
                                                response.getUInt(version, u"/SupportedVersions/Minor"_s)});
    }

    read(device.io.xAddr, u"/Extension/DeviceIO/XAddr"_s);
    read(device.io.videoSources, u"/Extension/DeviceIO/VideoSources"_s);
    read(device.io.videoOutputs, u"/Extension/DeviceIO/VideoOutputs"_s);
    read(device.io.audioSources, u"/Extension/DeviceIO/AudioSources"_s);
    read(device.io.relayOutputs, u"/Device/IO/RelayOutputs"_s);
    if (device.io.relayOutputs == 0)
        read(device.io.relayOutputs, u"/Extension/DeviceIO/RelayOutputs"_s);
    read(device.io.inputConnectors, u"/Device/IO/InputConnectors"_s);
    read(device.io.auxiliary, u"/Device/IO/Extension/Auxiliary"_s);
    if (device.io.auxiliary) {
        const QList<XmlResponseNode> commands = response.getAll(u"/Device/IO/Extension/AuxiliaryCommands"_s);
        for (const XmlResponseNode &command : commands)
            device.io.auxiliaryCommands.append(command.element.text());
    }

    read(device.security.tls10, u"/Device/Security/Extension/TLS1.0"_s);
    read(device.security.tls11, u"/Device/Security/TLS1.1"_s);
    read(device.security.tls12, u"/Device/Security/TLS1.2"_s);
    read(device.security.onboardKeyGeneration, u"/Device/Security/OnboardKeyGeneration"_s);
    read(device.security.accessPolicyConfig, u"/Device/Security/AccessPolicyConfig"_s);
    read(device.security.x509Token, u"/Device/Security/X.509Token"_s);
    read(device.security.samlToken, u"/Device/Security/SAMLToken"_s);
    read(device.security.kerberosToken, u"/Device/Security/KerberosToken"_s);
    read(device.security.relToken, u"/Device/Security/RELToken"_s);
    read(device.security.dot1x, u"/Device/Security/Extension/Extension/Dot1X"_s);
    read(device.security.remoteUserHandling, u"/Device/Security/Extension/Extension/RemoteUserHandling"_s);
    const QList<XmlResponseNode> methods =
        response.getAll(u"/Device/Security/Extension/Extension/SupportedEAPMethod"_s);
    for (const XmlResponseNode &method : methods)
        device.security.supportedEapMethods.append(toUInt(method.element.text()));

    read(events.xAddr, u"/Events/XAddr"_s);
    read(events.wsSubscriptionPolicySupport, u"/Events/WSSubscriptionPolicySupport"_s);
    read(events.wsPullPointSupport, u"/Events/WSPullPointSupport"_s);
    read(events.wsPausableSubscriptionManagerInterfaceSupport,
         u"/Events/WSPausableSubscriptionManagerInterfaceSupport"_s);

    read(imaging.xAddr, u"/Imaging/XAddr"_s);

    read(media.xAddr, u"/Media/XAddr"_s);
    read(media.rtpMulticast, u"/Media/StreamingCapabilities/RTPMulticast"_s);
    read(media.rtpTcp, u"/Media/StreamingCapabilities/RTP_TCP"_s);
    read(media.rtpRtspTcp, u"/Media/StreamingCapabilities/RTP_RTSP_TCP"_s);
    read(media.maximumNumberOfProfiles, u"/Media/Extension/ProfileCapabilities/MaximumNumberOfProfiles"_s);

    read(ptz.xAddr, u"/PTZ/XAddr"_s);

    read(recording.xAddr, u"/Extension/Recording/XAddr"_s);
    read(recording.dynamicRecordings, u"/Extension/Recording/DynamicRecordings"_s);
    read(recording.dynamicTracks, u"/Extension/Recording/DynamicTracks"_s);
    read(recording.deleteData, u"/Extension/Recording/DeleteData"_s);
    read(recording.receiverSource, u"/Extension/Recording/ReceiverSource"_s);
    read(recording.mediaProfileSource, u"/Extension/Recording/MediaProfileSource"_s);
    read(recording.maxStringLength, u"/Extension/Recording/MaxStringLength"_s);

    read(search.xAddr, u"/Extension/Search/XAddr"_s);
    read(search.metadataSearch, u"/Extension/Search/MetadataSearch"_s);

    read(replay.xAddr, u"/Extension/Replay/XAddr"_s);

    read(analyticsDevice.xAddr, u"/Extension/AnalyticsDevice/XAddr"_s);
    read(analyticsDevice.ruleSupport, u"/Extension/AnalyticsDevice/RuleSupport"_s);

    read(display.xAddr, u"/Extension/Display/XAddr"_s);
    read(display.fixedLayout, u"/Extension/Display/FixedLayout"_s);
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
