#include "fields/types.h"
#include "samples/samples.h"

#include <vorn/onvif/debug.h>
#include <vorn/onvif/paths.h>

#include <QtCore/QMap>
#include <QtCore/QVariant>
#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

using namespace vorn;

namespace {

/// What a QDebug makes of \a value, and of a number behind it.
template <typename Value>
QString printed(const Value &value)
{
    QString text;
    QDebug(&text) << value << 7;
    return text;
}

QByteArray reply(const char *name)
{
    return test::contentsOf(QString(SAMPLES_FOLDER "/short-prefixes/%1.xml").arg(name));
}

TEST(Debug, printsARecord)
{
    EXPECT_EQ(printed(OnvifDeviceInformation(reply("GetDeviceInformation"))),
              R"(OnvifDeviceInformation(manufacturer: "Example Optics", model: "Bullet 4K", )"
              R"(firmwareVersion: "V2.1.0 build 250314", serialNumber: "BULLET-4K-20250314-000271", )"
              R"(hardwareId: "88") 7 )");
}

TEST(Debug, printsTheRecordsWithinWithoutTheirNames)
{
    OnvifNetworkInterface record;
    record.name = "eth0";
    record.adminSettings.speed = 100;
    record.ipv4.config.manual.resize(2);
    record.ipv4.config.manual[0].address = "192.168.1.20";
    record.ipv4.config.manual[0].prefixLength = 24;
    record.ipv6.config.dhcp = OnvifNetworkInterface::IPv6::Configuration::Stateful;
    EXPECT_EQ(
        printed(record),
        R"(OnvifNetworkInterface(null, name: "eth0", token: "", enabled: false, hwAddress: "", mtu: 1500, )"
        R"(interfaceType: 0, adminSettings: (present: false, autoNegotiation: false, speed: 100, duplex: Full), )"
        R"(operSettings: (present: false, autoNegotiation: false, speed: 0, duplex: Full), )"
        R"(ipv4: (enabled: false, config: (manual: [(address: "192.168.1.20", prefixLength: 24), )"
        R"((address: "", prefixLength: 0)], linkLocal: (address: "", prefixLength: 0), )"
        R"(fromDHCP: (address: "", prefixLength: 0), dhcp: false)), )"
        R"(ipv6: (enabled: false, config: (acceptRouterAdvert: false, dhcp: Stateful, manual: [], linkLocal: [], )"
        R"(fromDHCP: [], fromRA: []))) 7 )");
}

TEST(Debug, printsEachRecordByItsName)
{
    int records = 0;
    test::forEachRecord([&records](auto type) {
        using Record = typename decltype(type)::type;
        EXPECT_TRUE(printed(Record()).startsWith(QString(recordName<Record>) + "(")) << recordName<Record>.data();
        ++records;
    });
    EXPECT_EQ(records, 43);
}

TEST(Debug, printsAStructOfARecord)
{
    OnvifCapabilities capabilities;
    capabilities.device.system.supportedVersions.resize(1);
    EXPECT_EQ(printed(capabilities.device.system.supportedVersions[0]),
              "OnvifCapabilities::SupportedVersion(major: 0, minor: 0) 7 ");
    EXPECT_EQ(printed(capabilities.search), R"(OnvifCapabilities::Search(xAddr: "", metadataSearch: false) 7 )");
    EXPECT_EQ(printed(OnvifPtzRange{-1.0, 0.5}), "OnvifPtzRange(min: -1, max: 0.5) 7 ");
}

TEST(Debug, printsANullRecordThatHoldsNothingAsThat)
{
    EXPECT_EQ(printed(OnvifRule()), "OnvifRule(null) 7 ");
    OnvifRule rule;
    rule.name = "Line";
    EXPECT_EQ(printed(rule), R"(OnvifRule(null, name: "Line", type: "") 7 )");
}

TEST(Debug, printsAProfileWithItsConfigurations)
{
    OnvifProfile profile("Main", "T1", true);
    profile.videoEncoder.resolution = QSize(640, 480);
    EXPECT_EQ(printed(profile), R"(OnvifProfile(name: "Main", token: "T1", fixed: true, videoSource: (null), )"
                                R"(audioSource: (null), videoEncoder: (null, name: "", token: "", encoding: "", )"
                                R"(useCount: 0, resolution: QSize(640, 480), quality: 0, frameRateLimit: 0, )"
                                R"(encodingInterval: 0, bitrateLimit: 0, sessionTimeout: ""), audioEncoder: (null), )"
                                R"(videoAnalytics: (null), ptz: (null), metadata: (null), audioOutput: (null), )"
                                R"(audioDecoder: (null)) 7 )");
}

TEST(Debug, printsAFaultByTheNamesOfItsCodes)
{
    EXPECT_EQ(printed(OnvifFault({}, OnvifFault::Sender, OnvifFault::InvalidArgVal, OnvifFault::NoProfile, 1)),
              R"(OnvifFault(faultType: Sender, subcodeType: InvalidArgVal, specificType: NoProfile, action: "") 7 )");
}

TEST(Debug, printsACamera)
{
    OnvifCamera camera("192.168.1.20", {});
    camera.scopes.insert("name", "Door");
    const QString text = printed(camera);
    const QString start =
        R"(OnvifCamera(addresses: ["192.168.1.20"], linkLocalAddresses: [], valid: true, scopes: {"name": "Door"}, )"
        R"(capture: QSharedPointer()";
    EXPECT_EQ(text.left(start.size()), start);
    EXPECT_EQ(text.right(16), "), index: -1) 7 ");
}

TEST(Debug, printsAListInBrackets)
{
    EXPECT_EQ(printed(OnvifRelayOutputVector()), "[] 7 ");
    OnvifAnalyticsEngineConfigurationVector modules;
    modules.resize(2);
    modules[1].type = "tt:CellMotionEngine";
    EXPECT_EQ(printed(modules),
              R"([OnvifAnalyticsModule(null), OnvifAnalyticsModule(null, name: "", type: "tt:CellMotionEngine")] 7 )");
}

TEST(Debug, printsAListFromAReply)
{
    EXPECT_EQ(printed(OnvifRelayOutputVector(reply("GetRelayOutputs"), paths::GetRelayOutputsResponse)),
              R"([OnvifRelayOutput(token: "AlarmOut_1", mode: Monostable, delayTime: "PT5S", idleState: Closed), )"
              R"(OnvifRelayOutput(token: "AlarmOut_2", mode: Monostable, delayTime: "PT30S", idleState: Open)] 7 )");
}

TEST(Debug, printsAScopeMapInBraces)
{
    OnvifScopeMap scopes;
    EXPECT_EQ(printed(scopes), "{} 7 ");
    scopes.insert("name", OnvifScope(OnvifScope::Fixed, "onvif://www.onvif.org/name/Door"));
    scopes.insert("type", OnvifScope());
    EXPECT_EQ(
        printed(scopes),
        R"({"name": OnvifScope(type: Fixed, uri: "onvif://www.onvif.org/name/Door", key: "name", value: "Door"), )"
        R"("type": OnvifScope(null)} 7 )");
}

TEST(Debug, printsAnEnumeratorByItsName)
{
    EXPECT_EQ(printed(OnvifFault::Sender), "Sender 7 ");
    EXPECT_EQ(printed(OnvifNetworkInterface::LinkSettings::Half), "Half 7 ");
    EXPECT_EQ(printed(static_cast<OnvifRelayOutput::RelayMode>(9)), "9 7 ");
}

TEST(Debug, quotesTextsAsTheStreamDoes)
{
    OnvifRule rule;
    rule.name = "a\"b\n";
    EXPECT_EQ(printed(rule), R"(OnvifRule(null, name: "a\"b\n", type: "") 7 )");
    QString text;
    QDebug(&text).noquote() << rule << QString("c");
    EXPECT_EQ(text, "OnvifRule(null, name: a\"b\n, type: ) c ");
}

