// Copies of one record, response or view on several threads at once, each with its own. ThreadSanitizer tells what they
// share.

#include "support/printing.h"
#include "support/sanitizers.h"

#include <vorn/onvif/configurations.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>

#include <QtCore/QFile>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <type_traits>
#include <utility>
#include <vector>

using namespace vorn;

namespace {

constexpr int threadCount = 8;
constexpr int rounds = test::sanitized ? 5 : 50;

template <typename Record, typename = void>
constexpr bool isList = false;

template <typename Record>
constexpr bool isList<Record, std::void_t<decltype(std::declval<Record>().first())>> = true;

template <typename Record, typename = void>
constexpr bool hasToken = false;

template <typename Record>
constexpr bool hasToken<Record, std::void_t<decltype(Record::token)>> = true;

template <typename Record, typename = void>
constexpr bool hasName = false;

template <typename Record>
constexpr bool hasName<Record, std::void_t<decltype(Record::name)>> = true;

template <typename Record, typename = void>
constexpr bool hasSentence = false;

template <typename Record>
constexpr bool hasSentence<Record, std::void_t<decltype(std::declval<Record>().toString())>> = true;

// What can be asked of a record, as one text.

QString answers(XmlResponseNode &node)
{
    QString all = node.name + node.element.text() + node.element.attribute("token");
    for (XmlResponseNode &child : node.children)
        all += answers(child);
    return all;
}

QString answers(XmlElementView &view)
{
    QString all = view.name() + view.text() + view.attribute("token") + view.at("/Name").text();
    all += QString::number(view.toUInt() + view.toDouble() + view.hasName("Name") + view.hasText("true"));
    for (XmlElementView child : view.children())
        all += answers(child);
    return all;
}

QString answers(XmlResponse &response)
{
    XmlResponseNode node = response.get("");
    if (!node.valid) // without a root path
        node = response.get("/Envelope");
    QString all = answers(node) + response.getText(node, "/" + node.name);
    all += response.xml() + response.getText("") + response.getAttribute("token", "");
    all += QString::number(response.getAll("").size() + response.getUInt("") + response.getBool(""));
    for (XmlElementView view : response.viewAll(""))
        all += answers(view);
    return all;
}

QString answers(OnvifDeviceInformation &information)
{
    return information.xml + answers(information.response) + information.manufacturer + information.hardwareId;
}

QString answers(OnvifCapabilities &capabilities)
{
    return capabilities.xml + answers(capabilities.response) + capabilities.device.xAddr
           + QString::number(capabilities.device.system.supportedVersions.size());
}

QString answers(OnvifScopeMap &scopes)
{
    return scopes.xml + answers(scopes.response) + scopes.fixedValue("name").value + QString(scopes.last());
}

QString answers(OnvifCamera &camera)
{
    return camera.xml + answers(camera.response) + camera.addresses.join(' ') + camera.scopes.first();
}

QString answers(OnvifScope &scope)
{
    return scope.uri + scope.key + scope.value;
}

template <typename Record>
QString answers(Record &record)
{
    QString all;
    if constexpr (std::is_base_of_v<OnvifResponseStructure, Record>)
        all += record.xml + answers(record.response);
    if constexpr (hasSentence<Record>)
        all += record.toString();
    if constexpr (hasToken<Record>)
        all += record.token;
    if constexpr (hasName<Record>)
        all += record.name;
    if constexpr (isList<Record>) {
        for (auto &element : record)
            all += answers(element);
    }
    return all;
}

/// Each thread has a copy of \a record, which it copies, asks, assigns and destroys.
template <typename Record>
void useOnThreads(Record record)
{
    const QString expected = answers(record);
    EXPECT_FALSE(expected.isEmpty());
    std::atomic<int> waiting = threadCount;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
        threads.emplace_back([&waiting, &wrong, &expected, own = Record(record)]() mutable {
            --waiting;
            while (waiting > 0) // else the first would be done before the last has started
                std::this_thread::yield();
            for (int round = 0; round < rounds; ++round) {
                Record copy(own);
                Record assigned;
                assigned = copy;
                wrong += answers(copy) == expected && answers(assigned) == expected ? 0 : 1;
                own = assigned;
            }
        });
    }
    record = Record(); // one of the threads is the last that has it
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

QByteArray sample(const char *name)
{
    QFile file(SAMPLES_FOLDER "/" + QString(name) + ".xml");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

QString pathOf(const char *response)
{
    return QString("/Envelope/Body/") + response;
}

template <typename List>
void useListOnThreads(const char *name, const char *response)
{
    useOnThreads(List(sample(name), pathOf(response)));
}

/// The record of the first element that a sample has at \a path.
template <typename Record>
void useElementOnThreads(const char *name, const char *response, const char *path)
{
    useOnThreads(Record(XmlResponse(sample(name), pathOf(response)).get(path)));
}

TEST(Threads, shareAResponse)
{
    useOnThreads(XmlResponse(sample("many-namespaces/GetProfiles"), pathOf("GetProfilesResponse")));
}

TEST(Threads, shareAViewOfOneResponse)
{
    const XmlResponse response(sample("many-namespaces/GetProfiles"), pathOf("GetProfilesResponse"));
    useOnThreads(response.view(""));
}

TEST(Threads, shareANode)
{
    XmlResponse response(sample("many-namespaces/GetProfiles"), "");
    useOnThreads(response.get("/Envelope"));
}

TEST(Threads, shareAFault)
{
    useOnThreads(OnvifFault(sample("faults/NotAuthorized"), "GetProfiles", 1));
}

TEST(Threads, shareWhatADeviceIs)
{
    useOnThreads(OnvifDeviceInformation(sample("many-namespaces/GetDeviceInformation")));
    useOnThreads(OnvifCapabilities(sample("many-namespaces/GetCapabilities")));
    useOnThreads(OnvifScopeMap(sample("many-namespaces/GetScopes")));
    useOnThreads(OnvifScope(QString("onvif://www.onvif.org/name/Front%20Door")));
    useOnThreads(OnvifCamera(sample("many-namespaces/ProbeMatches")));
}

TEST(Threads, shareNetworkRecords)
{
    useListOnThreads<OnvifNetworkInterfaceVector>("many-namespaces/GetNetworkInterfaces",
                                                  "GetNetworkInterfacesResponse");
    useOnThreads(OnvifNetworkGateway(sample("many-namespaces/GetNetworkDefaultGateway")));
    useListOnThreads<OnvifRelayOutputVector>("many-namespaces/GetRelayOutputs", "GetRelayOutputsResponse");
}

TEST(Threads, shareProfiles)
{
    useListOnThreads<OnvifProfileVector>("many-namespaces/GetProfiles", "GetProfilesResponse");
    useOnThreads(OnvifProfile(sample("many-namespaces/GetProfile"), pathOf("GetProfileResponse")));
}

TEST(Threads, shareListsOfConfigurations)
{
    useListOnThreads<OnvifVideoSourceConfigurationVector>("short-prefixes/GetVideoSourceConfigurations",
                                                          "GetVideoSourceConfigurationsResponse");
    useListOnThreads<OnvifVideoEncoderConfigurationVector>("short-prefixes/GetVideoEncoderConfigurations",
                                                           "GetVideoEncoderConfigurationsResponse");
    useListOnThreads<OnvifAudioSourceConfigurationVector>("short-prefixes/GetAudioSourceConfigurations",
                                                          "GetAudioSourceConfigurationsResponse");
    useListOnThreads<OnvifAudioOutputConfigurationVector>("short-prefixes/GetAudioOutputConfigurations",
                                                          "GetAudioOutputConfigurationsResponse");
    useListOnThreads<OnvifAudioEncoderConfigurationVector>("short-prefixes/GetAudioEncoderConfigurations",
                                                           "GetAudioEncoderConfigurationsResponse");
    useListOnThreads<OnvifAudioDecoderConfigurationVector>("short-prefixes/GetAudioDecoderConfigurations",
                                                           "GetAudioDecoderConfigurationsResponse");
    useListOnThreads<OnvifVideoAnalyticsConfigurationVector>("short-prefixes/GetVideoAnalyticsConfigurations",
                                                             "GetVideoAnalyticsConfigurationsResponse");
    useListOnThreads<OnvifPtzConfigurationVector>("short-prefixes/GetConfigurations", "GetConfigurationsResponse");
    useOnThreads(OnvifCompatibleMetadataConfigurationVector(sample("no-prefixes/GetCompatibleMetadataConfigurations")));
}

TEST(Threads, shareConfigurations)
{
    const auto use = [](auto record, const char *element) {
        const QByteArray path = QByteArray("/Profiles/") + element;
        useElementOnThreads<decltype(record)>("many-namespaces/GetProfiles", "GetProfilesResponse", path);
    };
    use(OnvifVideoSourceConfiguration(), "VideoSourceConfiguration");
    use(OnvifVideoEncoderConfiguration(), "VideoEncoderConfiguration");
    use(OnvifAudioSourceConfiguration(), "AudioSourceConfiguration");
    use(OnvifAudioEncoderConfiguration(), "AudioEncoderConfiguration");
    use(OnvifVideoAnalyticsConfiguration(), "VideoAnalyticsConfiguration");
    use(OnvifPtzConfiguration(), "PTZConfiguration");
    use(OnvifMetadataConfiguration(), "MetadataConfiguration");
    use(OnvifAudioOutputConfiguration(), "Extension/AudioOutputConfiguration");
}

TEST(Threads, shareAnalyticsRecords)
{
    const auto use = [](auto record, const char *path) {
        useElementOnThreads<decltype(record)>("short-prefixes/GetVideoAnalyticsConfigurations",
                                              "GetVideoAnalyticsConfigurationsResponse", path);
    };
    use(OnvifAnalyticsModule(), "/Configurations/AnalyticsEngineConfiguration/AnalyticsModule");
    use(OnvifAnalyticsEngineConfigurationVector(), "/Configurations/AnalyticsEngineConfiguration");
    use(OnvifRule(), "/Configurations/RuleEngineConfiguration/Rule");
    use(OnvifRuleEngineConfigurationVector(), "/Configurations/RuleEngineConfiguration");
}

TEST(Threads, shareElementsOfTheNetwork)
{
    useElementOnThreads<OnvifNetworkInterface>("many-namespaces/GetNetworkInterfaces", "GetNetworkInterfacesResponse",
                                               "/NetworkInterfaces");
    useElementOnThreads<OnvifRelayOutput>("many-namespaces/GetRelayOutputs", "GetRelayOutputsResponse",
                                          "/RelayOutputs");
}

} // namespace
