#pragma once

/// \file
/// The paths of the responses by name.

#include <QtCore/QString>

/// The paths of the responses: what list records and XmlResponse take as their root path. Each constant has the name of
/// the element that stands in the Body of the reply.
///
/// \code
/// const vorn::OnvifProfileVector profiles(bytes, vorn::paths::GetProfilesResponse);
/// \endcode
///
/// A path that is mistyped as text leads nowhere, and the list is empty; a name that is mistyped does not compile.
/// There are names for all replies that have a record, and for some that are read by query. A record that is made of
/// bytes alone knows its path, and may begin further below than the response.
namespace vorn::paths {

// Of the device service.
inline constexpr QLatin1StringView GetCapabilitiesResponse("/Envelope/Body/GetCapabilitiesResponse");
inline constexpr QLatin1StringView GetDeviceInformationResponse("/Envelope/Body/GetDeviceInformationResponse");
inline constexpr QLatin1StringView GetHostnameResponse("/Envelope/Body/GetHostnameResponse");
inline constexpr QLatin1StringView GetNetworkDefaultGatewayResponse("/Envelope/Body/GetNetworkDefaultGatewayResponse");
inline constexpr QLatin1StringView GetNetworkInterfacesResponse("/Envelope/Body/GetNetworkInterfacesResponse");
inline constexpr QLatin1StringView GetRelayOutputsResponse("/Envelope/Body/GetRelayOutputsResponse");
inline constexpr QLatin1StringView GetScopesResponse("/Envelope/Body/GetScopesResponse");
inline constexpr QLatin1StringView GetSystemDateAndTimeResponse("/Envelope/Body/GetSystemDateAndTimeResponse");

// Of the media service.
inline constexpr QLatin1StringView CreateProfileResponse("/Envelope/Body/CreateProfileResponse");
inline constexpr QLatin1StringView
    GetAudioDecoderConfigurationsResponse("/Envelope/Body/GetAudioDecoderConfigurationsResponse");
inline constexpr QLatin1StringView
    GetAudioEncoderConfigurationsResponse("/Envelope/Body/GetAudioEncoderConfigurationsResponse");
inline constexpr QLatin1StringView
    GetAudioOutputConfigurationsResponse("/Envelope/Body/GetAudioOutputConfigurationsResponse");
inline constexpr QLatin1StringView
    GetAudioSourceConfigurationsResponse("/Envelope/Body/GetAudioSourceConfigurationsResponse");
inline constexpr QLatin1StringView
    GetCompatibleAudioDecoderConfigurationsResponse("/Envelope/Body/GetCompatibleAudioDecoderConfigurationsResponse");
inline constexpr QLatin1StringView
    GetCompatibleAudioEncoderConfigurationsResponse("/Envelope/Body/GetCompatibleAudioEncoderConfigurationsResponse");
inline constexpr QLatin1StringView
    GetCompatibleAudioOutputConfigurationsResponse("/Envelope/Body/GetCompatibleAudioOutputConfigurationsResponse");
inline constexpr QLatin1StringView
    GetCompatibleAudioSourceConfigurationsResponse("/Envelope/Body/GetCompatibleAudioSourceConfigurationsResponse");
inline constexpr QLatin1StringView
    GetCompatibleMetadataConfigurationsResponse("/Envelope/Body/GetCompatibleMetadataConfigurationsResponse");
inline constexpr QLatin1StringView GetCompatibleVideoAnalyticsConfigurationsResponse(
    "/Envelope/Body/GetCompatibleVideoAnalyticsConfigurationsResponse");
inline constexpr QLatin1StringView
    GetCompatibleVideoEncoderConfigurationsResponse("/Envelope/Body/GetCompatibleVideoEncoderConfigurationsResponse");
inline constexpr QLatin1StringView
    GetCompatibleVideoSourceConfigurationsResponse("/Envelope/Body/GetCompatibleVideoSourceConfigurationsResponse");
inline constexpr QLatin1StringView
    GetMetadataConfigurationsResponse("/Envelope/Body/GetMetadataConfigurationsResponse");
inline constexpr QLatin1StringView GetProfileResponse("/Envelope/Body/GetProfileResponse");
inline constexpr QLatin1StringView GetProfilesResponse("/Envelope/Body/GetProfilesResponse");
inline constexpr QLatin1StringView GetSnapshotUriResponse("/Envelope/Body/GetSnapshotUriResponse");
inline constexpr QLatin1StringView GetStreamUriResponse("/Envelope/Body/GetStreamUriResponse");
inline constexpr QLatin1StringView
    GetVideoAnalyticsConfigurationsResponse("/Envelope/Body/GetVideoAnalyticsConfigurationsResponse");
inline constexpr QLatin1StringView
    GetVideoEncoderConfigurationsResponse("/Envelope/Body/GetVideoEncoderConfigurationsResponse");
inline constexpr QLatin1StringView
    GetVideoSourceConfigurationsResponse("/Envelope/Body/GetVideoSourceConfigurationsResponse");
inline constexpr QLatin1StringView GetVideoSourcesResponse("/Envelope/Body/GetVideoSourcesResponse");

// Of the PTZ service.
inline constexpr QLatin1StringView
    GetCompatibleConfigurationsResponse("/Envelope/Body/GetCompatibleConfigurationsResponse");
inline constexpr QLatin1StringView GetConfigurationsResponse("/Envelope/Body/GetConfigurationsResponse");

// Of any service, and of discovery.
inline constexpr QLatin1StringView Fault("/Envelope/Body/Fault");
inline constexpr QLatin1StringView ProbeMatches("/Envelope/Body/ProbeMatches");

} // namespace vorn::paths
