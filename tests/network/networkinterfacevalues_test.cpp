// Comparing, hashing and printing network interfaces and their parts.

#include "support/catalogue.h"
#include "support/parsing.h"
#include "support/printing.h"
#include "support/recordingtranslator.h"

#include <vorn/onvif/network.h>

#include <QtCore/QHash>
#include <QtCore/QSet>
#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <initializer_list>
#include <type_traits>
#include <utility>

using vorn::OnvifNetworkInterface;
using IPv4 = OnvifNetworkInterface::IPv4;
using IPv6 = OnvifNetworkInterface::IPv6;
using LinkSettings = OnvifNetworkInterface::LinkSettings;
using PrefixedAddress = OnvifNetworkInterface::PrefixedAddress;
using namespace Qt::StringLiterals;

static_assert(std::is_same_v<decltype(qHash(std::declval<const PrefixedAddress &>())), unsigned int>);
static_assert(std::is_same_v<decltype(qHash(std::declval<const LinkSettings &>())), unsigned int>);
static_assert(std::is_same_v<decltype(qHash(std::declval<const IPv4::Configuration &>())), unsigned int>);
static_assert(std::is_same_v<decltype(qHash(std::declval<const IPv6::Configuration &>())), unsigned int>);
static_assert(std::is_same_v<decltype(qHash(std::declval<const IPv4 &>())), unsigned int>);
static_assert(std::is_same_v<decltype(qHash(std::declval<const IPv6 &>())), unsigned int>);
static_assert(std::is_same_v<decltype(qHash(std::declval<const OnvifNetworkInterface &>())), unsigned int>);

