// Reading network interfaces from a reply, and the records as values.

#include "support/allocations.h"
#include "support/printing.h"

#include <vorn/onvif/network.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <iterator>
#include <type_traits>

using vorn::OnvifNetworkInterface;
using vorn::OnvifNetworkInterfaceVector;
using vorn::XmlResponse;
using vorn::XmlResponseNode;
using IPv4 = OnvifNetworkInterface::IPv4;
using IPv6 = OnvifNetworkInterface::IPv6;
using LinkSettings = OnvifNetworkInterface::LinkSettings;
using PrefixedAddress = OnvifNetworkInterface::PrefixedAddress;

static_assert(std::is_base_of_v<vorn::OnvifDataStructure, OnvifNetworkInterface>);
static_assert(!std::is_base_of_v<vorn::OnvifResponseStructure, OnvifNetworkInterface>);
static_assert(!std::is_convertible_v<XmlResponseNode, OnvifNetworkInterface>);
static_assert(std::is_nothrow_move_constructible_v<OnvifNetworkInterface>);
static_assert(std::is_nothrow_move_assignable_v<OnvifNetworkInterface>);

static_assert(std::is_base_of_v<QList<OnvifNetworkInterface>, OnvifNetworkInterfaceVector>);
static_assert(std::is_base_of_v<vorn::OnvifResponseStructure, OnvifNetworkInterfaceVector>);
static_assert(!std::is_base_of_v<vorn::OnvifDataStructure, OnvifNetworkInterfaceVector>);
static_assert(!std::is_polymorphic_v<OnvifNetworkInterfaceVector>);
static_assert(std::is_nothrow_move_constructible_v<OnvifNetworkInterfaceVector>);
static_assert(std::is_nothrow_move_assignable_v<OnvifNetworkInterfaceVector>);

static_assert(std::is_trivially_copyable_v<LinkSettings>);
static_assert(std::is_trivially_destructible_v<LinkSettings>);
static_assert(!std::is_trivially_copyable_v<PrefixedAddress>);

static_assert(std::is_same_v<std::underlying_type_t<LinkSettings::Duplex>, qint32>);
static_assert(std::is_same_v<std::underlying_type_t<IPv6::Configuration::DHCP>, qint32>);
static_assert(LinkSettings::Full == 0 && LinkSettings::Half == 1);
static_assert(IPv6::Configuration::Auto == 0 && IPv6::Configuration::Stateful == 1);
static_assert(IPv6::Configuration::Stateless == 2 && IPv6::Configuration::Off == 3);

template <typename Record>
constexpr bool isPlainValue =
    !std::is_polymorphic_v<
        Record> && std::is_nothrow_move_constructible_v<Record> && std::is_nothrow_move_assignable_v<Record> && std::is_copy_constructible_v<Record> && std::is_copy_assignable_v<Record> && std::is_default_constructible_v<Record>;
static_assert(isPlainValue<LinkSettings> && isPlainValue<PrefixedAddress>);
static_assert(isPlainValue<IPv4> && isPlainValue<IPv4::Configuration>);
static_assert(isPlainValue<IPv6> && isPlainValue<IPv6::Configuration>);

static_assert(std::is_same_v<decltype(OnvifNetworkInterface::mtu), int>);
static_assert(std::is_same_v<decltype(OnvifNetworkInterface::interfaceType), int>);
static_assert(std::is_same_v<decltype(LinkSettings::speed), int>);
static_assert(std::is_same_v<decltype(PrefixedAddress::prefixLength), int>);
static_assert(std::is_same_v<decltype(IPv4::Configuration::dhcp), bool>);
static_assert(std::is_same_v<decltype(IPv4::Configuration::linkLocal), PrefixedAddress>);
static_assert(std::is_same_v<decltype(IPv6::Configuration::linkLocal), QList<PrefixedAddress>>);

