#pragma once

/// \file
/// The fields of the records by their names, for functions that treat all records alike: one that writes JSON, a row of
/// a database or a table in a window.

#include <vorn/onvif/analytics.h>
#include <vorn/onvif/configurations.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/enumerators.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <QtCore/QList>
#include <QtCore/QMultiMap>
#include <QtCore/QString>

#include <type_traits>

/// \cond
namespace vorn::detail {

using namespace Qt::StringLiterals;

/// The name of a record, and its public fields in the order of their declaration. The fields of several records of one
/// kind are visited together.
template <typename Record>
struct Fields;

template <>
struct Fields<OnvifDeviceInformation>
{
    static constexpr auto name = "OnvifDeviceInformation"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("manufacturer"_L1, records.manufacturer...);
        visitor("model"_L1, records.model...);
        visitor("firmwareVersion"_L1, records.firmwareVersion...);
        visitor("serialNumber"_L1, records.serialNumber...);
        visitor("hardwareId"_L1, records.hardwareId...);
    }
};

template <>
struct Fields<OnvifCapabilities>
{
    static constexpr auto name = "OnvifCapabilities"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("analytics"_L1, records.analytics...);
        visitor("device"_L1, records.device...);
        visitor("events"_L1, records.events...);
        visitor("imaging"_L1, records.imaging...);
        visitor("media"_L1, records.media...);
        visitor("ptz"_L1, records.ptz...);
        visitor("recording"_L1, records.recording...);
        visitor("search"_L1, records.search...);
        visitor("replay"_L1, records.replay...);
        visitor("analyticsDevice"_L1, records.analyticsDevice...);
        visitor("display"_L1, records.display...);
    }
};

template <>
struct Fields<OnvifCapabilities::Analytics>
{
    static constexpr auto name = "OnvifCapabilities::Analytics"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("ruleSupport"_L1, records.ruleSupport...);
        visitor("analyticsModuleSupport"_L1, records.analyticsModuleSupport...);
    }
};

template <>
struct Fields<OnvifCapabilities::Network>
{
    static constexpr auto name = "OnvifCapabilities::Network"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("ipFilter"_L1, records.ipFilter...);
        visitor("zeroConfiguration"_L1, records.zeroConfiguration...);
        visitor("ipVersion6"_L1, records.ipVersion6...);
        visitor("dynDns"_L1, records.dynDns...);
        visitor("dot11Configuration"_L1, records.dot11Configuration...);
    }
};

template <>
struct Fields<OnvifCapabilities::SupportedVersion>
{
    static constexpr auto name = "OnvifCapabilities::SupportedVersion"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("major"_L1, records.major...);
        visitor("minor"_L1, records.minor...);
    }
};

template <>
struct Fields<OnvifCapabilities::System>
{
    static constexpr auto name = "OnvifCapabilities::System"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("discoveryResolve"_L1, records.discoveryResolve...);
        visitor("discoveryBye"_L1, records.discoveryBye...);
        visitor("remoteDiscovery"_L1, records.remoteDiscovery...);
        visitor("supportedVersions"_L1, records.supportedVersions...);
        visitor("systemBackup"_L1, records.systemBackup...);
        visitor("firmwareUpgrade"_L1, records.firmwareUpgrade...);
        visitor("systemLogging"_L1, records.systemLogging...);
        visitor("httpSystemBackup"_L1, records.httpSystemBackup...);
        visitor("httpFirmwareUpgrade"_L1, records.httpFirmwareUpgrade...);
        visitor("httpSystemLogging"_L1, records.httpSystemLogging...);
        visitor("httpSupportInformation"_L1, records.httpSupportInformation...);
    }
};

template <>
struct Fields<OnvifCapabilities::IO>
{
    static constexpr auto name = "OnvifCapabilities::IO"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("videoSources"_L1, records.videoSources...);
        visitor("videoOutputs"_L1, records.videoOutputs...);
        visitor("audioSources"_L1, records.audioSources...);
        visitor("audioOutputs"_L1, records.audioOutputs...);
        visitor("relayOutputs"_L1, records.relayOutputs...);
        visitor("inputConnectors"_L1, records.inputConnectors...);
        visitor("auxiliary"_L1, records.auxiliary...);
        visitor("auxiliaryCommands"_L1, records.auxiliaryCommands...);
    }
};

