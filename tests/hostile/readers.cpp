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

/// A response with nodes for all that it holds.
struct Queried
{
    vorn::XmlResponse response;
    vorn::XmlResponseNode node;
};

std::shared_ptr<const void> query(const QByteArray &reply)
{
    const QString path = u"/Envelope"_s;
    auto queried = std::make_shared<Queried>(Queried{vorn::XmlResponse(reply, QString()), {}});
    vorn::XmlResponse &response = queried->response;
    (void)response.getAll(path); // these nodes go before the others come
    vorn::XmlResponseNode &node = queried->node;
    node = response.get(path);
    (void)node.element.text();
    (void)response.getText(node, path);
    (void)response.getText(path);
    (void)response.getUInt(path);
    (void)response.getBool(path);
    (void)response.getAttribute(u"token"_s, path);
    return queried;
}

std::shared_ptr<const void> readFault(const QByteArray &reply)
{
    (void)vorn::OnvifFault(reply, vorn::OnvifFault::Sender, vorn::OnvifFault::NoSubcode, vorn::OnvifFault::NoSpecific,
                           1)
        .toString();
    auto fault = std::make_shared<vorn::OnvifFault>(reply, "DeleteUsers", 1);
    (void)fault->toString();
    return fault;
}

template <typename Record>
Reader reader(const char *name)
{
    return {name, [](const QByteArray &reply) { return std::make_shared<Record>(reply); }};
}

template <typename Record>
Reader reader(const char *name, const char *response)
{
    return {name, [response](const QByteArray &reply) {
                return std::make_shared<Record>(reply, "/Envelope/Body/"_L1 + response);
            }};
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
        // One answer for all of these, which holds what each looks for.
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
        (void)reader.read(reply);
}

} // namespace hostile