namespace {

/// The interface whose element has \a attributes and \a content.
OnvifNetworkInterface interfaceWith(const QByteArray &content, const QByteArray &attributes = {})
{
    XmlResponse response("<NetworkInterfaces " + attributes + ">" + content + "</NetworkInterfaces>", QString());
    return OnvifNetworkInterface(response.get("/NetworkInterfaces"));
}

PrefixedAddress addressOf(const QString &address, int prefixLength)
{
    PrefixedAddress result;
    result.address = address;
    result.prefixLength = prefixLength;
    return result;
}

void expectAddress(const PrefixedAddress &entry, const QString &address, int prefixLength)
{
    EXPECT_EQ(entry.address, address);
    EXPECT_EQ(entry.prefixLength, prefixLength);
}

void expectDefaults(const LinkSettings &settings)
{
    EXPECT_FALSE(settings.present);
    EXPECT_FALSE(settings.autoNegotiation);
    EXPECT_EQ(settings.speed, 0);
    EXPECT_EQ(settings.duplex, LinkSettings::Full);
}

void expectDefaults(const IPv4 &ipv4)
{
    EXPECT_FALSE(ipv4.enabled);
    EXPECT_TRUE(ipv4.config.manual.isEmpty());
    expectAddress(ipv4.config.linkLocal, QString(), 0);
    expectAddress(ipv4.config.fromDHCP, QString(), 0);
    EXPECT_FALSE(ipv4.config.dhcp);
}

void expectDefaults(const IPv6 &ipv6)
{
    EXPECT_FALSE(ipv6.enabled);
    EXPECT_FALSE(ipv6.config.acceptRouterAdvert);
    EXPECT_EQ(ipv6.config.dhcp, IPv6::Configuration::Auto);
    EXPECT_TRUE(ipv6.config.manual.isEmpty());
    EXPECT_TRUE(ipv6.config.linkLocal.isEmpty());
    EXPECT_TRUE(ipv6.config.fromDHCP.isEmpty());
    EXPECT_TRUE(ipv6.config.fromRA.isEmpty());
}

void expectDefaults(const OnvifNetworkInterface &record)
{
    EXPECT_TRUE(record.name.isEmpty());
    EXPECT_TRUE(record.token.isEmpty());
    EXPECT_FALSE(record.enabled);
    EXPECT_TRUE(record.hwAddress.isEmpty());
    EXPECT_EQ(record.mtu, 1500);
    EXPECT_EQ(record.interfaceType, 0);
    expectDefaults(record.adminSettings);
    expectDefaults(record.operSettings);
    expectDefaults(record.ipv4);
    expectDefaults(record.ipv6);
}

const QByteArray wholeContent =
    "<tt:Enabled>true</tt:Enabled>"
    "<tt:Info><tt:Name>eth0</tt:Name><tt:HwAddress>02:00:5e:10:00:01</tt:HwAddress><tt:MTU>1400</tt:MTU></tt:Info>"
    "<tt:Link>"
    "<tt:AdminSettings><tt:AutoNegotiation>true</tt:AutoNegotiation><tt:Speed>1000</tt:Speed>"
    "<tt:Duplex>Full</tt:Duplex></tt:AdminSettings>"
    "<tt:OperSettings><tt:AutoNegotiation>false</tt:AutoNegotiation><tt:Speed>100</tt:Speed>"
    "<tt:Duplex>Half</tt:Duplex></tt:OperSettings>"
    "<tt:InterfaceType>6</tt:InterfaceType></tt:Link>"
    "<tt:IPv4><tt:Enabled>true</tt:Enabled><tt:Config>"
    "<tt:Manual><tt:Address>192.0.2.10</tt:Address><tt:PrefixLength>24</tt:PrefixLength></tt:Manual>"
    "<tt:Manual><tt:Address>198.51.100.7</tt:Address><tt:PrefixLength>25</tt:PrefixLength></tt:Manual>"
    "<tt:LinkLocal><tt:Address>169.254.3.4</tt:Address><tt:PrefixLength>16</tt:PrefixLength></tt:LinkLocal>"
    "<tt:FromDHCP><tt:Address>203.0.113.5</tt:Address><tt:PrefixLength>26</tt:PrefixLength></tt:FromDHCP>"
    "<tt:DHCP>true</tt:DHCP></tt:Config></tt:IPv4>"
    "<tt:IPv6><tt:Enabled>true</tt:Enabled><tt:Config>"
    "<tt:AcceptRouterAdvert>true</tt:AcceptRouterAdvert><tt:DHCP>Stateless</tt:DHCP>"
    "<tt:Manual><tt:Address>2001:db8::1</tt:Address><tt:PrefixLength>64</tt:PrefixLength></tt:Manual>"
    "<tt:LinkLocal><tt:Address>fe80::2</tt:Address><tt:PrefixLength>65</tt:PrefixLength></tt:LinkLocal>"
    "<tt:FromDHCP><tt:Address>2001:db8::3</tt:Address><tt:PrefixLength>66</tt:PrefixLength></tt:FromDHCP>"
    "<tt:FromRA><tt:Address>2001:db8::4</tt:Address><tt:PrefixLength>67</tt:PrefixLength></tt:FromRA>"
    "</tt:Config></tt:IPv6>";

void expectWhole(const OnvifNetworkInterface &record)
{
    EXPECT_FALSE(record.isNull());
    EXPECT_EQ(record.name, "eth0");
    EXPECT_EQ(record.token, "token-0");
    EXPECT_TRUE(record.enabled);
    EXPECT_EQ(record.hwAddress, "02:00:5e:10:00:01");
    EXPECT_EQ(record.mtu, 1400);
    EXPECT_EQ(record.interfaceType, 6);
    EXPECT_TRUE(record.adminSettings.present);
    EXPECT_TRUE(record.adminSettings.autoNegotiation);
    EXPECT_EQ(record.adminSettings.speed, 1000);
    EXPECT_EQ(record.adminSettings.duplex, LinkSettings::Full);
    EXPECT_TRUE(record.operSettings.present);
    EXPECT_FALSE(record.operSettings.autoNegotiation);
    EXPECT_EQ(record.operSettings.speed, 100);
    EXPECT_EQ(record.operSettings.duplex, LinkSettings::Half);
    EXPECT_TRUE(record.ipv4.enabled);
    ASSERT_EQ(record.ipv4.config.manual.size(), 2);
    expectAddress(record.ipv4.config.manual[0], "192.0.2.10", 24);
    expectAddress(record.ipv4.config.manual[1], "198.51.100.7", 25);
    expectAddress(record.ipv4.config.linkLocal, "169.254.3.4", 16);
    expectAddress(record.ipv4.config.fromDHCP, "203.0.113.5", 26);
    EXPECT_TRUE(record.ipv4.config.dhcp);
    EXPECT_TRUE(record.ipv6.enabled);
    EXPECT_TRUE(record.ipv6.config.acceptRouterAdvert);
    EXPECT_EQ(record.ipv6.config.dhcp, IPv6::Configuration::Stateless);
    ASSERT_EQ(record.ipv6.config.manual.size(), 1);
    expectAddress(record.ipv6.config.manual[0], "2001:db8::1", 64);
    ASSERT_EQ(record.ipv6.config.linkLocal.size(), 1);
    expectAddress(record.ipv6.config.linkLocal[0], "fe80::2", 65);
    ASSERT_EQ(record.ipv6.config.fromDHCP.size(), 1);
    expectAddress(record.ipv6.config.fromDHCP[0], "2001:db8::3", 66);
    ASSERT_EQ(record.ipv6.config.fromRA.size(), 1);
    expectAddress(record.ipv6.config.fromRA[0], "2001:db8::4", 67);
}

OnvifNetworkInterface wholeInterface()
{
    return interfaceWith(wholeContent, "token='token-0'");
}

TEST(OnvifNetworkInterface, isNullByDefault)
{
    const OnvifNetworkInterface record;
    EXPECT_TRUE(record.isNull());
    expectDefaults(record);
}

TEST(OnvifNetworkInterface, hasItsFieldsInOrder)
{
    LinkSettings settings;
    settings.present = true;
    settings.speed = 10;
    const auto &[present, autoNegotiation, speed, duplex] = settings;
    EXPECT_TRUE(present);
    EXPECT_FALSE(autoNegotiation);
    EXPECT_EQ(speed, 10);
    EXPECT_EQ(duplex, LinkSettings::Full);

    const auto &[address, prefixLength] = addressOf("a", 1);
    EXPECT_EQ(address, "a");
    EXPECT_EQ(prefixLength, 1);

    const OnvifNetworkInterface record = wholeInterface();
    const auto &[enabled4, config4] = record.ipv4;
    EXPECT_TRUE(enabled4);
    const auto &[manual4, linkLocal4, fromDHCP4, dhcp4] = config4;
    EXPECT_EQ(manual4.size(), 2);
    EXPECT_EQ(linkLocal4.prefixLength, 16);
    EXPECT_EQ(fromDHCP4.prefixLength, 26);
    EXPECT_TRUE(dhcp4);

    const auto &[enabled6, config6] = record.ipv6;
    EXPECT_TRUE(enabled6);
    const auto &[acceptRouterAdvert, dhcp6, manual6, linkLocal6, fromDHCP6, fromRA] = config6;
    EXPECT_TRUE(acceptRouterAdvert);
    EXPECT_EQ(dhcp6, IPv6::Configuration::Stateless);
    EXPECT_EQ(manual6.constFirst().prefixLength, 64);
    EXPECT_EQ(linkLocal6.constFirst().prefixLength, 65);
    EXPECT_EQ(fromDHCP6.constFirst().prefixLength, 66);
    EXPECT_EQ(fromRA.constFirst().prefixLength, 67);

    const char *const start = reinterpret_cast<const char *>(&record);
    const auto offset = [start](const auto &field) { return reinterpret_cast<const char *>(&field) - start; };
    const std::ptrdiff_t offsets[] = {
        offset(record.name), offset(record.token),         offset(record.enabled),       offset(record.hwAddress),
        offset(record.mtu),  offset(record.interfaceType), offset(record.adminSettings), offset(record.operSettings),
        offset(record.ipv4), offset(record.ipv6)};
    EXPECT_TRUE(std::is_sorted(std::begin(offsets), std::end(offsets)));
}

TEST(OnvifNetworkInterface, readsAllFields)
{
    expectWhole(wholeInterface());
}

TEST(OnvifNetworkInterface, readsElementsInAnyOrder)
{
    const OnvifNetworkInterface record = interfaceWith(
        "<IPv6><Config><FromRA><PrefixLength>64</PrefixLength><Address>2001:db8::9</Address></FromRA>"
        "<DHCP>Off</DHCP></Config><Enabled>true</Enabled></IPv6>"
        "<IPv4><Config><DHCP>true</DHCP><Manual><PrefixLength>8</PrefixLength><Address>192.0.2.1</Address></Manual>"
        "</Config><Enabled>true</Enabled></IPv4>"
        "<Link><InterfaceType>71</InterfaceType><OperSettings><Speed>10</Speed></OperSettings></Link>"
        "<Info><MTU>9000</MTU><Name>n</Name></Info><Enabled>true</Enabled>");
    EXPECT_TRUE(record.enabled);
    EXPECT_EQ(record.name, "n");
    EXPECT_EQ(record.mtu, 9000);
    EXPECT_EQ(record.interfaceType, 71);
    EXPECT_EQ(record.operSettings.speed, 10);
    EXPECT_TRUE(record.ipv4.enabled);
    EXPECT_TRUE(record.ipv4.config.dhcp);
    ASSERT_EQ(record.ipv4.config.manual.size(), 1);
    expectAddress(record.ipv4.config.manual[0], "192.0.2.1", 8);
    EXPECT_TRUE(record.ipv6.enabled);
    EXPECT_EQ(record.ipv6.config.dhcp, IPv6::Configuration::Off);
    ASSERT_EQ(record.ipv6.config.fromRA.size(), 1);
    expectAddress(record.ipv6.config.fromRA[0], "2001:db8::9", 64);
}

TEST(OnvifNetworkInterface, ofAMissingNodeIsNull)
{
    XmlResponse response("<r/>", QString());
    const OnvifNetworkInterface record(response.get("/r/NetworkInterfaces"));
    EXPECT_TRUE(record.isNull());
    expectDefaults(record);
}

TEST(OnvifNetworkInterface, ofANullElementIsNullThoughItsNodeIsValid)
{
    XmlResponseNode node;
    node.valid = true;
    EXPECT_TRUE(OnvifNetworkInterface(node).isNull());
}

TEST(OnvifNetworkInterface, ofAnElementIsNotNullThoughItsNodeIsNotValid)
{
    XmlResponse response("<NetworkInterfaces token='token-0'>" + wholeContent + "</NetworkInterfaces>", QString());
    XmlResponseNode node = response.get("/NetworkInterfaces");
    node.valid = false;
    expectWhole(OnvifNetworkInterface(node));
}

TEST(OnvifNetworkInterface, isPrintedOnceWhileItIsRead)
{
    XmlResponse response("<r/>", QString());
    const XmlResponseNode missing = response.get("/r/NetworkInterfaces"); // costs nothing to read
    const test::AllocationCounter whileRead;
    const OnvifNetworkInterface record(missing);
    const std::size_t readAllocations = whileRead.count();

    const test::AllocationCounter whilePrinted;
    const QString text = record.toString();
    const std::size_t printAllocations = whilePrinted.count();
    EXPECT_GT(printAllocations, 0U);
    EXPECT_EQ(readAllocations, printAllocations);
}

TEST(OnvifNetworkInterface, ofAnEmptyElementIsNotNull)
{
    const OnvifNetworkInterface record = interfaceWith("");
    EXPECT_FALSE(record.isNull());
    expectDefaults(record);
}

TEST(OnvifNetworkInterface, tokenIsVerbatim)
{
    EXPECT_EQ(interfaceWith("", "token=' a &amp; B '").token, " a & B ");
    EXPECT_EQ(interfaceWith("", "Token='x' TOKEN='y'").token, "");
    EXPECT_EQ(interfaceWith("<token>x</token><Info token='y'/>").token, "");
}

TEST(OnvifNetworkInterface, textsAreVerbatim)
{
    const OnvifNetworkInterface record =
        interfaceWith("<Info><Name> eth&lt;0 </Name><HwAddress>02-00-5E\n</HwAddress></Info>"
                      "<IPv4><Config><LinkLocal><Address> any text </Address></LinkLocal></Config></IPv4>");
    EXPECT_EQ(record.name, " eth<0 ");
    EXPECT_EQ(record.hwAddress, "02-00-5E\n");
    EXPECT_EQ(record.ipv4.config.linkLocal.address, " any text ");
}

TEST(OnvifNetworkInterface, textsAreThoseOfTheWholeElement)
{
    const auto read = [](const QByteArray &content) {
        const OnvifNetworkInterface record = interfaceWith("<Info><Name>" + content + "</Name><HwAddress>" + content
                                                           + "</HwAddress></Info><IPv4><Config><Manual><Address>"
                                                           + content + "</Address></Manual></Config></IPv4>");
        EXPECT_EQ(record.hwAddress, record.name);
        EXPECT_EQ(record.ipv4.config.manual.constFirst().address, record.name);
        return record.name;
    };
    EXPECT_EQ(read("e<b>th</b>0"), "eth0");
    EXPECT_EQ(read("<b>eth</b>0"), "eth0");
    EXPECT_EQ(read("<b>eth<i>0</i></b>"), "eth0");
    EXPECT_EQ(read("et<![CDATA[h0]]>"), "eth0");
    EXPECT_EQ(read("<![CDATA[<eth0>]]>"), "<eth0>");
    EXPECT_EQ(read("eth<!-- 1 -->0"), "eth0");
    EXPECT_EQ(read("eth<?x 1?>0"), "eth0");
    EXPECT_EQ(read(" e <b> th </b> 0 "), " e  th  0 ");
}

TEST(OnvifNetworkInterface, namesAreComparedCaseSensitively)
{
    expectDefaults(interfaceWith(
        "<enabled>true</enabled><info><Name>n</Name></info><Info><name>n</name><HWAddress>h</HWAddress><Mtu>1</Mtu>"
        "</Info><link><InterfaceType>1</InterfaceType></link><Link><interfaceType>1</interfaceType><adminSettings/>"
        "<operSettings/></Link><ipv4><Enabled>true</Enabled></ipv4><Ipv4><Enabled>true</Enabled></Ipv4>"
        "<IPv4><enabled>true</enabled><config><DHCP>true</DHCP></config><Config><manual/><Dhcp>true</Dhcp></Config>"
        "</IPv4><IPv6><enabled>true</enabled><Config><fromRA/><FromRa/><FromDhcp/><linklocal/><manual/>"
        "<Dhcp>Off</Dhcp><acceptRouterAdvert>true</acceptRouterAdvert></Config></IPv6>"));
}

TEST(OnvifNetworkInterface, otherElementsDoNoHarm)
{
    OnvifNetworkInterface record = interfaceWith(
        "<Extension><Enabled>true</Enabled><Info><Name>n</Name></Info></Extension><Name>n</Name><MTU>1</MTU>"
        "<HwAddress>h</HwAddress><InterfaceType>1</InterfaceType><AdminSettings/><OperSettings/><DHCP>true</DHCP>"
        "<Manual/><Config><DHCP>true</DHCP></Config>"
        "<Info><Extension><MTU>1</MTU></Extension><Enabled>true</Enabled></Info>"
        "<Link><Speed>1</Speed><AutoNegotiation>true</AutoNegotiation><Duplex>Half</Duplex><Extension/></Link>"
        "<IPv4><Extension><Enabled>true</Enabled></Extension><Config><FromRA><Address>a</Address></FromRA>"
        "<AcceptRouterAdvert>true</AcceptRouterAdvert><Enabled>true</Enabled><Extension/></Config></IPv4>"
        "<IPv6><AcceptRouterAdvert>true</AcceptRouterAdvert><Config><Enabled>true</Enabled><Extension>"
        "<LinkLocal/></Extension></Config></IPv6>");
    expectDefaults(record);
    record = interfaceWith("<IPv4><Config><LinkLocal><Extension><Address>a</Address></Extension><Prefix>1</Prefix>"
                           "<Address>b</Address></LinkLocal></Config></IPv4>");
    expectAddress(record.ipv4.config.linkLocal, "b", 0);
}

TEST(OnvifNetworkInterface, addressesAreReadBelowConfigOnly)
{
    // The form of a request.
    expectDefaults(interfaceWith("<IPv4><Manual><Address>192.0.2.1</Address><PrefixLength>24</PrefixLength></Manual>"
                                 "<LinkLocal><Address>a</Address></LinkLocal><FromDHCP><Address>a</Address></FromDHCP>"
                                 "<DHCP>true</DHCP></IPv4>")
                       .ipv4);
    expectDefaults(interfaceWith("<IPv6><Manual/><LinkLocal/><FromDHCP/><FromRA/><DHCP>Off</DHCP></IPv6>").ipv6);
}

TEST(OnvifNetworkInterface, printsWhatItReadWithoutEscapingIt)
{
    const OnvifNetworkInterface record =
        interfaceWith("<Info><Name>x&lt;/tds:InterfaceToken&gt;&lt;evil/&gt;</Name></Info>"
                      "<IPv4><Config><Manual><Address>&lt;&amp;&gt;</Address></Manual></Config></IPv4>");
    EXPECT_TRUE(record.toString().startsWith("<tds:InterfaceToken>x</tds:InterfaceToken><evil/></tds:InterfaceToken>"));
    EXPECT_TRUE(record.toString().contains("<tt:Address><&></tt:Address>"));
}

TEST(OnvifNetworkInterface, doesNotReadBackWhatItPrints)
{
    OnvifNetworkInterface record;
    record.name = "eth0";
    record.ipv4.config.dhcp = true;
    record.ipv4.config.manual = {addressOf("192.0.2.1", 24)};
    XmlResponse response("<r xmlns:tds='urn:d' xmlns:tt='urn:t'>" + record.toString().toUtf8() + "</r>", "/r");
    const OnvifNetworkInterface back(response.get("/NetworkInterface"));
    EXPECT_FALSE(back.isNull());
    expectDefaults(back);
}

// Each boolean of the record, and the content that holds it.
struct BooleanRow
{
    const char *before;
    const char *element;
    const char *after;
    bool (*read)(const OnvifNetworkInterface &record);
};

const BooleanRow booleans[] = {
    {"", "Enabled", "", [](const OnvifNetworkInterface &record) { return record.enabled; }},
    {"<Link><AdminSettings>", "AutoNegotiation", "</AdminSettings></Link>",
     [](const OnvifNetworkInterface &record) { return record.adminSettings.autoNegotiation; }},
    {"<Link><OperSettings>", "AutoNegotiation", "</OperSettings></Link>",
     [](const OnvifNetworkInterface &record) { return record.operSettings.autoNegotiation; }},
    {"<IPv4>", "Enabled", "</IPv4>", [](const OnvifNetworkInterface &record) { return record.ipv4.enabled; }},
    {"<IPv4><Config>", "DHCP", "</Config></IPv4>",
     [](const OnvifNetworkInterface &record) { return record.ipv4.config.dhcp; }},
    {"<IPv6>", "Enabled", "</IPv6>", [](const OnvifNetworkInterface &record) { return record.ipv6.enabled; }},
    {"<IPv6><Config>", "AcceptRouterAdvert", "</Config></IPv6>",
     [](const OnvifNetworkInterface &record) { return record.ipv6.config.acceptRouterAdvert; }},
};

TEST(OnvifNetworkInterfaceBoolean, isTrueForTheWordAlone)
{
    for (const BooleanRow &row : booleans) {
        const auto read = [&row](const QByteArray &text) {
            const QByteArray name = row.element;
            return row.read(interfaceWith(row.before + ("<" + name + ">" + text + "</" + name + ">") + row.after));
        };
        EXPECT_TRUE(read("true")) << row.before << row.element;
        for (const char *text : {"1", "True", "TRUE", " true", "true ", "true\n", "yes", "Auto", "false", ""})
            EXPECT_FALSE(read(text)) << row.before << row.element << ' ' << text;
    }
}

TEST(OnvifNetworkInterfaceBoolean, isReadFromTheWholeElement)
{
    for (const BooleanRow &row : booleans) {
        const auto read = [&row](const QByteArray &content) {
            const QByteArray name = row.element;
            return row.read(interfaceWith(row.before + ("<" + name + ">" + content + "</" + name + ">") + row.after));
        };
        for (const char *content : {"t<b>ru</b>e", "<b>true</b>", "<b>t<i>r</i></b>ue", "tr<![CDATA[ue]]>",
                                    "<![CDATA[true]]>", "t<!-- -->rue", "<!-- false -->true", "tru<?x y?>e"})
            EXPECT_TRUE(read(content)) << row.before << row.element << ' ' << content;
        for (const char *content : {"true<b>1</b>", "<b>x</b>true", "true<![CDATA[ ]]>", "<b/>", "<!-- true -->"})
            EXPECT_FALSE(read(content)) << row.before << row.element << ' ' << content;
    }
}

TEST(OnvifNetworkInterfaceBoolean, followsItsLastElement)
{
    for (const BooleanRow &row : booleans) {
        const auto read = [&row](const QByteArray &first, const QByteArray &second) {
            const QByteArray name = row.element;
            return row.read(interfaceWith(
                row.before + ("<" + name + ">" + first + "</" + name + "><" + name + ">" + second + "</" + name + ">")
                + row.after));
        };
        EXPECT_TRUE(read("false", "true")) << row.before << row.element;
        EXPECT_FALSE(read("true", "false")) << row.before << row.element;
        EXPECT_FALSE(read("true", "1")) << row.before << row.element;
        EXPECT_FALSE(read("true", "")) << row.before << row.element;
    }
}

// Each number of the record, and the content that holds it.
struct NumberRow
{
    const char *before;
    const char *element;
    const char *after;
    int (*read)(const OnvifNetworkInterface &record);
};

const NumberRow numbers[] = {
    {"<Info>", "MTU", "</Info>", [](const OnvifNetworkInterface &record) { return record.mtu; }},
    {"<Link>", "InterfaceType", "</Link>", [](const OnvifNetworkInterface &record) { return record.interfaceType; }},
    {"<Link><AdminSettings>", "Speed", "</AdminSettings></Link>",
     [](const OnvifNetworkInterface &record) { return record.adminSettings.speed; }},
    {"<Link><OperSettings>", "Speed", "</OperSettings></Link>",
     [](const OnvifNetworkInterface &record) { return record.operSettings.speed; }},
    {"<IPv4><Config><Manual>", "PrefixLength", "</Manual></Config></IPv4>",
     [](const OnvifNetworkInterface &record) { return record.ipv4.config.manual.constFirst().prefixLength; }},
    {"<IPv4><Config><LinkLocal>", "PrefixLength", "</LinkLocal></Config></IPv4>",
     [](const OnvifNetworkInterface &record) { return record.ipv4.config.linkLocal.prefixLength; }},
    {"<IPv4><Config><FromDHCP>", "PrefixLength", "</FromDHCP></Config></IPv4>",
     [](const OnvifNetworkInterface &record) { return record.ipv4.config.fromDHCP.prefixLength; }},
    {"<IPv6><Config><Manual>", "PrefixLength", "</Manual></Config></IPv6>",
     [](const OnvifNetworkInterface &record) { return record.ipv6.config.manual.constFirst().prefixLength; }},
    {"<IPv6><Config><LinkLocal>", "PrefixLength", "</LinkLocal></Config></IPv6>",
     [](const OnvifNetworkInterface &record) { return record.ipv6.config.linkLocal.constFirst().prefixLength; }},
    {"<IPv6><Config><FromDHCP>", "PrefixLength", "</FromDHCP></Config></IPv6>",
     [](const OnvifNetworkInterface &record) { return record.ipv6.config.fromDHCP.constFirst().prefixLength; }},
    {"<IPv6><Config><FromRA>", "PrefixLength", "</FromRA></Config></IPv6>",
     [](const OnvifNetworkInterface &record) { return record.ipv6.config.fromRA.constFirst().prefixLength; }},
};

TEST(OnvifNetworkInterfaceNumber, isZeroForWhatIsNoDecimalInteger)
{
    const std::pair<const char *, int> rows[] = {
        {"7", 7},
        {"-24", -24},
        {"2147483647", 2147483647},
        {"2147483648", 0},
        {"-2147483648", INT_MIN},
        {"-2147483649", 0},
        {"0x10", 0},
        {"007", 7},
        {"many", 0},
        {"1.5", 0},
        {"12 Mbit", 0},
        {"1,500", 0},
        {"1 500", 0},
        {"1e3", 0},
        {"- 7", 0},
        {"--7", 0},
        {" ", 0},
        {"", 0},
    };
    for (const NumberRow &row : numbers) {
        for (const auto &[text, expected] : rows) {
            const QByteArray name = row.element;
            EXPECT_EQ(row.read(interfaceWith(row.before + ("<" + name + ">" + text + "</" + name + ">") + row.after)),
                      expected)
                << row.before << row.element << ' ' << text;
        }
    }
}

TEST(OnvifNetworkInterfaceNumber, mayHaveWhiteSpaceAroundItAndASign)
{
    const std::pair<const char *, int> rows[] = {
        {" 7 ", 7}, {"\n7\t", 7}, {" -24\n", -24}, {"+7", 7}, {" +7", 7},
    };
    for (const NumberRow &row : numbers) {
        for (const auto &[text, expected] : rows) {
            const QByteArray name = row.element;
            EXPECT_EQ(row.read(interfaceWith(row.before + ("<" + name + ">" + text + "</" + name + ">") + row.after)),
                      expected)
                << row.before << row.element << ' ' << text;
        }
    }
}

TEST(OnvifNetworkInterfaceNumber, isReadFromTheWholeElement)
{
    const std::pair<const char *, int> rows[] = {
        {"1<b>40</b>0", 1400},    {"<b>1400</b>", 1400}, {"14<![CDATA[00]]>", 1400}, {"<![CDATA[1400]]>", 1400},
        {"14<!-- 5 -->00", 1400}, {"14<?x 5?>00", 1400}, {"1400<b>x</b>", 0},
    };
    for (const NumberRow &row : numbers) {
        for (const auto &[content, expected] : rows) {
            const QByteArray name = row.element;
            EXPECT_EQ(
                row.read(interfaceWith(row.before + ("<" + name + ">" + content + "</" + name + ">") + row.after)),
                expected)
                << row.before << row.element << ' ' << content;
        }
    }
}

TEST(OnvifNetworkInterfaceNumber, followsItsLastElement)
{
    for (const NumberRow &row : numbers) {
        const QByteArray name = row.element;
        const auto element = [&name](const QByteArray &text) { return "<" + name + ">" + text + "</" + name + ">"; };
        EXPECT_EQ(row.read(interfaceWith(row.before + (element("7") + element("8")) + row.after)), 8) << row.before;
        EXPECT_EQ(row.read(interfaceWith(row.before + (element("7") + element("x")) + row.after)), 0) << row.before;
    }
}

TEST(OnvifNetworkInterface, mtuIs1500UnlessThereIsAnElement)
{
    EXPECT_EQ(interfaceWith("").mtu, 1500);
    EXPECT_EQ(interfaceWith("<Info><Name>n</Name></Info>").mtu, 1500);
    EXPECT_EQ(interfaceWith("<Info><MTU>none</MTU></Info>").mtu, 0);
    EXPECT_EQ(interfaceWith("<Info><MTU/></Info>").mtu, 0);
}

TEST(OnvifNetworkInterface, aSecondInfoReplacesOnlyWhatItHolds)
{
    const OnvifNetworkInterface record =
        interfaceWith("<Info><Name>a</Name><HwAddress>h</HwAddress><MTU>1</MTU></Info><Info><Name>b</Name></Info>");
    EXPECT_EQ(record.name, "b");
    EXPECT_EQ(record.hwAddress, "h");
    EXPECT_EQ(record.mtu, 1);
    EXPECT_EQ(interfaceWith("<Info><Name>a</Name><Name/><HwAddress>h</HwAddress><HwAddress>i</HwAddress></Info>").name,
              "");
    EXPECT_EQ(interfaceWith("<Info><HwAddress>h</HwAddress><HwAddress>i</HwAddress></Info>").hwAddress, "i");
}

TEST(OnvifNetworkInterfaceLink, isPresentIfThereIsAnElement)
{
    OnvifNetworkInterface record = interfaceWith("<Link><AdminSettings/></Link>");
    EXPECT_TRUE(record.adminSettings.present);
    EXPECT_FALSE(record.adminSettings.autoNegotiation);
    EXPECT_EQ(record.adminSettings.speed, 0);
    EXPECT_EQ(record.adminSettings.duplex, LinkSettings::Full);
    expectDefaults(record.operSettings);

    record = interfaceWith("<Link><OperSettings>text</OperSettings></Link>");
    expectDefaults(record.adminSettings);
    EXPECT_TRUE(record.operSettings.present);

    record = interfaceWith("<Link><InterfaceType>6</InterfaceType></Link>");
    expectDefaults(record.adminSettings);
    expectDefaults(record.operSettings);
}

TEST(OnvifNetworkInterfaceLink, duplexIsReadByItsText)
{
    const auto read = [](const QByteArray &elements) {
        const OnvifNetworkInterface admin =
            interfaceWith("<Link><AdminSettings>" + elements + "</AdminSettings></Link>");
        const OnvifNetworkInterface oper = interfaceWith("<Link><OperSettings>" + elements + "</OperSettings></Link>");
        EXPECT_EQ(admin.adminSettings.duplex, oper.operSettings.duplex);
        return admin.adminSettings.duplex;
    };
    EXPECT_EQ(read("<Duplex>Full</Duplex>"), LinkSettings::Full);
    EXPECT_EQ(read("<Duplex>Half</Duplex>"), LinkSettings::Half);
    EXPECT_EQ(read("<Duplex>Half</Duplex><Duplex>Full</Duplex>"), LinkSettings::Full);
    for (const char *text : {"half", "HALF", "Half ", "full", "1", "Auto", ""}) {
        const QByteArray unknown = QByteArray("<Duplex>") + text + "</Duplex>";
        EXPECT_EQ(read(unknown), LinkSettings::Full) << text;
        EXPECT_EQ(read("<Duplex>Half</Duplex>" + unknown), LinkSettings::Half) << text;
    }
}

TEST(OnvifNetworkInterfaceLink, duplexIsReadFromTheWholeElement)
{
    const auto read = [](const QByteArray &content) {
        return interfaceWith("<Link><AdminSettings><Duplex>" + content + "</Duplex></AdminSettings></Link>")
            .adminSettings.duplex;
    };
    for (const char *content :
         {"H<b>al</b>f", "<b>Half</b>", "Ha<![CDATA[lf]]>", "<![CDATA[Half]]>", "H<!-- -->alf", "Hal<?x y?>f"})
        EXPECT_EQ(read(content), LinkSettings::Half) << content;
    for (const char *content : {"Half<b>x</b>", "<b>x</b>Half", "Half<![CDATA[ ]]>", "<!-- Half -->"})
        EXPECT_EQ(read(content), LinkSettings::Full) << content;
}

TEST(OnvifNetworkInterfaceLink, aSecondElementReplacesOnlyWhatItHolds)
{
    const OnvifNetworkInterface record =
        interfaceWith("<Link><AdminSettings><AutoNegotiation>true</AutoNegotiation><Speed>10</Speed>"
                      "<Duplex>Half</Duplex></AdminSettings><AdminSettings><Speed>100</Speed></AdminSettings></Link>"
                      "<Link><OperSettings><Speed>1</Speed></OperSettings></Link>");
    EXPECT_TRUE(record.adminSettings.autoNegotiation);
    EXPECT_EQ(record.adminSettings.speed, 100);
    EXPECT_EQ(record.adminSettings.duplex, LinkSettings::Half);
    EXPECT_EQ(record.operSettings.speed, 1);
}

TEST(OnvifNetworkInterfaceIPv4, eachManualAddsAnEntry)
{
    const OnvifNetworkInterface record = interfaceWith(
        "<IPv4><Config><Manual><Address>a</Address><PrefixLength>1</PrefixLength></Manual><DHCP>true</DHCP><Manual/>"
        "<Manual><Address>a</Address><PrefixLength>1</PrefixLength></Manual></Config>"
        "<Config><Manual><PrefixLength>3</PrefixLength></Manual></Config></IPv4>"
        "<IPv4><Config><Manual><Address>d</Address></Manual></Config></IPv4>");
    const QList<PrefixedAddress> &manual = record.ipv4.config.manual;
    ASSERT_EQ(manual.size(), 5);
    expectAddress(manual[0], "a", 1);
    expectAddress(manual[1], "", 0);
    expectAddress(manual[2], "a", 1);
    expectAddress(manual[3], "", 3);
    expectAddress(manual[4], "d", 0);
    EXPECT_TRUE(record.ipv4.config.dhcp);
}

TEST(OnvifNetworkInterfaceIPv4, theLastLinkLocalAndDhcpAddressCount)
{
    for (const char *name : {"LinkLocal", "FromDHCP"}) {
        const auto read = [name](const QByteArray &first, const QByteArray &second) {
            const QByteArray start = QByteArray("<") + name + ">";
            const QByteArray end = QByteArray("</") + name + ">";
            const OnvifNetworkInterface record =
                interfaceWith("<IPv4><Config>" + start + first + end + start + second + end + "</Config></IPv4>");
            const bool isLinkLocal = QByteArray(name) == "LinkLocal";
            expectAddress(isLinkLocal ? record.ipv4.config.fromDHCP : record.ipv4.config.linkLocal, "", 0);
            return isLinkLocal ? record.ipv4.config.linkLocal : record.ipv4.config.fromDHCP;
        };
        const QByteArray first = "<Address>a</Address><PrefixLength>1</PrefixLength>";
        expectAddress(read(first, "<Address>b</Address><PrefixLength>2</PrefixLength>"), "b", 2);
        expectAddress(read(first, "<Address>b</Address>"), "b", 0);
        expectAddress(read(first, "<PrefixLength>2</PrefixLength>"), "", 2);
        expectAddress(read(first, ""), "", 0);
    }
}

TEST(OnvifNetworkInterfaceIPv6, eachAddressAddsAnEntryToItsList)
{
    const std::pair<const char *, QList<PrefixedAddress> IPv6::Configuration::*> rows[] = {
        {"Manual", &IPv6::Configuration::manual},
        {"LinkLocal", &IPv6::Configuration::linkLocal},
        {"FromDHCP", &IPv6::Configuration::fromDHCP},
        {"FromRA", &IPv6::Configuration::fromRA},
    };
    for (const auto &[name, list] : rows) {
        const QByteArray start = QByteArray("<") + name + ">";
        const QByteArray end = QByteArray("</") + name + ">";
        const OnvifNetworkInterface record =
            interfaceWith("<IPv6><Config>" + start + "<Address>a</Address><PrefixLength>1</PrefixLength>" + end + start
                          + end + start + "<Address>x</Address><Address>b</Address>" + end + "</Config></IPv6>");
        const QList<PrefixedAddress> &entries = record.ipv6.config.*list;
        ASSERT_EQ(entries.size(), 3) << name;
        expectAddress(entries[0], "a", 1);
        expectAddress(entries[1], "", 0);
        expectAddress(entries[2], "b", 0);
        const IPv6::Configuration &config = record.ipv6.config;
        EXPECT_EQ(config.manual.size() + config.linkLocal.size() + config.fromDHCP.size() + config.fromRA.size(), 3);
    }
}

TEST(OnvifNetworkInterfaceIPv6, dhcpIsReadByItsText)
{
    const auto read = [](const QByteArray &elements) {
        return interfaceWith("<IPv6><Config>" + elements + "</Config></IPv6>").ipv6.config.dhcp;
    };
    EXPECT_EQ(read("<DHCP>Auto</DHCP>"), IPv6::Configuration::Auto);
    EXPECT_EQ(read("<DHCP>Stateful</DHCP>"), IPv6::Configuration::Stateful);
    EXPECT_EQ(read("<DHCP>Stateless</DHCP>"), IPv6::Configuration::Stateless);
    EXPECT_EQ(read("<DHCP>Off</DHCP>"), IPv6::Configuration::Off);
    EXPECT_EQ(read("<DHCP>Off</DHCP><DHCP>Auto</DHCP>"), IPv6::Configuration::Auto);
    for (const char *text : {"true", "false", "off", "OFF", " Off", "3", ""}) {
        const QByteArray unknown = QByteArray("<DHCP>") + text + "</DHCP>";
        EXPECT_EQ(read(unknown), IPv6::Configuration::Auto) << text;
        EXPECT_EQ(read("<DHCP>Off</DHCP>" + unknown), IPv6::Configuration::Off) << text;
    }
}

TEST(OnvifNetworkInterfaceIPv6, dhcpIsReadFromTheWholeElement)
{
    const auto read = [](const QByteArray &content) {
        return interfaceWith("<IPv6><Config><DHCP>" + content + "</DHCP></Config></IPv6>").ipv6.config.dhcp;
    };
    EXPECT_EQ(read("State<b>ful</b>"), IPv6::Configuration::Stateful);
    EXPECT_EQ(read("State<![CDATA[less]]>"), IPv6::Configuration::Stateless);
    EXPECT_EQ(read("O<!-- -->ff"), IPv6::Configuration::Off);
    EXPECT_EQ(read("Off<b>x</b>"), IPv6::Configuration::Auto);
}

TEST(OnvifNetworkInterface, isCopiedMovedAndAssigned)
{
    const OnvifNetworkInterface source = wholeInterface();
    OnvifNetworkInterface copy(source);
    expectWhole(copy);
    OnvifNetworkInterface moved(std::move(copy));
    expectWhole(moved);
    OnvifNetworkInterface assigned;
    assigned = moved;
    expectWhole(assigned);
    OnvifNetworkInterface moveAssigned;
    moveAssigned = std::move(moved);
    expectWhole(moveAssigned);
    expectWhole(source);
    assigned = OnvifNetworkInterface();
    EXPECT_TRUE(assigned.isNull());
    expectDefaults(assigned);
}

template <typename Record>
void expectCopiedMovedAndAssigned(const Record &source)
{
    Record copy(source);
    EXPECT_TRUE(copy == source);
    Record moved(std::move(copy));
    EXPECT_TRUE(moved == source);
    Record assigned;
    EXPECT_TRUE(assigned != source) << "the source must not be a default one";
    assigned = moved;
    EXPECT_TRUE(assigned == source);
    EXPECT_TRUE(moved == source);
    Record moveAssigned;
    moveAssigned = std::move(moved);
    EXPECT_TRUE(moveAssigned == source);
}

TEST(OnvifNetworkInterface, itsPartsAreCopiedMovedAndAssigned)
{
    const OnvifNetworkInterface source = wholeInterface();
    expectCopiedMovedAndAssigned(source.adminSettings);
    expectCopiedMovedAndAssigned(source.operSettings);
    expectCopiedMovedAndAssigned(source.ipv4.config.linkLocal);
    expectCopiedMovedAndAssigned(source.ipv4.config);
    expectCopiedMovedAndAssigned(source.ipv4);
    expectCopiedMovedAndAssigned(source.ipv6.config);
    expectCopiedMovedAndAssigned(source.ipv6);
}

TEST(OnvifNetworkInterface, copiesAreIndependent)
{
    const OnvifNetworkInterface source = wholeInterface();
    OnvifNetworkInterface copy(source);
    copy.ipv4.config.manual[0].address = "changed";
    copy.ipv6.config.fromRA.clear();
    expectWhole(source);
}

// The list of them.

const QString root = "/Envelope/Body/GetNetworkInterfacesResponse";

QByteArray replyWith(const QByteArray &entries)
{
    return "<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope'"
           " xmlns:tds='http://www.onvif.org/ver10/device/wsdl' xmlns:tt='http://www.onvif.org/ver10/schema'><s:Body>"
           "<tds:GetNetworkInterfacesResponse>"
           + entries + "</tds:GetNetworkInterfacesResponse></s:Body></s:Envelope>";
}

const QByteArray twoInterfaces =
    replyWith("<tds:NetworkInterfaces token='token-0'>" + wholeContent
              + "</tds:NetworkInterfaces><tds:Other token='x'/><tds:NetworkInterfaces token='token-1'/>");

void expectTwo(OnvifNetworkInterfaceVector list)
{
    ASSERT_EQ(list.size(), 2);
    expectWhole(list[0]);
    EXPECT_EQ(list[1].token, "token-1");
    EXPECT_FALSE(list[1].isNull());
    EXPECT_FALSE(list[1].enabled);
    EXPECT_EQ(list[1].mtu, 1500);
    EXPECT_EQ(list.xml, QString::fromLatin1(twoInterfaces));
    EXPECT_EQ(list.response.getText("/NetworkInterfaces/Info/Name"), "eth0");
}

TEST(OnvifNetworkInterfaceVector, isEmptyByDefault)
{
    OnvifNetworkInterfaceVector list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.xml.isEmpty());
    EXPECT_FALSE(list.response.get("/Envelope").valid);
}