template <>
struct Fields<OnvifCapabilities::Security>
{
    static constexpr auto name = "OnvifCapabilities::Security"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("tls10"_L1, records.tls10...);
        visitor("tls11"_L1, records.tls11...);
        visitor("tls12"_L1, records.tls12...);
        visitor("onboardKeyGeneration"_L1, records.onboardKeyGeneration...);
        visitor("accessPolicyConfig"_L1, records.accessPolicyConfig...);
        visitor("x509Token"_L1, records.x509Token...);
        visitor("samlToken"_L1, records.samlToken...);
        visitor("kerberosToken"_L1, records.kerberosToken...);
        visitor("relToken"_L1, records.relToken...);
        visitor("dot1x"_L1, records.dot1x...);
        visitor("supportedEapMethods"_L1, records.supportedEapMethods...);
        visitor("remoteUserHandling"_L1, records.remoteUserHandling...);
    }
};

template <>
struct Fields<OnvifCapabilities::Device>
{
    static constexpr auto name = "OnvifCapabilities::Device"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("network"_L1, records.network...);
        visitor("system"_L1, records.system...);
        visitor("io"_L1, records.io...);
        visitor("security"_L1, records.security...);
    }
};

template <>
struct Fields<OnvifCapabilities::Events>
{
    static constexpr auto name = "OnvifCapabilities::Events"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("wsSubscriptionPolicySupport"_L1, records.wsSubscriptionPolicySupport...);
        visitor("wsPullPointSupport"_L1, records.wsPullPointSupport...);
        visitor("wsPausableSubscriptionManagerInterfaceSupport"_L1,
                records.wsPausableSubscriptionManagerInterfaceSupport...);
    }
};

template <>
struct Fields<OnvifCapabilities::Imaging>
{
    static constexpr auto name = "OnvifCapabilities::Imaging"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
    }
};

template <>
struct Fields<OnvifCapabilities::Media>
{
    static constexpr auto name = "OnvifCapabilities::Media"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("rtpMulticast"_L1, records.rtpMulticast...);
        visitor("rtpTcp"_L1, records.rtpTcp...);
        visitor("rtpRtspTcp"_L1, records.rtpRtspTcp...);
        visitor("maximumNumberOfProfiles"_L1, records.maximumNumberOfProfiles...);
    }
};

template <>
struct Fields<OnvifCapabilities::PTZ>
{
    static constexpr auto name = "OnvifCapabilities::PTZ"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
    }
};

template <>
struct Fields<OnvifCapabilities::Recording>
{
    static constexpr auto name = "OnvifCapabilities::Recording"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("dynamicRecordings"_L1, records.dynamicRecordings...);
        visitor("dynamicTracks"_L1, records.dynamicTracks...);
        visitor("deleteData"_L1, records.deleteData...);
        visitor("receiverSource"_L1, records.receiverSource...);
        visitor("mediaProfileSource"_L1, records.mediaProfileSource...);
        visitor("maxStringLength"_L1, records.maxStringLength...);
    }
};

template <>
struct Fields<OnvifCapabilities::Search>
{
    static constexpr auto name = "OnvifCapabilities::Search"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("metadataSearch"_L1, records.metadataSearch...);
    }
};

template <>
struct Fields<OnvifCapabilities::Replay>
{
    static constexpr auto name = "OnvifCapabilities::Replay"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
    }
};

template <>
struct Fields<OnvifCapabilities::AnalyticsDevice>
{
    static constexpr auto name = "OnvifCapabilities::AnalyticsDevice"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("ruleSupport"_L1, records.ruleSupport...);
    }
};

template <>
struct Fields<OnvifCapabilities::Display>
{
    static constexpr auto name = "OnvifCapabilities::Display"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("xAddr"_L1, records.xAddr...);
        visitor("fixedLayout"_L1, records.fixedLayout...);
    }
};

