#include "support/allocations.h"
#include "support/printing.h"

#include <vorn/onvif/device.h>

#include <QtCore/QStringList>
#include <gtest/gtest.h>

#include <string>
#include <type_traits>

using vorn::OnvifCapabilities;

static_assert(std::is_base_of_v<vorn::OnvifResponseStructure, OnvifCapabilities>);
static_assert(!std::is_polymorphic_v<OnvifCapabilities>);

namespace {

/// A reply whose Capabilities hold \a content.
QByteArray replyWith(const QByteArray &content)
{
    return "<s:Envelope><s:Body><tds:GetCapabilitiesResponse><tds:Capabilities>" + content
           + "</tds:Capabilities></tds:GetCapabilitiesResponse></s:Body></s:Envelope>";
}

/// The elements of \a path, nested, with \a text in the innermost.
QByteArray elementAt(const QByteArray &path, const QByteArray &text)
{
    QByteArray element = text;
    const QList<QByteArray> names = path.mid(1).split('/');
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        element = "<tt:" + *name + '>' + element + "</tt:" + *name + '>';
    return element;
}

OnvifCapabilities readAt(const char *path, const QByteArray &text)
{
    return OnvifCapabilities(replyWith(elementAt(path, text)));
}

struct BoolRow
{
    const char *path;
    bool (*field)(const OnvifCapabilities &);
};

struct UIntRow
{
    const char *path;
    unsigned int (*field)(const OnvifCapabilities &);
};

struct TextRow
{
    const char *path;
    QString (*field)(const OnvifCapabilities &);
};

const BoolRow bools[] = {
    {"/Analytics/RuleSupport", [](const OnvifCapabilities &c) { return c.analytics.ruleSupport; }},
    {"/Analytics/AnalyticsModuleSupport",
     [](const OnvifCapabilities &c) { return c.analytics.analyticsModuleSupport; }},
    {"/Device/Network/IPFilter", [](const OnvifCapabilities &c) { return c.device.network.ipFilter; }},
    {"/Device/Network/ZeroConfiguration",
     [](const OnvifCapabilities &c) { return c.device.network.zeroConfiguration; }},
    {"/Device/Network/IPVersion6", [](const OnvifCapabilities &c) { return c.device.network.ipVersion6; }},
    {"/Device/Network/DynDNS", [](const OnvifCapabilities &c) { return c.device.network.dynDns; }},
    {"/Device/Network/Extension/Dot11Configuration",
     [](const OnvifCapabilities &c) { return c.device.network.dot11Configuration; }},
    {"/Device/System/DiscoveryResolve", [](const OnvifCapabilities &c) { return c.device.system.discoveryResolve; }},
    {"/Device/System/DiscoveryBye", [](const OnvifCapabilities &c) { return c.device.system.discoveryBye; }},
    {"/Device/System/RemoteDiscovery", [](const OnvifCapabilities &c) { return c.device.system.remoteDiscovery; }},
    {"/Device/System/SystemBackup", [](const OnvifCapabilities &c) { return c.device.system.systemBackup; }},
    {"/Device/System/FirmwareUpgrade", [](const OnvifCapabilities &c) { return c.device.system.firmwareUpgrade; }},
    {"/Device/System/SystemLogging", [](const OnvifCapabilities &c) { return c.device.system.systemLogging; }},
    {"/Device/System/Extension/HttpSystemBackup",
     [](const OnvifCapabilities &c) { return c.device.system.httpSystemBackup; }},
    {"/Device/System/Extension/HttpFirmwareUpgrade",
     [](const OnvifCapabilities &c) { return c.device.system.httpFirmwareUpgrade; }},
    {"/Device/System/Extension/HttpSystemLogging",
     [](const OnvifCapabilities &c) { return c.device.system.httpSystemLogging; }},
    {"/Device/System/Extension/HttpSupportInformation",
     [](const OnvifCapabilities &c) { return c.device.system.httpSupportInformation; }},
    {"/Device/IO/Extension/Auxiliary", [](const OnvifCapabilities &c) { return c.device.io.auxiliary; }},
    {"/Device/Security/Extension/TLS1.0", [](const OnvifCapabilities &c) { return c.device.security.tls10; }},
    {"/Device/Security/TLS1.1", [](const OnvifCapabilities &c) { return c.device.security.tls11; }},
    {"/Device/Security/TLS1.2", [](const OnvifCapabilities &c) { return c.device.security.tls12; }},
    {"/Device/Security/OnboardKeyGeneration",
     [](const OnvifCapabilities &c) { return c.device.security.onboardKeyGeneration; }},
    {"/Device/Security/AccessPolicyConfig",
     [](const OnvifCapabilities &c) { return c.device.security.accessPolicyConfig; }},
    {"/Device/Security/X.509Token", [](const OnvifCapabilities &c) { return c.device.security.x509Token; }},
    {"/Device/Security/SAMLToken", [](const OnvifCapabilities &c) { return c.device.security.samlToken; }},
    {"/Device/Security/KerberosToken", [](const OnvifCapabilities &c) { return c.device.security.kerberosToken; }},
    {"/Device/Security/RELToken", [](const OnvifCapabilities &c) { return c.device.security.relToken; }},
    {"/Device/Security/Extension/Extension/Dot1X", [](const OnvifCapabilities &c) { return c.device.security.dot1x; }},
    {"/Device/Security/Extension/Extension/RemoteUserHandling",
     [](const OnvifCapabilities &c) { return c.device.security.remoteUserHandling; }},
    {"/Events/WSSubscriptionPolicySupport",
     [](const OnvifCapabilities &c) { return c.events.wsSubscriptionPolicySupport; }},
    {"/Events/WSPullPointSupport", [](const OnvifCapabilities &c) { return c.events.wsPullPointSupport; }},
    {"/Events/WSPausableSubscriptionManagerInterfaceSupport",
     [](const OnvifCapabilities &c) { return c.events.wsPausableSubscriptionManagerInterfaceSupport; }},
    {"/Media/StreamingCapabilities/RTPMulticast", [](const OnvifCapabilities &c) { return c.media.rtpMulticast; }},
    {"/Media/StreamingCapabilities/RTP_TCP", [](const OnvifCapabilities &c) { return c.media.rtpTcp; }},
    {"/Media/StreamingCapabilities/RTP_RTSP_TCP", [](const OnvifCapabilities &c) { return c.media.rtpRtspTcp; }},
    {"/Extension/Recording/DynamicRecordings",
     [](const OnvifCapabilities &c) { return c.recording.dynamicRecordings; }},
    {"/Extension/Recording/DynamicTracks", [](const OnvifCapabilities &c) { return c.recording.dynamicTracks; }},
    {"/Extension/Recording/DeleteData", [](const OnvifCapabilities &c) { return c.recording.deleteData; }},
    {"/Extension/Recording/ReceiverSource", [](const OnvifCapabilities &c) { return c.recording.receiverSource; }},
    {"/Extension/Recording/MediaProfileSource",
     [](const OnvifCapabilities &c) { return c.recording.mediaProfileSource; }},
    {"/Extension/Search/MetadataSearch", [](const OnvifCapabilities &c) { return c.search.metadataSearch; }},
    {"/Extension/AnalyticsDevice/RuleSupport",
     [](const OnvifCapabilities &c) { return c.analyticsDevice.ruleSupport; }},
    {"/Extension/Display/FixedLayout", [](const OnvifCapabilities &c) { return c.display.fixedLayout; }},
};

const UIntRow numbers[] = {
    {"/Extension/DeviceIO/VideoSources", [](const OnvifCapabilities &c) { return c.device.io.videoSources; }},
    {"/Extension/DeviceIO/VideoOutputs", [](const OnvifCapabilities &c) { return c.device.io.videoOutputs; }},
    {"/Extension/DeviceIO/AudioSources", [](const OnvifCapabilities &c) { return c.device.io.audioSources; }},
    {"/Device/IO/RelayOutputs", [](const OnvifCapabilities &c) { return c.device.io.relayOutputs; }},
    {"/Device/IO/InputConnectors", [](const OnvifCapabilities &c) { return c.device.io.inputConnectors; }},
    {"/Media/Extension/ProfileCapabilities/MaximumNumberOfProfiles",
     [](const OnvifCapabilities &c) { return c.media.maximumNumberOfProfiles; }},
    {"/Extension/Recording/MaxStringLength", [](const OnvifCapabilities &c) { return c.recording.maxStringLength; }},
};

const TextRow addresses[] = {
    {"/Analytics/XAddr", [](const OnvifCapabilities &c) { return c.analytics.xAddr; }},
    {"/Device/XAddr", [](const OnvifCapabilities &c) { return c.device.xAddr; }},
    {"/Extension/DeviceIO/XAddr", [](const OnvifCapabilities &c) { return c.device.io.xAddr; }},
    {"/Events/XAddr", [](const OnvifCapabilities &c) { return c.events.xAddr; }},
    {"/Imaging/XAddr", [](const OnvifCapabilities &c) { return c.imaging.xAddr; }},
    {"/Media/XAddr", [](const OnvifCapabilities &c) { return c.media.xAddr; }},
    {"/PTZ/XAddr", [](const OnvifCapabilities &c) { return c.ptz.xAddr; }},
    {"/Extension/Recording/XAddr", [](const OnvifCapabilities &c) { return c.recording.xAddr; }},
    {"/Extension/Search/XAddr", [](const OnvifCapabilities &c) { return c.search.xAddr; }},
    {"/Extension/Replay/XAddr", [](const OnvifCapabilities &c) { return c.replay.xAddr; }},
    {"/Extension/AnalyticsDevice/XAddr", [](const OnvifCapabilities &c) { return c.analyticsDevice.xAddr; }},
    {"/Extension/Display/XAddr", [](const OnvifCapabilities &c) { return c.display.xAddr; }},
};

/// The paths of all fields that are not at their defaults.
QStringList filledFields(const OnvifCapabilities &capabilities)
{
    QStringList paths;
    for (const BoolRow &row : bools) {
        if (row.field(capabilities))
            paths.append(row.path);
    }
    for (const UIntRow &row : numbers) {
        if (row.field(capabilities) != 0)
            paths.append(row.path);
    }
    for (const TextRow &row : addresses) {
        if (!row.field(capabilities).isEmpty())
            paths.append(row.path);
    }
    if (capabilities.device.io.audioOutputs != 0)
        paths.append("audioOutputs");
    if (!capabilities.device.io.auxiliaryCommands.isEmpty())
        paths.append("auxiliaryCommands");
    if (!capabilities.device.system.supportedVersions.isEmpty())
        paths.append("supportedVersions");
    if (!capabilities.device.security.supportedEapMethods.isEmpty())
        paths.append("supportedEapMethods");
    return paths;
}

TEST(OnvifCapabilities, readsEachBooleanFromItsPathAlone)
{
    for (const BoolRow &row : bools) {
        EXPECT_EQ(filledFields(readAt(row.path, "true")), QStringList(row.path));
        EXPECT_EQ(filledFields(readAt(row.path, "1")), QStringList(row.path));
        EXPECT_EQ(filledFields(readAt(row.path, "false")), QStringList()) << row.path;
        EXPECT_EQ(filledFields(readAt(row.path, "yes")), QStringList()) << row.path;
    }
    EXPECT_EQ(std::size(bools), 43U);
}

TEST(OnvifCapabilities, readsEachNumberFromItsPathAlone)
{
    for (const UIntRow &row : numbers) {
        const OnvifCapabilities capabilities = readAt(row.path, "42");
        EXPECT_EQ(row.field(capabilities), 42U) << row.path;
        EXPECT_EQ(filledFields(capabilities), QStringList(row.path));
        EXPECT_EQ(row.field(readAt(row.path, "4294967295")), 4294967295U) << row.path;
        EXPECT_EQ(row.field(readAt(row.path, "-1")), 0U) << row.path;
        EXPECT_EQ(row.field(readAt(row.path, "many")), 0U) << row.path;
    }
    EXPECT_EQ(std::size(numbers), 7U);
}

TEST(OnvifCapabilities, readsEachAddressFromItsPathAlone)
{
    for (const TextRow &row : addresses) {
        const OnvifCapabilities capabilities = readAt(row.path, " http://camera/onvif ");
        EXPECT_EQ(row.field(capabilities), " http://camera/onvif ") << row.path;
        EXPECT_EQ(filledFields(capabilities), QStringList(row.path));
    }
    EXPECT_EQ(std::size(addresses), 12U);
}

TEST(OnvifCapabilities, readsNothingAtTheTemptingWrongPlaces)
{
    for (const char *path : {
             "/Device/Security/TLS1.0",
             "/Device/Security/Extension/TLS1.1",
             "/Device/Security/Extension/TLS1.2",
             "/Device/Security/Dot1X",
             "/Device/Security/Extension/Dot1X",
             "/Device/Security/RemoteUserHandling",
             "/Device/Security/Extension/RemoteUserHandling",
             "/Device/Security/SupportedEAPMethod",
             "/Device/Security/Extension/SupportedEAPMethod",
             "/Device/Security/Extension/OnboardKeyGeneration",
             "/Device/Network/Dot11Configuration",
             "/Device/Network/Extension/Extension/Dot11Configuration",
             "/Device/Network/Extension/IPFilter",
             "/Device/System/HttpSystemBackup",
             "/Device/System/HttpFirmwareUpgrade",
             "/Device/System/HttpSystemLogging",
             "/Device/System/HttpSupportInformation",
             "/Device/System/Extension/SystemBackup",
             "/Device/System/Extension/SupportedVersions",
             "/Device/IO/XAddr",
             "/Device/IO/VideoSources",
             "/Device/IO/VideoOutputs",
             "/Device/IO/AudioSources",
             "/Device/IO/AudioOutputs",
             "/Extension/DeviceIO/AudioOutputs",
             "/Extension/DeviceIO/InputConnectors",
             "/Extension/DeviceIO/Auxiliary",
             "/Extension/DeviceIO/Extension/Auxiliary",
             "/Device/IO/Auxiliary",
             "/DeviceIO/XAddr",
             "/Device/Network/XAddr",
             "/Device/System/XAddr",
             "/Device/Security/XAddr",
             "/Media/RTPMulticast",
             "/Media/RTP_TCP",
             "/Media/RTP_RTSP_TCP",
             "/Media/ProfileCapabilities/MaximumNumberOfProfiles",
             "/Media/MaximumNumberOfProfiles",
             "/Recording/XAddr",
             "/Search/XAddr",
             "/Replay/XAddr",
             "/AnalyticsDevice/XAddr",
             "/Display/XAddr",
             "/Extension/Analytics/XAddr",
             "/Extension/Events/XAddr",
             "/Extension/Imaging/XAddr",
             "/Extension/Media/XAddr",
             "/Extension/PTZ/XAddr",
             "/Extension/XAddr",
             "/XAddr",
             "/Ptz/XAddr",
             "/Extension/AnalyticsDevice/AnalyticsModuleSupport",
         }) {
        for (const char *text : {"true", "1", "7"})
            EXPECT_EQ(filledFields(readAt(path, text)), QStringList()) << path;
    }
}

TEST(OnvifCapabilities, relayOutputsComeFromTheSecondPlaceIfTheFirstGivesNone)
{
    const auto relayOutputs = [](const QByteArray &first, const QByteArray &second) {
        QByteArray content = "<Extension><DeviceIO><RelayOutputs>" + second + "</RelayOutputs></DeviceIO></Extension>";
        if (!first.isNull())
            content += "<Device><IO><RelayOutputs>" + first + "</RelayOutputs></IO></Device>";
        return OnvifCapabilities(replyWith(content)).device.io.relayOutputs;
    };
    EXPECT_EQ(relayOutputs("2", "4"), 2U);
    EXPECT_EQ(relayOutputs("0", "4"), 4U);
    EXPECT_EQ(relayOutputs("none", "4"), 4U);
    EXPECT_EQ(relayOutputs(QByteArray(), "4"), 4U);
    EXPECT_EQ(relayOutputs("2", "none"), 2U);
    EXPECT_EQ(relayOutputs("0", "0"), 0U);
}

QByteArray auxiliary(const QByteArray &content)
{
    return replyWith("<Device><IO><Extension>" + content + "</Extension></IO></Device>");
}

TEST(OnvifCapabilities, auxiliaryCommandsAreReadInDocumentOrder)
{
    const OnvifCapabilities capabilities(auxiliary("<AuxiliaryCommands>tt:Wiper|On</AuxiliaryCommands><Auxiliary>true"
                                                   "</Auxiliary><Other/><AuxiliaryCommands/>"
                                                   "<AuxiliaryCommands>tt:Wiper|Off</AuxiliaryCommands>"));
    EXPECT_EQ(capabilities.device.io.auxiliaryCommands, QStringList({"tt:Wiper|On", "", "tt:Wiper|Off"}));
}

TEST(OnvifCapabilities, auxiliaryCommandsNeedTheFlag)
{
    const QByteArray commands = "<AuxiliaryCommands>a</AuxiliaryCommands><AuxiliaryCommands>b</AuxiliaryCommands>";
    for (const char *flag : {"", "<Auxiliary>false</Auxiliary>", "<Auxiliary>TRUE</Auxiliary>", "<Auxiliary/>"})
        EXPECT_TRUE(OnvifCapabilities(auxiliary(flag + commands)).device.io.auxiliaryCommands.isEmpty()) << flag;
}

TEST(OnvifCapabilities, supportedVersionsAreReadInDocumentOrder)
{
    const OnvifCapabilities capabilities(
        replyWith("<Device><System><SupportedVersions><Major>2</Major><Minor>40</Minor></SupportedVersions>"
                  "<SystemBackup/><SupportedVersions><Major>1</Major></SupportedVersions>"
                  "<SupportedVersions><Minor>x</Minor></SupportedVersions></System></Device>"));
    const QList<OnvifCapabilities::SupportedVersion> versions = capabilities.device.system.supportedVersions;
    ASSERT_EQ(versions.size(), 3);
    EXPECT_EQ(versions[0].major, 2U);
    EXPECT_EQ(versions[0].minor, 40U);
    EXPECT_EQ(versions[1].major, 1U);
    EXPECT_EQ(versions[1].minor, 0U);
    EXPECT_EQ(versions[2].major, 0U);
    EXPECT_EQ(versions[2].minor, 0U);
}

TEST(OnvifCapabilities, supportedEapMethodsKeepTheirNumber)
{
    const OnvifCapabilities capabilities(
        replyWith("<Device><Security><Extension><Extension><SupportedEAPMethod>13</SupportedEAPMethod>"
                  "<SupportedEAPMethod>TLS</SupportedEAPMethod><SupportedEAPMethod/>"
                  "<SupportedEAPMethod> 25 </SupportedEAPMethod></Extension></Extension></Security></Device>"));
    EXPECT_EQ(capabilities.device.security.supportedEapMethods, QList<unsigned int>({13, 0, 0, 25}));
}

struct QueryRow
{
    const char *path;
    bool (OnvifCapabilities::*query)() const;
};

const QueryRow queries[] = {
    {"/Analytics/XAddr", &OnvifCapabilities::hasAnalytics},
    {"/Extension/AnalyticsDevice/XAddr", &OnvifCapabilities::hasAnalyticsDevice},
    {"/Device/XAddr", &OnvifCapabilities::hasDevice},
    {"/Extension/Display/XAddr", &OnvifCapabilities::hasDisplay},
    {"/Events/XAddr", &OnvifCapabilities::hasEvents},
    {"/Extension/DeviceIO/XAddr", &OnvifCapabilities::hasIO},
    {"/Imaging/XAddr", &OnvifCapabilities::hasImaging},
    {"/Media/XAddr", &OnvifCapabilities::hasMedia},
    {"/PTZ/XAddr", &OnvifCapabilities::hasPTZ},
    {"/Extension/Recording/XAddr", &OnvifCapabilities::hasRecording},
    {"/Extension/Replay/XAddr", &OnvifCapabilities::hasReplay},
    {"/Extension/Search/XAddr", &OnvifCapabilities::hasSearch},
};

TEST(OnvifCapabilities, queriesTellWhichServiceHasAnAddress)
{
    for (const QueryRow &row : queries) {
        for (const char *address : {"http://camera/onvif", "?", " no address "}) {
            const OnvifCapabilities capabilities = readAt(row.path, address);
            for (const QueryRow &other : queries)
                EXPECT_EQ((capabilities.*other.query)(), &other == &row) << row.path << " asked for " << other.path;
        }
    }
}

TEST(OnvifCapabilities, queriesLookAtTheAddressOnly)
{
    const OnvifCapabilities capabilities(replyWith("<Media><XAddr/><StreamingCapabilities><RTP_TCP>true</RTP_TCP>"
                                                   "</StreamingCapabilities></Media>"));
    EXPECT_TRUE(capabilities.media.rtpTcp);
    EXPECT_FALSE(capabilities.hasMedia());
}

TEST(OnvifCapabilities, areEmptyWithoutAGoodReply)
{
    for (const QByteArray &reply :
         {QByteArray(), QByteArray("not XML"),
          QByteArray("<Envelope><Body><Fault><Code><Value>s:Sender</Value></Code></Fault></Body></Envelope>"),
          QByteArray("<Capabilities><Media><XAddr>x</XAddr></Media></Capabilities>")}) {
        const OnvifCapabilities capabilities(reply);
        EXPECT_EQ(filledFields(capabilities), QStringList());
        for (const QueryRow &row : queries)
            EXPECT_FALSE((capabilities.*row.query)());
        EXPECT_EQ(capabilities.xml, QString::fromLatin1(reply));
    }
    EXPECT_EQ(filledFields(OnvifCapabilities()), QStringList());
}

TEST(OnvifCapabilities, areReadOrEmptyAtEveryLengthWithAnyPrefix)
{
    for (const char *namePrefix : {"", "tds:", "undeclared:"}) {
        const QByteArray p(namePrefix);
        const QByteArray reply = "<" + p + "Envelope><" + p + "Body><" + p + "GetCapabilitiesResponse><" + p
                                 + "Capabilities><" + p + "Media><" + p + "XAddr>m</" + p + "XAddr></" + p + "Media></"
                                 + p + "Capabilities></" + p + "GetCapabilitiesResponse></" + p + "Body></" + p
                                 + "Envelope>";
        for (qsizetype size = 0; size <= reply.size(); ++size) {
            EXPECT_EQ(filledFields(OnvifCapabilities(reply.first(size))),
                      size == reply.size() ? QStringList("/Media/XAddr") : QStringList())
                << namePrefix << size;
        }
    }
}

TEST(OnvifCapabilities, defaultTakesNothingFromTheHeap)
{
    const test::AllocationCounter allocations;
    const OnvifCapabilities capabilities;
    EXPECT_EQ(allocations.count(), 0U);
}

TEST(OnvifCapabilities, areCopiedMovedAndAssigned)
{
    const OnvifCapabilities source(replyWith("<Media><XAddr>m</XAddr></Media><Device><IO><RelayOutputs>3</RelayOutputs>"
                                             "</IO></Device>"));
    const auto isSource = [](const OnvifCapabilities &capabilities) {
        return filledFields(capabilities) == QStringList({"/Device/IO/RelayOutputs", "/Media/XAddr"})
               && capabilities.xml.contains("RelayOutputs");
    };
    OnvifCapabilities copy(source);
    EXPECT_TRUE(isSource(copy));
    OnvifCapabilities moved(std::move(copy));
    EXPECT_TRUE(isSource(moved));
    OnvifCapabilities assigned;
    assigned = moved;
    EXPECT_TRUE(isSource(assigned));
    OnvifCapabilities moveAssigned;
    moveAssigned = std::move(moved);
    EXPECT_TRUE(isSource(moveAssigned));
    EXPECT_EQ(moveAssigned.response.getText("/Media/XAddr"), "m");
}

} // namespace