TEST(OnvifNetworkInterfaceVector, isAListFirstAndAResponseAfterIt)
{
    const OnvifNetworkInterfaceVector list;
    const void *const start = &list;
    EXPECT_EQ(static_cast<const void *>(static_cast<const QList<OnvifNetworkInterface> *>(&list)), start);
    EXPECT_GT(static_cast<const void *>(static_cast<const vorn::OnvifResponseStructure *>(&list)), start);
}

TEST(OnvifNetworkInterfaceVector, readsEachInterfaceInOrder)
{
    expectTwo(OnvifNetworkInterfaceVector(twoInterfaces, root));
}

TEST(OnvifNetworkInterfaceVector, keepsWhatIsEqualOrEmpty)
{
    const OnvifNetworkInterfaceVector list(
        replyWith("<NetworkInterfaces token='a'/><NetworkInterfaces token='a'/><NetworkInterfaces/>"), root);
    ASSERT_EQ(list.size(), 3);
    EXPECT_EQ(list[0], list[1]);
    EXPECT_EQ(list[2].token, "");
    EXPECT_FALSE(list[2].isNull());
}

TEST(OnvifNetworkInterfaceVector, startsAtTheGivenRoot)
{
    EXPECT_EQ(OnvifNetworkInterfaceVector("<r><NetworkInterfaces/></r>", "/r").size(), 1);
    EXPECT_TRUE(OnvifNetworkInterfaceVector(twoInterfaces, "/Envelope/Body").isEmpty());
    EXPECT_TRUE(OnvifNetworkInterfaceVector(twoInterfaces, QString()).isEmpty());
}