template <>
struct Fields<OnvifScope>
{
    static constexpr auto name = "OnvifScope"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("type"_L1, records.type...);
        visitor("uri"_L1, records.uri...);
        visitor("key"_L1, records.key...);
        visitor("value"_L1, records.value...);
    }
};

template <>
struct Fields<OnvifCamera>
{
    static constexpr auto name = "OnvifCamera"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("addresses"_L1, records.addresses...);
        visitor("linkLocalAddresses"_L1, records.linkLocalAddresses...);
        visitor("valid"_L1, records.valid...);
        visitor("scopes"_L1, records.scopes...);
        visitor("capture"_L1, records.capture...);
        visitor("index"_L1, records.index...);
    }
};

template <>
struct Fields<OnvifFault>
{
    static constexpr auto name = "OnvifFault"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("faultType"_L1, records.faultType...);
        visitor("subcodeType"_L1, records.subcodeType...);
        visitor("specificType"_L1, records.specificType...);
        visitor("action"_L1, records.action...);
    }
};

template <>
struct Fields<OnvifAnalyticsModule>
{
    static constexpr auto name = "OnvifAnalyticsModule"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("type"_L1, records.type...);
    }
};

template <>
struct Fields<OnvifRule>
{
    static constexpr auto name = "OnvifRule"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("type"_L1, records.type...);
    }
};

template <>
struct Fields<OnvifVideoSourceConfiguration>
{
    static constexpr auto name = "OnvifVideoSourceConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("useCount"_L1, records.useCount...);
        visitor("sourceToken"_L1, records.sourceToken...);
        visitor("bounds"_L1, records.bounds...);
    }
};

template <>
struct Fields<OnvifVideoEncoderConfiguration>
{
    static constexpr auto name = "OnvifVideoEncoderConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("encoding"_L1, records.encoding...);
        visitor("useCount"_L1, records.useCount...);
        visitor("resolution"_L1, records.resolution...);
        visitor("quality"_L1, records.quality...);
        visitor("frameRateLimit"_L1, records.frameRateLimit...);
        visitor("encodingInterval"_L1, records.encodingInterval...);
        visitor("bitrateLimit"_L1, records.bitrateLimit...);
        visitor("sessionTimeout"_L1, records.sessionTimeout...);
    }
};

template <>
struct Fields<OnvifAudioSourceConfiguration>
{
    static constexpr auto name = "OnvifAudioSourceConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("useCount"_L1, records.useCount...);
        visitor("sourceToken"_L1, records.sourceToken...);
    }
};

template <>
struct Fields<OnvifAudioOutputConfiguration>
{
    static constexpr auto name = "OnvifAudioOutputConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("useCount"_L1, records.useCount...);
        visitor("outputToken"_L1, records.outputToken...);
        visitor("outputLevel"_L1, records.outputLevel...);
        visitor("sendPrimacy"_L1, records.sendPrimacy...);
    }
};

template <>
struct Fields<OnvifAudioEncoderConfiguration>
{
    static constexpr auto name = "OnvifAudioEncoderConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("encoding"_L1, records.encoding...);
        visitor("useCount"_L1, records.useCount...);
        visitor("bitrate"_L1, records.bitrate...);
        visitor("sampleRate"_L1, records.sampleRate...);
        visitor("sessionTimeout"_L1, records.sessionTimeout...);
    }
};

template <>
struct Fields<OnvifAudioDecoderConfiguration>
{
    static constexpr auto name = "OnvifAudioDecoderConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("useCount"_L1, records.useCount...);
    }
};

template <>
struct Fields<OnvifMetadataConfiguration>
{
    static constexpr auto name = "OnvifMetadataConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("useCount"_L1, records.useCount...);
        visitor("analytics"_L1, records.analytics...);
        visitor("sessionTimeout"_L1, records.sessionTimeout...);
        visitor("ptzStatus"_L1, records.ptzStatus...);
        visitor("ptzPosition"_L1, records.ptzPosition...);
        visitor("eventsFilter"_L1, records.eventsFilter...);
        visitor("eventsSubscriptionPolicy"_L1, records.eventsSubscriptionPolicy...);
        visitor("analyticsEngineConfiguration"_L1, records.analyticsEngineConfiguration...);
    }
};

