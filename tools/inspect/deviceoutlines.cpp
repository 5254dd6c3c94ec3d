#include "outlines.h"

namespace inspect {
namespace {

Outline groupOutline(const vorn::OnvifCapabilities::Network &network)
{
    return Outline::Fields{
        {"ipFilter", network.ipFilter},
        {"zeroConfiguration", network.zeroConfiguration},
        {"ipVersion6", network.ipVersion6},
        {"dynDns", network.dynDns},
        {"dot11Configuration", network.dot11Configuration},
    };
}

Outline groupOutline(const vorn::OnvifCapabilities::System &system)
{
    Outline::List versions;
    for (const vorn::OnvifCapabilities::SupportedVersion &version : system.supportedVersions)
        versions.push_back(Outline::Fields{{"major", version.major}, {"minor", version.minor}});
    return Outline::Fields{
        {"discoveryResolve", system.discoveryResolve},
        {"discoveryBye", system.discoveryBye},
        {"remoteDiscovery", system.remoteDiscovery},
        {"supportedVersions", versions},
        {"systemBackup", system.systemBackup},
        {"firmwareUpgrade", system.firmwareUpgrade},
        {"systemLogging", system.systemLogging},
        {"httpSystemBackup", system.httpSystemBackup},
        {"httpFirmwareUpgrade", system.httpFirmwareUpgrade},
        {"httpSystemLogging", system.httpSystemLogging},
        {"httpSupportInformation", system.httpSupportInformation},
    };
}

Outline groupOutline(const vorn::OnvifCapabilities::IO &io)
{
    return Outline::Fields{
        {"xAddr", io.xAddr},
        {"videoSources", io.videoSources},
        {"videoOutputs", io.videoOutputs},
        {"audioSources", io.audioSources},
        {"audioOutputs", io.audioOutputs},
        {"relayOutputs", io.relayOutputs},
        {"inputConnectors", io.inputConnectors},
        {"auxiliary", io.auxiliary},
        {"auxiliaryCommands", outlineOfValues(io.auxiliaryCommands)},
    };
}

Outline groupOutline(const vorn::OnvifCapabilities::Security &security)
{
    return Outline::Fields{
        {"tls10", security.tls10},
        {"tls11", security.tls11},
        {"tls12", security.tls12},
        {"onboardKeyGeneration", security.onboardKeyGeneration},
        {"accessPolicyConfig", security.accessPolicyConfig},
        {"x509Token", security.x509Token},
        {"samlToken", security.samlToken},
        {"kerberosToken", security.kerberosToken},
        {"relToken", security.relToken},
        {"dot1x", security.dot1x},
        {"supportedEapMethods", outlineOfValues(security.supportedEapMethods)},
        {"remoteUserHandling", security.remoteUserHandling},
    };
}

Outline groupOutline(const vorn::OnvifCapabilities::Device &device)
{
    return Outline::Fields{
        {"xAddr", device.xAddr},
        {"network", groupOutline(device.network)},
        {"system", groupOutline(device.system)},
        {"io", groupOutline(device.io)},
        {"security", groupOutline(device.security)},
    };
}

const char *nameOf(vorn::OnvifScope::Type type)
{
    switch (type) {
    case vorn::OnvifScope::Unknown:
        return "Unknown";
    case vorn::OnvifScope::Fixed:
        return "Fixed";
    case vorn::OnvifScope::Configurable:
        return "Configurable";
    case vorn::OnvifScope::Custom:
        return "Custom";
    }
    return "";
}

} // namespace

Outline outline(const vorn::OnvifDeviceInformation &record)
{
    return Outline::Fields{
        {"manufacturer", record.manufacturer},       {"model", record.model},
        {"firmwareVersion", record.firmwareVersion}, {"serialNumber", record.serialNumber},
        {"hardwareId", record.hardwareId},
    };
}

Outline outline(const vorn::OnvifCapabilities &record)
{
    const Outline::Fields analytics{
        {"xAddr", record.analytics.xAddr},
        {"ruleSupport", record.analytics.ruleSupport},
        {"analyticsModuleSupport", record.analytics.analyticsModuleSupport},
    };
    const Outline::Fields events{
        {"xAddr", record.events.xAddr},
        {"wsSubscriptionPolicySupport", record.events.wsSubscriptionPolicySupport},
        {"wsPullPointSupport", record.events.wsPullPointSupport},
        {"wsPausableSubscriptionManagerInterfaceSupport", record.events.wsPausableSubscriptionManagerInterfaceSupport},
    };
    const Outline::Fields media{
        {"xAddr", record.media.xAddr},
        {"rtpMulticast", record.media.rtpMulticast},
        {"rtpTcp", record.media.rtpTcp},
        {"rtpRtspTcp", record.media.rtpRtspTcp},
        {"maximumNumberOfProfiles", record.media.maximumNumberOfProfiles},
    };
    const Outline::Fields recording{
        {"xAddr", record.recording.xAddr},
        {"dynamicRecordings", record.recording.dynamicRecordings},
        {"dynamicTracks", record.recording.dynamicTracks},
        {"deleteData", record.recording.deleteData},
        {"receiverSource", record.recording.receiverSource},
        {"mediaProfileSource", record.recording.mediaProfileSource},
        {"maxStringLength", record.recording.maxStringLength},
    };
    return Outline::Fields{
        {"analytics", analytics},
        {"device", groupOutline(record.device)},
        {"events", events},
        {"imaging", Outline::Fields{{"xAddr", record.imaging.xAddr}}},
        {"media", media},
        {"ptz", Outline::Fields{{"xAddr", record.ptz.xAddr}}},
        {"recording", recording},
        {"search", Outline::Fields{{"xAddr", record.search.xAddr}, {"metadataSearch", record.search.metadataSearch}}},
        {"replay", Outline::Fields{{"xAddr", record.replay.xAddr}}},
        {"analyticsDevice",
         Outline::Fields{{"xAddr", record.analyticsDevice.xAddr}, {"ruleSupport", record.analyticsDevice.ruleSupport}}},
        {"display", Outline::Fields{{"xAddr", record.display.xAddr}, {"fixedLayout", record.display.fixedLayout}}},
    };
}

Outline outline(const vorn::OnvifScope &record)
{
    return Outline::Fields{
        {"type", QString::fromLatin1(nameOf(record.type))},
        {"uri", record.uri},
        {"key", record.key},
        {"value", record.value},
    };
}

Outline outline(const vorn::OnvifScopeMap &record)
{
    return outlineOfRecords(record);
}

Outline outline(const vorn::OnvifCamera &record)
{
    Outline::Fields scopes;
    for (const char *key : {"type", "name", "location", "hardware"})
        scopes.emplace_back(key, outlineOfValues(record.scopes.values(QLatin1String(key))));
    return Outline::Fields{
        {"addresses", outlineOfValues(record.addresses)},
        {"linkLocalAddresses", outlineOfValues(record.linkLocalAddresses)},
        {"valid", record.valid},
        {"scopes", scopes},
        {"index", record.index},
    };
}

} // namespace inspect
