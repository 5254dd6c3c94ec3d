#include "given.h"
#include "jsonparts.h"

namespace client {
namespace {

using Capabilities = vorn::OnvifCapabilities;

// A record takes what the device did not send for false or 0, so the reply is asked whether it did.

QJsonValue sent(const Given &given, const char *path, bool value)
{
    return given.flag(path) ? QJsonValue(value) : QJsonValue();
}

QJsonValue sent(const Given &given, const char *path, unsigned int value)
{
    return orNull(given.number(path, static_cast<int>(value)));
}

QJsonObject jsonOf(const Capabilities::Network &network, const Given &given)
{
    return {{"ipFilter", sent(given, "/IPFilter", network.ipFilter)},
            {"zeroConfiguration", sent(given, "/ZeroConfiguration", network.zeroConfiguration)},
            {"ipVersion6", sent(given, "/IPVersion6", network.ipVersion6)},
            {"dynDns", sent(given, "/DynDNS", network.dynDns)},
            {"dot11Configuration", sent(given, "/Extension/Dot11Configuration", network.dot11Configuration)}};
}

QJsonObject jsonOf(const Capabilities::System &system, const Given &given)
{
    return {
        {"discoveryResolve", sent(given, "/DiscoveryResolve", system.discoveryResolve)},
        {"discoveryBye", sent(given, "/DiscoveryBye", system.discoveryBye)},
        {"remoteDiscovery", sent(given, "/RemoteDiscovery", system.remoteDiscovery)},
        {"systemBackup", sent(given, "/SystemBackup", system.systemBackup)},
        {"firmwareUpgrade", sent(given, "/FirmwareUpgrade", system.firmwareUpgrade)},
        {"systemLogging", sent(given, "/SystemLogging", system.systemLogging)},
        {"httpSystemBackup", sent(given, "/Extension/HttpSystemBackup", system.httpSystemBackup)},
        {"httpFirmwareUpgrade", sent(given, "/Extension/HttpFirmwareUpgrade", system.httpFirmwareUpgrade)},
        {"httpSystemLogging", sent(given, "/Extension/HttpSystemLogging", system.httpSystemLogging)},
        {"httpSupportInformation", sent(given, "/Extension/HttpSupportInformation", system.httpSupportInformation)}};
}

QJsonObject jsonOf(const Capabilities::Security &security, const Given &given)
{
    QJsonArray eapMethods;
    for (const unsigned int method : security.supportedEapMethods)
        eapMethods.append(static_cast<qint64>(method));
    return {{"tls10", sent(given, "/Extension/TLS1.0", security.tls10)},
            {"tls11", sent(given, "/TLS1.1", security.tls11)},
            {"tls12", sent(given, "/TLS1.2", security.tls12)},
            {"onboardKeyGeneration", sent(given, "/OnboardKeyGeneration", security.onboardKeyGeneration)},
            {"accessPolicyConfig", sent(given, "/AccessPolicyConfig", security.accessPolicyConfig)},
            {"x509Token", sent(given, "/X.509Token", security.x509Token)},
            {"samlToken", sent(given, "/SAMLToken", security.samlToken)},
            {"kerberosToken", sent(given, "/KerberosToken", security.kerberosToken)},
            {"relToken", sent(given, "/RELToken", security.relToken)},
            {"dot1x", sent(given, "/Extension/Extension/Dot1X", security.dot1x)},
            {"remoteUserHandling", sent(given, "/Extension/Extension/RemoteUserHandling", security.remoteUserHandling)},
            {"supportedEapMethods", eapMethods}};
}

/// What is counted stands at the device service or at the device I/O service.
QJsonObject jsonOf(const Capabilities::IO &io, const Given &given)
{
    const Given service = given.at("/Extension/DeviceIO");
    const Given device = given.at("/Device/IO");
    const bool hasRelays = device.number("/RelayOutputs") || service.number("/RelayOutputs");
    return {{"videoSources", sent(service, "/VideoSources", io.videoSources)},
            {"videoOutputs", sent(service, "/VideoOutputs", io.videoOutputs)},
            {"audioSources", sent(service, "/AudioSources", io.audioSources)},
            {"relayOutputs", hasRelays ? QJsonValue(static_cast<qint64>(io.relayOutputs)) : QJsonValue()},
            {"inputConnectors", sent(device, "/InputConnectors", io.inputConnectors)},
            {"auxiliary", sent(device, "/Extension/Auxiliary", io.auxiliary)},
            {"auxiliaryCommands", QJsonArray::fromStringList(io.auxiliaryCommands)}};
}

QJsonObject jsonOf(const Capabilities::Events &events, const Given &given)
{
    return {
        {"wsSubscriptionPolicySupport",
         sent(given, "/WSSubscriptionPolicySupport", events.wsSubscriptionPolicySupport)},
        {"wsPullPointSupport", sent(given, "/WSPullPointSupport", events.wsPullPointSupport)},
        {"wsPausableSubscriptionManagerInterfaceSupport", sent(given, "/WSPausableSubscriptionManagerInterfaceSupport",
                                                               events.wsPausableSubscriptionManagerInterfaceSupport)}};
}

QJsonObject jsonOf(const Capabilities::Media &media, const Given &given)
{
    return {{"rtpMulticast", sent(given, "/StreamingCapabilities/RTPMulticast", media.rtpMulticast)},
            {"rtpTcp", sent(given, "/StreamingCapabilities/RTP_TCP", media.rtpTcp)},
            {"rtpRtspTcp", sent(given, "/StreamingCapabilities/RTP_RTSP_TCP", media.rtpRtspTcp)},
            {"maximumNumberOfProfiles",
             sent(given, "/Extension/ProfileCapabilities/MaximumNumberOfProfiles", media.maximumNumberOfProfiles)}};
}

QJsonObject jsonOf(const Capabilities::Recording &recording, const Given &given)
{
    return {{"dynamicRecordings", sent(given, "/DynamicRecordings", recording.dynamicRecordings)},
            {"dynamicTracks", sent(given, "/DynamicTracks", recording.dynamicTracks)},
            {"deleteData", sent(given, "/DeleteData", recording.deleteData)},
            {"receiverSource", sent(given, "/ReceiverSource", recording.receiverSource)},
            {"mediaProfileSource", sent(given, "/MediaProfileSource", recording.mediaProfileSource)},
            {"maxStringLength", sent(given, "/MaxStringLength", recording.maxStringLength)}};
}

QJsonObject jsonOf(const Capabilities::Analytics &analytics, const Given &given)
{
    return {{"ruleSupport", sent(given, "/RuleSupport", analytics.ruleSupport)},
            {"analyticsModuleSupport", sent(given, "/AnalyticsModuleSupport", analytics.analyticsModuleSupport)}};
}

} // namespace

QJsonObject featuresJson(const Capabilities &capabilities)
{
    const Given given(capabilities.response.view(""));
    const QJsonValue metadataSearch =
        sent(given, "/Extension/Search/MetadataSearch", capabilities.search.metadataSearch);
    const QJsonValue ruleSupport =
        sent(given, "/Extension/AnalyticsDevice/RuleSupport", capabilities.analyticsDevice.ruleSupport);
    const QJsonValue fixedLayout = sent(given, "/Extension/Display/FixedLayout", capabilities.display.fixedLayout);
    return {{"network", jsonOf(capabilities.device.network, given.at("/Device/Network"))},
            {"system", jsonOf(capabilities.device.system, given.at("/Device/System"))},
            {"io", jsonOf(capabilities.device.io, given)},
            {"security", jsonOf(capabilities.device.security, given.at("/Device/Security"))},
            {"media", jsonOf(capabilities.media, given.at("/Media"))},
            {"events", jsonOf(capabilities.events, given.at("/Events"))},
            {"analytics", jsonOf(capabilities.analytics, given.at("/Analytics"))},
            {"recording", jsonOf(capabilities.recording, given.at("/Extension/Recording"))},
            {"search", QJsonObject{{"metadataSearch", metadataSearch}}},
            {"analyticsDevice", QJsonObject{{"ruleSupport", ruleSupport}}},
            {"display", QJsonObject{{"fixedLayout", fixedLayout}}}};
}

} // namespace client