template <>
struct Fields<OnvifPtzRange>
{
    static constexpr auto name = "OnvifPtzRange"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("min"_L1, records.min...);
        visitor("max"_L1, records.max...);
    }
};

template <>
struct Fields<OnvifPtzConfiguration>
{
    static constexpr auto name = "OnvifPtzConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("defaultPtzTimeout"_L1, records.defaultPtzTimeout...);
        visitor("useCount"_L1, records.useCount...);
        visitor("nodeToken"_L1, records.nodeToken...);
        visitor("panTiltXRange"_L1, records.panTiltXRange...);
        visitor("panTiltYRange"_L1, records.panTiltYRange...);
        visitor("zoomXRange"_L1, records.zoomXRange...);
    }
};

template <>
struct Fields<OnvifVideoAnalyticsConfiguration>
{
    static constexpr auto name = "OnvifVideoAnalyticsConfiguration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("useCount"_L1, records.useCount...);
        visitor("analyticsEngineConfiguration"_L1, records.analyticsEngineConfiguration...);
        visitor("ruleEngineConfiguration"_L1, records.ruleEngineConfiguration...);
    }
};

template <>
struct Fields<OnvifProfile>
{
    static constexpr auto name = "OnvifProfile"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("fixed"_L1, records.fixed...);
        visitor("videoSource"_L1, records.videoSource...);
        visitor("audioSource"_L1, records.audioSource...);
        visitor("videoEncoder"_L1, records.videoEncoder...);
        visitor("audioEncoder"_L1, records.audioEncoder...);
        visitor("videoAnalytics"_L1, records.videoAnalytics...);
        visitor("ptz"_L1, records.ptz...);
        visitor("metadata"_L1, records.metadata...);
        visitor("audioOutput"_L1, records.audioOutput...);
        visitor("audioDecoder"_L1, records.audioDecoder...);
    }
};

template <>
struct Fields<OnvifNetworkInterface>
{
    static constexpr auto name = "OnvifNetworkInterface"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("name"_L1, records.name...);
        visitor("token"_L1, records.token...);
        visitor("enabled"_L1, records.enabled...);
        visitor("hwAddress"_L1, records.hwAddress...);
        visitor("mtu"_L1, records.mtu...);
        visitor("interfaceType"_L1, records.interfaceType...);
        visitor("adminSettings"_L1, records.adminSettings...);
        visitor("operSettings"_L1, records.operSettings...);
        visitor("ipv4"_L1, records.ipv4...);
        visitor("ipv6"_L1, records.ipv6...);
    }
};

template <>
struct Fields<OnvifNetworkInterface::LinkSettings>
{
    static constexpr auto name = "OnvifNetworkInterface::LinkSettings"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("present"_L1, records.present...);
        visitor("autoNegotiation"_L1, records.autoNegotiation...);
        visitor("speed"_L1, records.speed...);
        visitor("duplex"_L1, records.duplex...);
    }
};

template <>
struct Fields<OnvifNetworkInterface::PrefixedAddress>
{
    static constexpr auto name = "OnvifNetworkInterface::PrefixedAddress"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("address"_L1, records.address...);
        visitor("prefixLength"_L1, records.prefixLength...);
    }
};

template <>
struct Fields<OnvifNetworkInterface::IPv4>
{
    static constexpr auto name = "OnvifNetworkInterface::IPv4"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("enabled"_L1, records.enabled...);
        visitor("config"_L1, records.config...);
    }
};

template <>
struct Fields<OnvifNetworkInterface::IPv4::Configuration>
{
    static constexpr auto name = "OnvifNetworkInterface::IPv4::Configuration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("manual"_L1, records.manual...);
        visitor("linkLocal"_L1, records.linkLocal...);
        visitor("fromDHCP"_L1, records.fromDHCP...);
        visitor("dhcp"_L1, records.dhcp...);
    }
};