namespace {

PrefixedAddress addressOf(const QString &address, int prefixLength)
{
    PrefixedAddress result;
    result.address = address;
    result.prefixLength = prefixLength;
    return result;
}

LinkSettings someSettings()
{
    LinkSettings settings;
    settings.present = true;
    settings.autoNegotiation = true;
    settings.speed = 100;
    settings.duplex = LinkSettings::Half;
    return settings;
}

IPv4 someIPv4()
{
    IPv4 ipv4;
    ipv4.enabled = true;
    ipv4.config.manual = {addressOf("192.0.2.10", 24), addressOf("192.0.2.11", 64)};
    ipv4.config.linkLocal = addressOf("169.254.3.4", 24);
    ipv4.config.fromDHCP = addressOf("203.0.113.5", 24);
    ipv4.config.dhcp = true;
    return ipv4;
}

IPv6 someIPv6()
{
    IPv6 ipv6;
    ipv6.enabled = true;
    ipv6.config.acceptRouterAdvert = true;
    ipv6.config.dhcp = IPv6::Configuration::Stateless;
    ipv6.config.manual = {addressOf("2001:db8::1", 64)};
    ipv6.config.linkLocal = {addressOf("fe80::2", 64)};
    ipv6.config.fromDHCP = {addressOf("2001:db8::3", 64)};
    ipv6.config.fromRA = {addressOf("2001:db8::4", 64)};
    return ipv6;
}

OnvifNetworkInterface someInterface()
{
    OnvifNetworkInterface record;
    record.name = "eth0";
    record.token = "token-0";
    record.enabled = true;
    record.hwAddress = "02:00:5e:10:00:01";
    record.interfaceType = 6;
    record.adminSettings = someSettings();
    record.ipv4 = someIPv4();
    record.ipv6 = someIPv6();
    return record;
}

/// A change to a record, and what it changes.
template <typename Record>
struct Change
{
    const char *what;
    std::function<void(Record &record)> apply;
    bool changesEquality;
    bool changesHash;
};

template <typename Record>
void expectChanges(const Record &record, const QList<Change<Record>> &changes)
{
    const Record same = record;
    EXPECT_TRUE(same == record);
    EXPECT_FALSE(same != record);
    EXPECT_EQ(qHash(same), qHash(record));
    for (const Change<Record> &change : changes) {
        Record changed = record;
        change.apply(changed);
        EXPECT_EQ(changed == record, !change.changesEquality) << change.what;
        EXPECT_EQ(record == changed, !change.changesEquality) << change.what;
        EXPECT_EQ(changed != record, change.changesEquality) << change.what;
        EXPECT_EQ(record != changed, change.changesEquality) << change.what;
        EXPECT_EQ(qHash(changed) != qHash(record), change.changesHash) << change.what;
    }
}

TEST(NetworkInterfaceEquality, ofAddressesIsByBothFields)
{
    using Record = PrefixedAddress;
    expectChanges<Record>(addressOf("2001:db8::a", 64),
                          {
                              {"address", [](Record &record) { record.address = "2001:db8::b"; }, true, true},
                              {"letters", [](Record &record) { record.address = "2001:DB8::A"; }, true, true},
                              {"length", [](Record &record) { record.address = "2001:db8::a "; }, true, true},
                              {"prefixLength", [](Record &record) { record.prefixLength = 63; }, true, true},
                              {"sign of prefixLength", [](Record &record) { record.prefixLength = -64; }, true, true},
                          });
    PrefixedAddress empty;
    empty.address = QString("");
    EXPECT_TRUE(empty == PrefixedAddress()) << "a null text and an empty one are equal";
    EXPECT_EQ(qHash(empty), qHash(PrefixedAddress()));
}

TEST(NetworkInterfaceEquality, ofLinkSettingsIsByAllFields)
{
    using Record = LinkSettings;
    expectChanges<Record>(someSettings(),
                          {
                              {"present", [](Record &record) { record.present = false; }, true, false},
                              {"autoNegotiation", [](Record &record) { record.autoNegotiation = false; }, true, true},
                              {"speed", [](Record &record) { record.speed = 101; }, true, true},
                              {"duplex", [](Record &record) { record.duplex = LinkSettings::Full; }, true, true},
                          });
}

TEST(NetworkInterfaceEquality, ofAnIPv4ConfigurationIsByAllFields)
{
    using Record = IPv4::Configuration;
    expectChanges<Record>(
        someIPv4().config,
        {
            {"an entry of manual", [](Record &record) { record.manual[1].prefixLength = 1; }, true, true},
            {"the order of manual", [](Record &record) { record.manual.swapItemsAt(0, 1); }, true, true},
            {"the end of manual", [](Record &record) { record.manual.removeLast(); }, true, true},
            {"linkLocal", [](Record &record) { record.linkLocal.address = "x"; }, true, true},
            {"fromDHCP", [](Record &record) { record.fromDHCP.prefixLength = 1; }, true, true},
            {"linkLocal and fromDHCP", [](Record &record) { std::swap(record.linkLocal, record.fromDHCP); }, true,
             true},
            {"dhcp", [](Record &record) { record.dhcp = false; }, true, true},
        });
}

TEST(NetworkInterfaceEquality, ofAnIPv6ConfigurationIsByAllFields)
{
    using Record = IPv6::Configuration;
    expectChanges<Record>(
        someIPv6().config,
        {
            {"acceptRouterAdvert", [](Record &record) { record.acceptRouterAdvert = false; }, true, true},
            {"dhcp", [](Record &record) { record.dhcp = IPv6::Configuration::Auto; }, true, true},
            {"manual", [](Record &record) { record.manual[0].address = "x"; }, true, true},
            {"linkLocal", [](Record &record) { record.linkLocal[0].address = "x"; }, true, true},
            {"fromDHCP", [](Record &record) { record.fromDHCP[0].address = "x"; }, true, true},
            {"fromRA", [](Record &record) { record.fromRA[0].address = "x"; }, true, true},
            {"an entry more", [](Record &record) { record.fromRA.append(PrefixedAddress()); }, true, true},
            {"the last of manual becomes the first of linkLocal",
             [](Record &record) { record.linkLocal.prepend(record.manual.takeLast()); }, true, false},
            {"the last of linkLocal becomes the first of fromDHCP",
             [](Record &record) { record.fromDHCP.prepend(record.linkLocal.takeLast()); }, true, false},
            {"the first of fromRA becomes the last of fromDHCP",
             [](Record &record) { record.fromDHCP.append(record.fromRA.takeFirst()); }, true, false},
            {"manual and linkLocal", [](Record &record) { record.manual.swap(record.linkLocal); }, true, true},
            {"linkLocal and fromDHCP", [](Record &record) { record.linkLocal.swap(record.fromDHCP); }, true, true},
            {"fromDHCP and fromRA", [](Record &record) { record.fromDHCP.swap(record.fromRA); }, true, true},
        });
    IPv6::Configuration manual;
    manual.manual = {addressOf("2001:db8::1", 64)};
    IPv6::Configuration fromRA;
    fromRA.fromRA = manual.manual;
    EXPECT_TRUE(manual != fromRA);
    EXPECT_EQ(qHash(manual), qHash(fromRA));
}

TEST(NetworkInterfaceEquality, ofAnIPv6ConfigurationIsByTheOrderOfEachList)
{
    using Record = IPv6::Configuration;
    Record config;
    config.manual = {addressOf("2001:db8::1", 64), addressOf("2001:db8::2", 64)};
    config.linkLocal = {addressOf("fe80::3", 64), addressOf("fe80::4", 64)};
    config.fromDHCP = {addressOf("2001:db8::5", 64), addressOf("2001:db8::6", 64)};
    config.fromRA = {addressOf("2001:db8::7", 64), addressOf("2001:db8::8", 64)};
    expectChanges<Record>(
        config, {
                    {"order of manual", [](Record &record) { record.manual.swapItemsAt(0, 1); }, true, true},
                    {"order of linkLocal", [](Record &record) { record.linkLocal.swapItemsAt(0, 1); }, true, true},
                    {"order of fromDHCP", [](Record &record) { record.fromDHCP.swapItemsAt(0, 1); }, true, true},
                    {"order of fromRA", [](Record &record) { record.fromRA.swapItemsAt(0, 1); }, true, true},
                });
}

TEST(NetworkInterfaceEquality, ofEachSideIsByBothFields)
{
    expectChanges<IPv4>(someIPv4(), {
                                        {"enabled", [](IPv4 &record) { record.enabled = false; }, true, true},
                                        {"config", [](IPv4 &record) { record.config.dhcp = false; }, true, true},
                                    });
    expectChanges<IPv6>(someIPv6(),
                        {
                            {"enabled", [](IPv6 &record) { record.enabled = false; }, true, true},
                            {"config", [](IPv6 &record) { record.config.acceptRouterAdvert = false; }, true, true},
                        });
}

TEST(NetworkInterfaceEquality, ofInterfacesIsByTokenAndTheirHashByContent)
{
    using Record = OnvifNetworkInterface;
    expectChanges<Record>(
        someInterface(),
        {
            {"name", [](Record &record) { record.name = "eth1"; }, false, true},
            {"token", [](Record &record) { record.token = "token-1"; }, true, true},
            {"letters of token", [](Record &record) { record.token = "TOKEN-0"; }, true, true},
            {"name and token",
             [](Record &record) {
                 record.name = "token-0";
                 record.token = "eth0";
             },
             true, true},
            {"enabled", [](Record &record) { record.enabled = false; }, false, true},
            {"hwAddress", [](Record &record) { record.hwAddress.clear(); }, false, true},
            {"mtu", [](Record &record) { record.mtu = 1400; }, false, true},
            {"interfaceType", [](Record &record) { record.interfaceType = 71; }, false, false},
            {"adminSettings", [](Record &record) { record.adminSettings.speed = 1; }, false, true},
            {"presence of adminSettings", [](Record &record) { record.adminSettings.present = false; }, false, false},
            {"operSettings", [](Record &record) { record.operSettings.speed = 1; }, false, true},
            {"adminSettings and operSettings",
             [](Record &record) { std::swap(record.adminSettings, record.operSettings); }, false, true},
            {"ipv4", [](Record &record) { record.ipv4.enabled = false; }, false, true},
            {"ipv6", [](Record &record) { record.ipv6.enabled = false; }, false, true},
        });
    EXPECT_TRUE(OnvifNetworkInterface() == OnvifNetworkInterface());
}

TEST(NetworkInterfaceEquality, ofInterfacesIgnoresTheNullFlag)
{
    vorn::XmlResponse response("<NetworkInterfaces/>", QString());
    const OnvifNetworkInterface read(response.get("/NetworkInterfaces"));
    ASSERT_FALSE(read.isNull());
    EXPECT_TRUE(read == OnvifNetworkInterface());
    EXPECT_EQ(qHash(read), qHash(OnvifNetworkInterface()));
}

// The hashes of numbers below were worked out apart from the library.
const unsigned int hashOf0 = 0;
const unsigned int hashOf1 = 0xE0C0E0D0;
const unsigned int hashOf2 = 0x5FEBC252;
const unsigned int hashOfMinus24 = 0xCABE3163;
const unsigned int hashOf24 = 0xC7F9BF0C;
const unsigned int hashOf64 = 0xAF62C91A;
const unsigned int hashOf1500 = 0x034DD245;

unsigned int hashOfText(const QString &text)
{
    return static_cast<unsigned int>(qHash(QStringView(text), 0) & 0xFFFFFFFF);
}

unsigned int folded(std::initializer_list<unsigned int> hashes)
{
    unsigned long long seed = 0;
    for (const unsigned long long hash : hashes) {
        const unsigned long long left = (seed * 64) % 0x100000000;
        const unsigned long long right = seed / 4;
        seed ^= (hash + 0x9E3779B9 + left + right) % 0x100000000;
    }
    return static_cast<unsigned int>(seed);
}

TEST(NetworkInterfaceHash, hasKnownValuesWhereThereIsNoText)
{
    LinkSettings settings;
    EXPECT_EQ(qHash(settings), 0xFB581EEE);
    settings.present = true;
    EXPECT_EQ(qHash(settings), 0xFB581EEE);
    settings.speed = -1;
    EXPECT_EQ(qHash(settings), 0x943DFBAE);
    settings.autoNegotiation = true;
    settings.speed = 1000;
    EXPECT_EQ(qHash(settings), 0x31BF862A);
    settings.speed = 100;
    settings.duplex = LinkSettings::Half;
    EXPECT_EQ(qHash(settings), 0xF9E2E46C);
    settings.autoNegotiation = false;
    settings.speed = -2147483647 - 1;
    EXPECT_EQ(qHash(settings), 0x52D57809);
    settings.speed = 0;
    settings.duplex = static_cast<LinkSettings::Duplex>(-1);
    EXPECT_EQ(qHash(settings), 0xC7486A57);

    IPv6 ipv6;
    EXPECT_EQ(qHash(ipv6.config), 0xCD94BFDE);
    EXPECT_EQ(qHash(ipv6), 0xBF0FFFFC);
    ipv6.config.acceptRouterAdvert = true;
    ipv6.config.dhcp = IPv6::Configuration::Off;
    EXPECT_EQ(qHash(ipv6.config), 0xE18413E8);
    ipv6.enabled = true;
    ipv6.config.dhcp = IPv6::Configuration::Stateless;
    EXPECT_EQ(qHash(ipv6), 0x5FE3BA76);
}

TEST(NetworkInterfaceHash, ofAnAddressFoldsItsFieldsInOrder)
{
    EXPECT_EQ(qHash(PrefixedAddress()), folded({hashOfText(""), hashOf0}));
    EXPECT_EQ(qHash(addressOf("192.0.2.10", 24)), folded({hashOfText("192.0.2.10"), hashOf24}));
    EXPECT_EQ(qHash(addressOf("192.0.2.10", -24)), folded({hashOfText("192.0.2.10"), hashOfMinus24}));
    EXPECT_EQ(qHash(addressOf(u"\u00E9\u4E2D"_s, 64)), folded({hashOfText(u"\u00E9\u4E2D"_s), hashOf64}));
}

TEST(NetworkInterfaceHash, ofAnIPv4ConfigurationStartsWithDhcp)
{
    const unsigned int hashOfNone = folded({hashOfText(""), hashOf0});
    IPv4 ipv4;
    EXPECT_EQ(qHash(ipv4.config), folded({hashOf0, hashOfNone, hashOfNone}));
    EXPECT_EQ(qHash(ipv4), folded({hashOf0, qHash(ipv4.config)}));
    ipv4.config.manual.append(PrefixedAddress());
    EXPECT_EQ(qHash(ipv4.config), folded({hashOf0, hashOfNone, hashOfNone, hashOfNone}));

    ipv4 = someIPv4();
    const unsigned int hashOfConfig = folded({
        hashOf1,
        folded({hashOfText("192.0.2.10"), hashOf24}),
        folded({hashOfText("192.0.2.11"), hashOf64}),
        folded({hashOfText("169.254.3.4"), hashOf24}),
        folded({hashOfText("203.0.113.5"), hashOf24}),
    });
    EXPECT_EQ(qHash(ipv4.config), hashOfConfig);
    EXPECT_EQ(qHash(ipv4), folded({hashOf1, hashOfConfig}));
}

unsigned int hashOfSomeIPv6()
{
    const unsigned int hashOfConfig = folded({
        hashOf1,
        hashOf2,
        folded({hashOfText("2001:db8::1"), hashOf64}),
        folded({hashOfText("fe80::2"), hashOf64}),
        folded({hashOfText("2001:db8::3"), hashOf64}),
        folded({hashOfText("2001:db8::4"), hashOf64}),
    });
    return folded({hashOf1, hashOfConfig});
}

TEST(NetworkInterfaceHash, ofAnIPv6ConfigurationFoldsItsListsAsOne)
{
    EXPECT_EQ(qHash(someIPv6()), hashOfSomeIPv6());
}

TEST(NetworkInterfaceHash, ofAnInterfaceFoldsItsFieldsInOrder)
{
    const unsigned int hashOfNoAddress = folded({hashOfText(""), hashOf0});
    EXPECT_EQ(qHash(OnvifNetworkInterface()),
              folded({hashOfText(""), hashOfText(""), hashOf0, hashOfText(""), hashOf1500, 0xFB581EEE, 0xFB581EEE,
                      folded({hashOf0, folded({hashOf0, hashOfNoAddress, hashOfNoAddress})}), 0xBF0FFFFC}));
    EXPECT_EQ(qHash(someInterface()),
              folded({hashOfText("eth0"), hashOfText("token-0"), hashOf1, hashOfText("02:00:5e:10:00:01"), hashOf1500,
                      0xF9E2E46C, 0xFB581EEE, qHash(someIPv4()), hashOfSomeIPv6()}));
}

template <typename Record>
void expectHashable(const Record &first, const Record &second)
{
    QSet<Record> set{first, second, first};
    EXPECT_EQ(set.size(), 2);
    EXPECT_TRUE(set.contains(first));
    EXPECT_TRUE(set.remove(second));
    EXPECT_FALSE(set.contains(second));

    QHash<Record, int> hash;
    hash[first] = 1;
    hash[second] = 2;
    hash[first] += 10;
    EXPECT_EQ(hash.size(), 2);
    EXPECT_EQ(hash.value(first), 11);
    EXPECT_EQ(hash.value(second), 2);
    EXPECT_FALSE(hash.contains(Record()));
}

TEST(NetworkInterfaceHash, servesTheContainersOfQt)
{
    IPv4 otherIPv4 = someIPv4();
    otherIPv4.config.manual.clear();
    IPv6 otherIPv6 = someIPv6();
    otherIPv6.config.dhcp = IPv6::Configuration::Off;
    LinkSettings otherSettings = someSettings();
    otherSettings.speed = 10;
    OnvifNetworkInterface otherInterface = someInterface();
    otherInterface.token = "token-1";
    expectHashable(addressOf("a", 1), addressOf("a", 2));
    expectHashable(someSettings(), otherSettings);
    expectHashable(someIPv4().config, otherIPv4.config);
    expectHashable(someIPv4(), otherIPv4);
    expectHashable(someIPv6().config, otherIPv6.config);
    expectHashable(someIPv6(), otherIPv6);
    expectHashable(someInterface(), otherInterface);
}

TEST(NetworkInterfaceHash, tellsInterfacesWithOneTokenApartByContent)
{
    OnvifNetworkInterface first = someInterface();
    OnvifNetworkInterface second = first;
    second.mtu = 1400;
    OnvifNetworkInterface third = first;
    third.interfaceType = 0;
    EXPECT_TRUE(first == second && first == third);
    EXPECT_NE(qHash(first), qHash(second));
    EXPECT_EQ(qHash(first), qHash(third));
}

const QByteArray start = "<tds:InterfaceToken>";
const QByteArray afterName = "</tds:InterfaceToken><tds:NetworkInterface><tt:Enabled>";

TEST(NetworkInterfaceToString, ofADefaultRecordHasNoAddresses)
{
    EXPECT_EQ(OnvifNetworkInterface().toString(),
              "<tds:InterfaceToken></tds:InterfaceToken><tds:NetworkInterface><tt:Enabled>false</tt:Enabled><tt:IPv4>"
              "<tt:Enabled>false</tt:Enabled><tt:DHCP>false</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
}

TEST(NetworkInterfaceToString, writesNameFlagsAndManualAddresses)
{
    EXPECT_EQ(someInterface().toString(),
              "<tds:InterfaceToken>eth0</tds:InterfaceToken><tds:NetworkInterface><tt:Enabled>true</tt:Enabled>"
              "<tt:IPv4><tt:Enabled>true</tt:Enabled>"
              "<tt:Manual><tt:Address>192.0.2.10</tt:Address><tt:PrefixLength>24</tt:PrefixLength></tt:Manual>"
              "<tt:Manual><tt:Address>192.0.2.11</tt:Address><tt:PrefixLength>64</tt:PrefixLength></tt:Manual>"
              "<tt:DHCP>true</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
}

TEST(NetworkInterfaceToString, writesEachFlagInItsPlace)
{
    OnvifNetworkInterface record;
    record.enabled = true;
    EXPECT_EQ(record.toString(), start + afterName
                                     + "true</tt:Enabled><tt:IPv4><tt:Enabled>false</tt:Enabled>"
                                       "<tt:DHCP>false</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
    record = OnvifNetworkInterface();
    record.ipv4.enabled = true;
    EXPECT_EQ(record.toString(), start + afterName
                                     + "false</tt:Enabled><tt:IPv4><tt:Enabled>true</tt:Enabled>"
                                       "<tt:DHCP>false</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
    record = OnvifNetworkInterface();
    record.ipv4.config.dhcp = true;
    EXPECT_EQ(record.toString(), start + afterName
                                     + "false</tt:Enabled><tt:IPv4><tt:Enabled>false</tt:Enabled>"
                                       "<tt:DHCP>true</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
}

TEST(NetworkInterfaceToString, writesTheIPv4SideAlsoIfItIsOff)
{
    OnvifNetworkInterface record;
    record.name = "n";
    record.ipv4.config.manual = {addressOf("192.0.2.1", -1)};
    EXPECT_EQ(record.toString(),
              start + "n" + afterName
                  + "false</tt:Enabled><tt:IPv4><tt:Enabled>false</tt:Enabled><tt:Manual><tt:Address>192.0.2.1"
                    "</tt:Address><tt:PrefixLength>-1</tt:PrefixLength></tt:Manual><tt:DHCP>false</tt:DHCP></tt:IPv4>"
                    "</tds:NetworkInterface>");
}

TEST(NetworkInterfaceToString, writesManualAddressesAlsoWithDhcpOnAndIPv4Off)
{
    OnvifNetworkInterface record;
    record.ipv4.config.dhcp = true;
    record.ipv4.config.manual = {addressOf("192.0.2.1", 24), addressOf("192.0.2.2", 25)};
    EXPECT_EQ(record.toString(),
              start + afterName
                  + "false</tt:Enabled><tt:IPv4><tt:Enabled>false</tt:Enabled>"
                    "<tt:Manual><tt:Address>192.0.2.1</tt:Address><tt:PrefixLength>24</tt:PrefixLength></tt:Manual>"
                    "<tt:Manual><tt:Address>192.0.2.2</tt:Address><tt:PrefixLength>25</tt:PrefixLength></tt:Manual>"
                    "<tt:DHCP>true</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
}

TEST(NetworkInterfaceToString, writesAnEmptyManualAddress)
{
    OnvifNetworkInterface record;
    record.ipv4.config.manual = {PrefixedAddress()};
    EXPECT_EQ(record.toString(),
              start + afterName
                  + "false</tt:Enabled><tt:IPv4><tt:Enabled>false</tt:Enabled>"
                    "<tt:Manual><tt:Address></tt:Address><tt:PrefixLength>0</tt:PrefixLength></tt:Manual>"
                    "<tt:DHCP>false</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
}

TEST(NetworkInterfaceToString, keepsOuterWhiteSpace)
{
    OnvifNetworkInterface record;
    record.name = " eth0\n";
    record.ipv4.config.manual = {addressOf("\t192.0.2.1 ", 24)};
    EXPECT_EQ(record.toString(),
              start + " eth0\n" + afterName
                  + "false</tt:Enabled><tt:IPv4><tt:Enabled>false</tt:Enabled>"
                    "<tt:Manual><tt:Address>\t192.0.2.1 </tt:Address><tt:PrefixLength>24</tt:PrefixLength></tt:Manual>"
                    "<tt:DHCP>false</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
}

TEST(NetworkInterfaceToString, leavesOutAllElse)
{
    OnvifNetworkInterface record;
    record.token = "left-out";
    record.hwAddress = "left-out";
    record.mtu = 9;
    record.interfaceType = 9;
    record.adminSettings = someSettings();
    record.operSettings = someSettings();
    record.ipv4.config.linkLocal = addressOf("left-out", 9);
    record.ipv4.config.fromDHCP = addressOf("left-out", 9);
    record.ipv6 = someIPv6();
    EXPECT_EQ(record.toString(),
              "<tds:InterfaceToken></tds:InterfaceToken><tds:NetworkInterface><tt:Enabled>false</tt:Enabled><tt:IPv4>"
              "<tt:Enabled>false</tt:Enabled><tt:DHCP>false</tt:DHCP></tt:IPv4></tds:NetworkInterface>");
}

TEST(NetworkInterfaceToString, escapesAndExpandsNothing)
{
    OnvifNetworkInterface record;
    record.name = u"a&b<c>\"$@\" \u00E9\u4E2D"_s;
    record.ipv4.config.manual = {addressOf("$@&<", 1), addressOf("@$", 2)};
    EXPECT_EQ(record.toString(),
              u"<tds:InterfaceToken>a&b<c>\"$@\" \u00E9\u4E2D</tds:InterfaceToken><tds:NetworkInterface>"
              "<tt:Enabled>false</tt:Enabled><tt:IPv4><tt:Enabled>false</tt:Enabled>"
              "<tt:Manual><tt:Address>$@&<</tt:Address><tt:PrefixLength>1</tt:PrefixLength></tt:Manual>"
              "<tt:Manual><tt:Address>@$</tt:Address><tt:PrefixLength>2</tt:PrefixLength></tt:Manual>"
              "<tt:DHCP>false</tt:DHCP></tt:IPv4></tds:NetworkInterface>"_s);
}

TEST(NetworkInterfaceToString, isCalledThroughTheBase)
{
    const OnvifNetworkInterface record = someInterface();
    const vorn::OnvifDataStructure &base = record;
    EXPECT_TRUE(base.toString().startsWith("<tds:InterfaceToken>eth0</tds:InterfaceToken>"));
}

TEST(NetworkInterfaceToString, fitsIntoARequest)
{
    QDomDocument document;
    ASSERT_TRUE(test::parse(document, "<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope'"
                                      " xmlns:tds='http://www.onvif.org/ver10/device/wsdl'"
                                      " xmlns:tt='http://www.onvif.org/ver10/schema'><s:Body><tds:SetNetworkInterfaces>"
                                          + someInterface().toString()
                                          + "</tds:SetNetworkInterfaces></s:Body></s:Envelope>"));
    const QDomElement request = document.documentElement().firstChildElement().firstChildElement();
    const QDomElement token = request.firstChildElement();
    EXPECT_EQ(token.localName(), "InterfaceToken");
    EXPECT_EQ(token.namespaceURI(), "http://www.onvif.org/ver10/device/wsdl");
    EXPECT_EQ(token.text(), "eth0");
    const QDomElement networkInterface = token.nextSiblingElement();
    EXPECT_EQ(networkInterface.localName(), "NetworkInterface");
    EXPECT_TRUE(networkInterface.nextSiblingElement().isNull());
    const QDomElement ipv4 = networkInterface.lastChildElement();
    EXPECT_EQ(ipv4.localName(), "IPv4");
    EXPECT_EQ(ipv4.namespaceURI(), "http://www.onvif.org/ver10/schema");
    EXPECT_EQ(ipv4.childNodes().count(), 4);
}

struct NameRow
{
    QString (*print)();
    const char *name;
    const char *disambiguation; // null if there is none
};

using Duplex = LinkSettings::Duplex;
using DHCP = IPv6::Configuration::DHCP;

const NameRow names[] = {
    {[] { return vPrintable(LinkSettings::Full); }, "Full", "Meaning full duplex"},
    {[] { return vPrintable(LinkSettings::Half); }, "Half", "Meaning half duplex"},
    {[] { return vPrintable(IPv6::Configuration::Auto); }, "Auto", nullptr},
    {[] { return vPrintable(IPv6::Configuration::Stateful); }, "Stateful", nullptr},
    {[] { return vPrintable(IPv6::Configuration::Stateless); }, "Stateless", nullptr},
    {[] { return vPrintable(IPv6::Configuration::Off); }, "Off", nullptr},
};

QString (*const unnamed[])() = {
    [] { return vPrintable(static_cast<Duplex>(2)); },
    [] { return vPrintable(static_cast<Duplex>(-1)); },
    [] { return vPrintable(static_cast<DHCP>(4)); },
    [] { return vPrintable(static_cast<DHCP>(-1)); },
};

TEST(NetworkInterfaceNames, areEnglishWithoutACatalogue)
{
    for (const NameRow &row : names)
        EXPECT_EQ(row.print(), row.name);
}

TEST(NetworkInterfaceNames, areEmptyOutsideTheEnumerations)
{
    for (const auto print : unnamed)
        EXPECT_EQ(print(), "");
}

using NetworkInterfaceTranslation = test::TranslationTest;

TEST_F(NetworkInterfaceTranslation, isAskedOnceForEachName)
{
    for (const NameRow &row : names) {
        translator.requests.clear();
        EXPECT_EQ(row.print(), row.name);
        ASSERT_EQ(translator.requests.size(), 1U) << row.name;
        EXPECT_EQ(last().context, QByteArray("vorn::OnvifNetworkInterface"));
        EXPECT_EQ(last().sourceText, QByteArray(row.name));
        EXPECT_EQ(last().disambiguation, QByteArray(row.disambiguation));
        EXPECT_EQ(last().disambiguation.isNull(), row.disambiguation == nullptr) << row.name;
        EXPECT_EQ(last().n, -1);
    }
}

TEST_F(NetworkInterfaceTranslation, isNotAskedForUnknownValues)
{
    for (const auto print : unnamed)
        EXPECT_EQ(print(), "");
    EXPECT_TRUE(translator.requests.empty());
}

TEST_F(NetworkInterfaceTranslation, isShownToTheUser)
{
    test::UpperCaseTranslator upper;
    QCoreApplication::installTranslator(&upper);
    EXPECT_EQ(vPrintable(LinkSettings::Half), "HALF");
    EXPECT_EQ(vPrintable(IPv6::Configuration::Stateful), "STATEFUL");
    EXPECT_EQ(vPrintable(static_cast<Duplex>(2)), "");
}

TEST(NetworkInterfaceCatalogue, holdsEachNameOnceAndNoOther)
{
    QList<test::Message> expected;
    for (const NameRow &row : names)
        expected.append(test::Message(row.name, row.disambiguation));
    QList<test::Message> found = test::messagesByContext().value("vorn::OnvifNetworkInterface");
    std::sort(expected.begin(), expected.end());
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, expected);
}

} // namespace
