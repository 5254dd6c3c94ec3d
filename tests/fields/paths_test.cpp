#include "samples/samples.h"

#include <vorn/onvif/paths.h>
#include <vorn/onvif/profiles.h>
#include <vorn/util/xmlresponse.h>

#include <QtCore/QFileInfo>
#include <gtest/gtest.h>

#include <iterator>

using namespace vorn;

namespace {

struct Response
{
    QLatin1StringView path;
    const char *element; ///< the one in the Body
};

const Response responses[] = {
    {paths::CreateProfileResponse, "CreateProfileResponse"},
    {paths::GetAudioDecoderConfigurationsResponse, "GetAudioDecoderConfigurationsResponse"},
    {paths::GetAudioEncoderConfigurationsResponse, "GetAudioEncoderConfigurationsResponse"},
    {paths::GetAudioOutputConfigurationsResponse, "GetAudioOutputConfigurationsResponse"},
    {paths::GetAudioSourceConfigurationsResponse, "GetAudioSourceConfigurationsResponse"},
    {paths::GetCapabilitiesResponse, "GetCapabilitiesResponse"},
    {paths::GetCompatibleAudioDecoderConfigurationsResponse, "GetCompatibleAudioDecoderConfigurationsResponse"},
    {paths::GetCompatibleAudioEncoderConfigurationsResponse, "GetCompatibleAudioEncoderConfigurationsResponse"},
    {paths::GetCompatibleAudioOutputConfigurationsResponse, "GetCompatibleAudioOutputConfigurationsResponse"},
    {paths::GetCompatibleAudioSourceConfigurationsResponse, "GetCompatibleAudioSourceConfigurationsResponse"},
    {paths::GetCompatibleConfigurationsResponse, "GetCompatibleConfigurationsResponse"},
    {paths::GetCompatibleMetadataConfigurationsResponse, "GetCompatibleMetadataConfigurationsResponse"},
    {paths::GetCompatibleVideoAnalyticsConfigurationsResponse, "GetCompatibleVideoAnalyticsConfigurationsResponse"},
    {paths::GetCompatibleVideoEncoderConfigurationsResponse, "GetCompatibleVideoEncoderConfigurationsResponse"},
    {paths::GetCompatibleVideoSourceConfigurationsResponse, "GetCompatibleVideoSourceConfigurationsResponse"},
    {paths::GetConfigurationsResponse, "GetConfigurationsResponse"},
    {paths::GetDeviceInformationResponse, "GetDeviceInformationResponse"},
    {paths::GetHostnameResponse, "GetHostnameResponse"},
    {paths::GetMetadataConfigurationsResponse, "GetMetadataConfigurationsResponse"},
    {paths::GetNetworkDefaultGatewayResponse, "GetNetworkDefaultGatewayResponse"},
    {paths::GetNetworkInterfacesResponse, "GetNetworkInterfacesResponse"},
    {paths::GetProfileResponse, "GetProfileResponse"},
    {paths::GetProfilesResponse, "GetProfilesResponse"},
    {paths::GetRelayOutputsResponse, "GetRelayOutputsResponse"},
    {paths::GetScopesResponse, "GetScopesResponse"},
    {paths::GetSnapshotUriResponse, "GetSnapshotUriResponse"},
    {paths::GetStreamUriResponse, "GetStreamUriResponse"},
    {paths::GetSystemDateAndTimeResponse, "GetSystemDateAndTimeResponse"},
    {paths::GetVideoAnalyticsConfigurationsResponse, "GetVideoAnalyticsConfigurationsResponse"},
    {paths::GetVideoEncoderConfigurationsResponse, "GetVideoEncoderConfigurationsResponse"},
    {paths::GetVideoSourceConfigurationsResponse, "GetVideoSourceConfigurationsResponse"},
    {paths::GetVideoSourcesResponse, "GetVideoSourcesResponse"},
    {paths::Fault, "Fault"},
    {paths::ProbeMatches, "ProbeMatches"},
};

TEST(Paths, leadToTheElementThatTheyAreNamedAfter)
{
    for (const auto &[path, element] : responses) {
        const QByteArray reply = QByteArray("<s:Envelope><s:Body><x:") + element + "/></s:Body></s:Envelope>";
        EXPECT_EQ(XmlResponse(reply, path).view(u"").name(), element);
    }
}

TEST(Paths, areAllInTheTableAbove)
{
    const QString header = test::contentsOf(INCLUDE_FOLDER "/vorn/onvif/paths.h");
    EXPECT_EQ(header.count("inline constexpr"), static_cast<qsizetype>(std::size(responses)));
}

TEST(Paths, areThereForEachReplyOfTheSamples)
{
    QStringList elements = {"GetUsersResponse"}; // which nothing reads
    for (const Response &response : responses)
        elements.append(response.element);
    int replies = 0;
    for (const test::Sample &sample : test::allSamples()) {
        XmlResponse reply(sample.bytes(), QString());
        for (const XmlElementView element : reply.view(u"/Envelope/Body").children()) {
            EXPECT_TRUE(elements.contains(element.name())) << sample.path;
            ++replies;
        }
    }
    EXPECT_GT(replies, 50);
}

TEST(Paths, areTakenByListsAndQueries)
{
    const QByteArray reply = test::contentsOf(SAMPLES_FOLDER "/short-prefixes/GetProfiles.xml");
    EXPECT_EQ(OnvifProfileVector(reply, paths::GetProfilesResponse).size(), 2);
    XmlResponse response(reply, QString());
    EXPECT_TRUE(response.get(paths::GetProfilesResponse).valid);
    EXPECT_FALSE(response.view(paths::GetProfilesResponse).isNull());
    EXPECT_TRUE(response.view(paths::GetProfileResponse).isNull());
}

} // namespace
