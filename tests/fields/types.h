#pragma once

#include <vorn/onvif/fields.h>

namespace test {

template <typename Type>
struct TypeOf
{
    using type = Type;
};

/// Calls \a function with a TypeOf for each record.
template <typename Function>
void forEachRecord(const Function &function)
{
    using namespace vorn;
    const auto call = [&](auto... types) { (function(types), ...); };
    call(TypeOf<OnvifDeviceInformation>(), TypeOf<OnvifCapabilities>(), TypeOf<OnvifCapabilities::Analytics>(),
         TypeOf<OnvifCapabilities::Network>(), TypeOf<OnvifCapabilities::SupportedVersion>(),
         TypeOf<OnvifCapabilities::System>(), TypeOf<OnvifCapabilities::IO>(), TypeOf<OnvifCapabilities::Security>(),
         TypeOf<OnvifCapabilities::Device>(), TypeOf<OnvifCapabilities::Events>(), TypeOf<OnvifCapabilities::Imaging>(),
         TypeOf<OnvifCapabilities::Media>(), TypeOf<OnvifCapabilities::PTZ>(), TypeOf<OnvifCapabilities::Recording>(),
         TypeOf<OnvifCapabilities::Search>(), TypeOf<OnvifCapabilities::Replay>(),
         TypeOf<OnvifCapabilities::AnalyticsDevice>(), TypeOf<OnvifCapabilities::Display>());
    call(TypeOf<OnvifScope>(), TypeOf<OnvifCamera>(), TypeOf<OnvifFault>());
    call(TypeOf<OnvifAnalyticsModule>(), TypeOf<OnvifRule>(), TypeOf<OnvifVideoSourceConfiguration>(),
         TypeOf<OnvifVideoEncoderConfiguration>(), TypeOf<OnvifAudioSourceConfiguration>(),
         TypeOf<OnvifAudioOutputConfiguration>(), TypeOf<OnvifAudioEncoderConfiguration>(),
         TypeOf<OnvifAudioDecoderConfiguration>(), TypeOf<OnvifMetadataConfiguration>(), TypeOf<OnvifPtzRange>(),
         TypeOf<OnvifPtzConfiguration>(), TypeOf<OnvifVideoAnalyticsConfiguration>(), TypeOf<OnvifProfile>());
    call(TypeOf<OnvifNetworkInterface>(), TypeOf<OnvifNetworkInterface::LinkSettings>(),
         TypeOf<OnvifNetworkInterface::PrefixedAddress>(), TypeOf<OnvifNetworkInterface::IPv4>(),
         TypeOf<OnvifNetworkInterface::IPv4::Configuration>(), TypeOf<OnvifNetworkInterface::IPv6>(),
         TypeOf<OnvifNetworkInterface::IPv6::Configuration>(), TypeOf<OnvifNetworkGateway>(),
         TypeOf<OnvifRelayOutput>());
}

} // namespace test