TEST(OnvifNetworkInterfaceVector, otherRepliesGiveAnEmptyListAndKeepTheText)
{
    for (const QByteArray &reply :
         {replyWith(""), replyWith("<NetworkInterface token='a'/><networkinterfaces token='a'/>"),
          QByteArray("<Envelope><Body><GetRelayOutputsResponse><NetworkInterfaces/></GetRelayOutputsResponse></Body>"
                     "</Envelope>"),
          QByteArray("<Envelope><Body><Fault/></Body></Envelope>"), QByteArray("not XML"), QByteArray("")}) {
        OnvifNetworkInterfaceVector list(reply, root);
        EXPECT_TRUE(list.isEmpty()) << reply.toStdString();
        EXPECT_EQ(list.xml, QString::fromLatin1(reply));
        EXPECT_TRUE(list.response.getAll("/NetworkInterfaces").isEmpty());
    }
    EXPECT_TRUE(OnvifNetworkInterfaceVector(QByteArray(), root).isEmpty());
}

TEST(OnvifNetworkInterfaceVector, isCopiedMovedAndAssigned)
{
    const OnvifNetworkInterfaceVector source(twoInterfaces, root);
    OnvifNetworkInterfaceVector copy(source);
    expectTwo(copy);
    OnvifNetworkInterfaceVector moved(std::move(copy));
    expectTwo(moved);
    OnvifNetworkInterfaceVector assigned;
    assigned = moved;
    expectTwo(assigned);
    OnvifNetworkInterfaceVector moveAssigned;
    moveAssigned = std::move(moved);
    expectTwo(moveAssigned);
    expectTwo(source);
}

