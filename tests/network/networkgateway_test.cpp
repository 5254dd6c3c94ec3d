#include "support/parsing.h"
#include "support/printing.h"

#include <vorn/onvif/network.h>

#include <QtXml/QDomDocument>
#include <gtest/gtest.h>

#include <type_traits>

using vorn::OnvifNetworkGateway;
using namespace Qt::StringLiterals;

static_assert(std::is_base_of_v<vorn::OnvifDataStructure, OnvifNetworkGateway>);
static_assert(!std::is_base_of_v<vorn::OnvifResponseStructure, OnvifNetworkGateway>);
static_assert(!std::is_convertible_v<QByteArray, OnvifNetworkGateway>);
static_assert(std::is_nothrow_move_constructible_v<OnvifNetworkGateway>);
static_assert(std::is_nothrow_move_assignable_v<OnvifNetworkGateway>);

namespace {

QByteArray replyWith(const QByteArray &addresses)
{
    return "<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope'"
           " xmlns:tds='http://www.onvif.org/ver10/device/wsdl' xmlns:tt='http://www.onvif.org/ver10/schema'><s:Body>"
           "<tds:GetNetworkDefaultGatewayResponse><tds:NetworkGateway>"
           + addresses + "</tds:NetworkGateway></tds:GetNetworkDefaultGatewayResponse></s:Body></s:Envelope>";
}

const QByteArray both =
    replyWith("<tt:IPv4Address>192.0.2.1</tt:IPv4Address><tt:IPv6Address>2001:db8::1</tt:IPv6Address>");

void expectBoth(const OnvifNetworkGateway &gateway)
{
    EXPECT_TRUE(gateway.isNull());
    EXPECT_EQ(gateway.ipv4Address, "192.0.2.1");
    EXPECT_EQ(gateway.ipv6Address, "2001:db8::1");
}

void expectNone(const OnvifNetworkGateway &gateway)
{
    EXPECT_TRUE(gateway.isNull());
    EXPECT_TRUE(gateway.ipv4Address.isEmpty());
    EXPECT_TRUE(gateway.ipv6Address.isEmpty());
    EXPECT_TRUE(gateway.toString().isEmpty());
}

TEST(OnvifNetworkGateway, isEmptyByDefault)
{
    expectNone(OnvifNetworkGateway());
}

TEST(OnvifNetworkGateway, readsBothAddressesAndStaysNull)
{
    expectBoth(OnvifNetworkGateway(both));
    expectBoth(OnvifNetworkGateway(
        replyWith("<IPv6Address>2001:db8::1</IPv6Address><x/><IPv4Address>192.0.2.1</IPv4Address>")));
}

TEST(OnvifNetworkGateway, hasItsFieldsInOrder)
{
    const OnvifNetworkGateway gateway;
    EXPECT_LT(static_cast<const void *>(&gateway.ipv4Address), static_cast<const void *>(&gateway.ipv6Address));
}

TEST(OnvifNetworkGateway, readsEachAddressAlone)
{
    const OnvifNetworkGateway ipv4(replyWith("<tt:IPv4Address>192.0.2.1</tt:IPv4Address>"));
    EXPECT_EQ(ipv4.ipv4Address, "192.0.2.1");
    EXPECT_TRUE(ipv4.ipv6Address.isEmpty());
    EXPECT_TRUE(ipv4.isNull());
    const OnvifNetworkGateway ipv6(replyWith("<tt:IPv6Address>2001:db8::1</tt:IPv6Address>"));
    EXPECT_TRUE(ipv6.ipv4Address.isEmpty());
    EXPECT_EQ(ipv6.ipv6Address, "2001:db8::1");
    EXPECT_TRUE(ipv6.isNull());
}

TEST(OnvifNetworkGateway, readsTheFirstOfSeveralAddresses)
{
    const OnvifNetworkGateway gateway(
        replyWith("<IPv4Address>192.0.2.1</IPv4Address><IPv4Address>192.0.2.2</IPv4Address>"
                  "<IPv6Address>2001:db8::1</IPv6Address><IPv6Address>2001:db8::2</IPv6Address>"));
    EXPECT_EQ(gateway.ipv4Address, "192.0.2.1");
    EXPECT_EQ(gateway.ipv6Address, "2001:db8::1");
}

TEST(OnvifNetworkGateway, addressesAreVerbatim)
{
    const OnvifNetworkGateway gateway(replyWith("<IPv4Address> a &amp; B </IPv4Address><IPv6Address>::</IPv6Address>"));
    EXPECT_EQ(gateway.ipv4Address, " a & B ");
    EXPECT_EQ(gateway.ipv6Address, "::");
}

TEST(OnvifNetworkGateway, otherRepliesGiveNoAddresses)
{
    const QByteArray addresses = "<IPv4Address>192.0.2.1</IPv4Address><IPv6Address>::1</IPv6Address>";
    for (const QByteArray &reply :
         {replyWith(""), replyWith("<Ipv4Address>a</Ipv4Address><ipv6Address>b</ipv6Address>"),
          "<Envelope><Body><GetNetworkDefaultGatewayResponse>" + addresses
              + "</GetNetworkDefaultGatewayResponse></Body></Envelope>",
          "<Envelope><Body><GetDNSResponse><NetworkGateway>" + addresses
              + "</NetworkGateway></GetDNSResponse></Body></Envelope>",
          "<Envelope><Body><Fault>" + addresses + "</Fault></Body></Envelope>",
          "<NetworkGateway>" + addresses + "</NetworkGateway>", QByteArray("not XML"), QByteArray(""), QByteArray()})
        expectNone(OnvifNetworkGateway(reply));
}

TEST(OnvifNetworkGateway, isCopiedMovedAndAssigned)
{
    const OnvifNetworkGateway source(both);
    OnvifNetworkGateway copy(source);
    expectBoth(copy);
    OnvifNetworkGateway moved(std::move(copy));
    expectBoth(moved);
    OnvifNetworkGateway assigned;
    assigned = moved;
    expectBoth(assigned);
    OnvifNetworkGateway moveAssigned;
    moveAssigned = std::move(moved);
    expectBoth(moveAssigned);
    expectBoth(source);
}

/// A gateway that is not null, as a derived record can make one.
struct SetGateway : OnvifNetworkGateway
{
    SetGateway() { setNull(false); }
};

TEST(OnvifNetworkGateway, itsNullFlagIsCopiedMovedAndAssigned)
{
    const SetGateway source;
    ASSERT_FALSE(source.isNull());
    OnvifNetworkGateway copy(source);
    EXPECT_FALSE(copy.isNull());
    OnvifNetworkGateway moved(std::move(copy));
    EXPECT_FALSE(moved.isNull());
    OnvifNetworkGateway assigned;
    assigned = moved;
    EXPECT_FALSE(assigned.isNull());
    OnvifNetworkGateway moveAssigned;
    moveAssigned = std::move(moved);
    EXPECT_FALSE(moveAssigned.isNull());
    moveAssigned = OnvifNetworkGateway();
    EXPECT_TRUE(moveAssigned.isNull());
}

QString printed(const QString &ipv4Address, const QString &ipv6Address)
{
    OnvifNetworkGateway gateway;
    gateway.ipv4Address = ipv4Address;
    gateway.ipv6Address = ipv6Address;
    const vorn::OnvifDataStructure &base = gateway;
    return base.toString();
}

TEST(OnvifNetworkGatewayToString, writesEachAddressThatIsNotEmpty)
{
    EXPECT_EQ(printed("192.0.2.1", "2001:db8::1"),
              "<tt:IPv4Address>192.0.2.1</tt:IPv4Address><tt:IPv6Address>2001:db8::1</tt:IPv6Address>");
    EXPECT_EQ(printed("192.0.2.1", ""), "<tt:IPv4Address>192.0.2.1</tt:IPv4Address>");
    EXPECT_EQ(printed(QString(), "2001:db8::1"), "<tt:IPv6Address>2001:db8::1</tt:IPv6Address>");
    EXPECT_EQ(printed("", ""), "");
    EXPECT_EQ(printed(" ", QString()), "<tt:IPv4Address> </tt:IPv4Address>");
}

TEST(OnvifNetworkGatewayToString, escapesAndExpandsNothing)
{
    EXPECT_EQ(printed("<&>$@", u"\u00E9 $ @"_s),
              u"<tt:IPv4Address><&>$@</tt:IPv4Address><tt:IPv6Address>\u00E9 $ @</tt:IPv6Address>"_s);
}

TEST(OnvifNetworkGatewayToString, fitsIntoARequest)
{
    QDomDocument document;
    ASSERT_TRUE(test::parse(document, "<tds:SetNetworkDefaultGateway xmlns:tds='http://www.onvif.org/ver10/device/wsdl'"
                                      " xmlns:tt='http://www.onvif.org/ver10/schema'>"
                                          + OnvifNetworkGateway(both).toString() + "</tds:SetNetworkDefaultGateway>"));
    const QDomElement ipv4 = document.documentElement().firstChildElement();
    EXPECT_EQ(ipv4.localName(), "IPv4Address");
    EXPECT_EQ(ipv4.namespaceURI(), "http://www.onvif.org/ver10/schema");
    EXPECT_EQ(ipv4.text(), "192.0.2.1");
    const QDomElement ipv6 = ipv4.nextSiblingElement();
    EXPECT_EQ(ipv6.localName(), "IPv6Address");
    EXPECT_EQ(ipv6.text(), "2001:db8::1");
    EXPECT_TRUE(ipv6.nextSibling().isNull());
}

} // namespace