template <>
struct Fields<OnvifNetworkInterface::IPv6>
{
    static constexpr auto name = "OnvifNetworkInterface::IPv6"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("enabled"_L1, records.enabled...);
        visitor("config"_L1, records.config...);
    }
};

template <>
struct Fields<OnvifNetworkInterface::IPv6::Configuration>
{
    static constexpr auto name = "OnvifNetworkInterface::IPv6::Configuration"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("acceptRouterAdvert"_L1, records.acceptRouterAdvert...);
        visitor("dhcp"_L1, records.dhcp...);
        visitor("manual"_L1, records.manual...);
        visitor("linkLocal"_L1, records.linkLocal...);
        visitor("fromDHCP"_L1, records.fromDHCP...);
        visitor("fromRA"_L1, records.fromRA...);
    }
};

template <>
struct Fields<OnvifNetworkGateway>
{
    static constexpr auto name = "OnvifNetworkGateway"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("ipv4Address"_L1, records.ipv4Address...);
        visitor("ipv6Address"_L1, records.ipv6Address...);
    }
};

template <>
struct Fields<OnvifRelayOutput>
{
    static constexpr auto name = "OnvifRelayOutput"_L1;

    template <typename Visitor, typename... Records>
    static constexpr void visit(Visitor &visitor, Records &...records)
    {
        visitor("token"_L1, records.token...);
        visitor("mode"_L1, records.mode...);
        visitor("delayTime"_L1, records.delayTime...);
        visitor("idleState"_L1, records.idleState...);
    }
};

template <typename Type, typename = void>
inline constexpr bool hasFields = false;

template <typename Type>
inline constexpr bool hasFields<Type, decltype(void(Fields<Type>::name))> = true;

template <typename Element>
std::true_type testList(const QList<Element> *);
std::false_type testList(...);

template <typename Key, typename Value>
std::true_type testMap(const QMultiMap<Key, Value> *);
std::false_type testMap(...);

} // namespace vorn::detail

/// \endcond

namespace vorn {

/// Whether \a Type is a record, or a struct that is a field of one: whether visitFields() takes it.
template <typename Type>
inline constexpr bool hasFields = detail::hasFields<Type>;

/// Whether \a Type is a QList or derived from one, as the lists of records are.
template <typename Type>
inline constexpr bool isList = decltype(detail::testList(static_cast<const Type *>(nullptr)))::value;

/// Whether \a Type is a QMultiMap or derived from one, as OnvifScopeMap is.
template <typename Type>
inline constexpr bool isMap = decltype(detail::testMap(static_cast<const Type *>(nullptr)))::value;

/// The name of \a Record, such as "OnvifProfile" or "OnvifNetworkInterface::IPv4".
template <typename Record>
inline constexpr QLatin1StringView recordName = detail::Fields<Record>::name;

/// Calls \a visitor with the name of each public field of \a record and the field, in the order of their declaration.
///
/// A field of a record that is not const can be changed. Fields that are records or lists are handed over as they are:
/// the visitor goes on into them, as hasFields and isList say. With several records of one type each call gets the
/// field of each.
///
/// \code
/// vorn::visitFields([&](QLatin1StringView name, const auto &field) { debug << name << field; }, record);
/// vorn::visitFields([&](QLatin1StringView name, const auto &was, const auto &is) { ... }, before, now);
/// \endcode
///
/// The reply that a record keeps, its `response` and `xml`, is not among the fields: it is what they are read from.
template <typename Visitor, typename Record, typename... Records>
constexpr void visitFields(Visitor &&visitor, Record &&record, Records &&...records)
{
    using Type = std::remove_cv_t<std::remove_reference_t<Record>>;
    static_assert(hasFields<Type>, "visitFields() takes records; the elements of a list are for a loop.");
    static_assert((std::is_same_v<Type, std::remove_cv_t<std::remove_reference_t<Records>>> && ...),
                  "The records are of several types.");
    detail::Fields<Type>::visit(visitor, record, records...);
}

} // namespace vorn