OnvifNetworkInterface named(const QString &token)
{
    OnvifNetworkInterface record;
    record.token = token;
    record.ipv4.config.manual = {addressOf(token, 24)};
    return record;
}

QStringList tokensOf(const QList<OnvifNetworkInterface> &list)
{
    QStringList tokens;
    for (const OnvifNetworkInterface &record : list) {
        tokens.append(record.token);
        EXPECT_EQ(record.ipv4.config.manual.constFirst().address, record.token);
    }
    return tokens;
}

TEST(OnvifNetworkInterfaceVector, isAListInEveryRespect)
{
    OnvifNetworkInterfaceVector list;
    for (int i = 0; i < 100; ++i)
        list.append(named(QString::number(i)));
    ASSERT_EQ(list.size(), 100);
    EXPECT_EQ(list.constFirst().token, "0");
    EXPECT_EQ(list.constLast().token, "99");
    list.remove(3, 97);
    EXPECT_EQ(tokensOf(list), QStringList({"0", "1", "2"}));

    const QList<OnvifNetworkInterface> shared = list;
    list.insert(1, named("b"));
    list.prepend(named("a"));
    EXPECT_EQ(tokensOf(list), QStringList({"a", "0", "b", "1", "2"}));
    EXPECT_EQ(tokensOf(shared), QStringList({"0", "1", "2"}));

    std::sort(list.begin(), list.end(),
              [](const OnvifNetworkInterface &a, const OnvifNetworkInterface &b) { return a.token < b.token; });
    EXPECT_EQ(tokensOf(list), QStringList({"0", "1", "2", "a", "b"}));
    EXPECT_EQ(list.indexOf(named("2")), 2);
    EXPECT_TRUE(list.contains(named("b")));
    EXPECT_FALSE(list.contains(named("c")));
    list.swapItemsAt(0, 4);
    list.move(1, 2);
    EXPECT_EQ(list.takeAt(0).token, "b");
    EXPECT_EQ(tokensOf(list), QStringList({"2", "1", "a", "0"}));
    list.removeAll(named("a"));
    list.squeeze();
    list.reserve(50);
    EXPECT_EQ(tokensOf(list), QStringList({"2", "1", "0"}));
    EXPECT_TRUE(list.mid(1) == QList<OnvifNetworkInterface>({named("1"), named("0")}));
    list.resize(4);
    EXPECT_TRUE(list.constLast().isNull());
}

} // namespace