TEST(Debug, keepsTheSpacingOfTheStream)
{
    QString text;
    QDebug(&text).nospace() << OnvifRule() << OnvifFault::Sender << 7;
    EXPECT_EQ(text, "OnvifRule(null)Sender7");
}

// How these look is for Qt to say.

TEST(Debug, printsTheRecordsInContainersOfQt)
{
    const OnvifRule rule;
    EXPECT_TRUE(printed(QList<OnvifRule>{rule, rule}).contains("OnvifRule(null), OnvifRule(null)"));
    EXPECT_TRUE(printed(QMap<QString, OnvifRule>{{"a", rule}}).contains("OnvifRule(null)"));
    EXPECT_TRUE(printed(QMultiMap<QString, OnvifRule>{{"a", rule}}).contains("OnvifRule(null)"));
    EXPECT_TRUE(printed(std::vector<OnvifRule>(1)).contains("OnvifRule(null)"));
    EXPECT_TRUE(printed(QList<OnvifScope::Type>{OnvifScope::Fixed}).contains("Fixed"));
    EXPECT_TRUE(printed(QVariant::fromValue(rule)).contains("OnvifRule(null)"));
}

TEST(Debug, leavesAllElseAlone)
{
    QString text;
    QDebug(&text) << QStringList{"a"} << QList<int>{1} << QMultiMap<QString, QString>{{"a", "b"}};
    EXPECT_FALSE(text.startsWith('['));
    EXPECT_FALSE(text.contains('{'));

    text.clear();
    QDebug(&text).nospace() << Qt::hex << 255 << "text" << nullptr << Qt::Horizontal << QSize(1, 2);
    EXPECT_TRUE(text.startsWith("fftext"));
    EXPECT_TRUE(text.endsWith("QSize(1, 2)"));
}

template <typename Type, typename = void>
constexpr bool isStreamed = false;

template <typename Type>
constexpr bool isStreamed<Type, std::void_t<decltype(std::declval<QDebug>() << std::declval<const Type &>())>> = true;

static_assert(isStreamed<OnvifProfileVector> && isStreamed<OnvifCompatibleMetadataConfigurationVector>);
static_assert(isStreamed<OnvifRuleEngineConfigurationVector> && isStreamed<OnvifScopeMap>);
static_assert(isStreamed<OnvifCapabilities> && isStreamed<OnvifMetadataConfiguration>);
static_assert(!isStreamed<XmlResponse> && !isStreamed<OnvifResponseStructure>);

} // namespace
