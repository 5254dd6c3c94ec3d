#include "readers.h"

#include <vorn/onvif/configurations.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

namespace hostile {
namespace {

using namespace Qt::StringLiterals;

void query(const QByteArray &reply)
{
    const QString path = u"/Envelope"_s;
    vorn::XmlResponse response(reply, QString());
    (void)response.getAll(path); // before there are other nodes, so that memory is that for one of each
    const vorn::XmlResponseNode node = response.get(path);
    (void)node.element.text();
    (void)response.getText(node, path);
    (void)response.getText(path);
    (void)response.getUInt(path);
    (void)response.getBool(path);
    (void)response.getAttribute(u"token"_s, path);
}

void readFault(const QByteArray &reply)
{
    (void)vorn::OnvifFault(reply, "DeleteUsers", 1).toString();
    (void)vorn::OnvifFault(reply, vorn::OnvifFault::Sender, vorn::OnvifFault::NoSubcode, vorn::OnvifFault::NoSpecific,
                           1)
        .toString();
}

template <typename Record>
Reader reader(const char *name)
{
    return {name, [](const QByteArray &reply) { (void)Record(reply); }};
}

template <typename Record>
Reader reader(const char *name, const char *response)
{
    return {name, [response](const QByteArray &reply) { (void)Record(reply, "/Envelope/Body/"_L1 + response); }};
}

} // namespace

const std::vector<Reader> &readers()
{
    using namespace vorn;
    static const std::vector<Reader> all{
        {"XmlResponse", query},
        {"OnvifFault", readFault},
        reader<OnvifDeviceInformation>("OnvifDeviceInformation"),
        reader<OnvifCapabilities>("OnvifCapabilities"),
        reader<OnvifScopeMap>("OnvifScopeMap"),
        reader<OnvifCamera>("OnvifCamera"),
        reader<OnvifNetworkGateway>("OnvifNetworkGateway"),
        reader<OnvifNetworkInterfaceVector>("OnvifNetworkInterfaceVector", "GetNetworkInterfacesResponse"),
        reader<OnvifRelayOutputVector>("OnvifRelayOutputVector", "GetRelayOutputsResponse"),
        reader<OnvifProfile>("OnvifProfile", "GetProfileResponse"),
        reader<OnvifProfileVector>("OnvifProfileVector", "GetProfilesResponse"),
        // One path for all of these, as each looks for its elements below the path that it is given.
        reader<OnvifVideoSourceConfigurationVector>("OnvifVideoSourceConfigurationVector", "GetConfigurationsResponse"),
        reader<OnvifVideoEncoderConfigurationVector>("OnvifVideoEncoderConfigurationVector",
                                                     "GetConfigurationsResponse"),
        reader<OnvifAudioSourceConfigurationVector>("OnvifAudioSourceConfigurationVector", "GetConfigurationsResponse"),
        reader<OnvifAudioOutputConfigurationVector>("OnvifAudioOutputConfigurationVector", "GetConfigurationsResponse"),
        reader<OnvifAudioEncoderConfigurationVector>("OnvifAudioEncoderConfigurationVector",
                                                     "GetConfigurationsResponse"),
        reader<OnvifAudioDecoderConfigurationVector>("OnvifAudioDecoderConfigurationVector",
                                                     "GetConfigurationsResponse"),
        reader<OnvifVideoAnalyticsConfigurationVector>("OnvifVideoAnalyticsConfigurationVector",
                                                       "GetConfigurationsResponse"),
        reader<OnvifPtzConfigurationVector>("OnvifPtzConfigurationVector", "GetConfigurationsResponse"),
        reader<OnvifCompatibleVideoSourceConfigurationVector>("OnvifCompatibleVideoSourceConfigurationVector"),
        reader<OnvifCompatibleVideoEncoderConfigurationVector>("OnvifCompatibleVideoEncoderConfigurationVector"),
        reader<OnvifCompatibleAudioSourceConfigurationVector>("OnvifCompatibleAudioSourceConfigurationVector"),
        reader<OnvifCompatibleAudioOutputConfigurationVector>("OnvifCompatibleAudioOutputConfigurationVector"),
        reader<OnvifCompatibleAudioEncoderConfigurationVector>("OnvifCompatibleAudioEncoderConfigurationVector"),
        reader<OnvifCompatibleAudioDecoderConfigurationVector>("OnvifCompatibleAudioDecoderConfigurationVector"),
        reader<OnvifCompatibleVideoAnalyticsConfigurationVector>("OnvifCompatibleVideoAnalyticsConfigurationVector"),
        reader<OnvifCompatibleMetadataConfigurationVector>("OnvifCompatibleMetadataConfigurationVector"),
        reader<OnvifCompatiblePtzConfigurationVector>("OnvifCompatiblePtzConfigurationVector"),
    };
    return all;
}

void readAll(const QByteArray &reply)
{
    for (const Reader &reader : readers())
        reader.read(reply);
}

} // namespace hostile
