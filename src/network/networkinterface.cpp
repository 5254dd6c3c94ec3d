#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readenumeration.h"

#include <vorn/onvif/network.h>

namespace vorn {

using namespace Qt::StringLiterals;

using LinkSettings = OnvifNetworkInterface::LinkSettings;
using PrefixedAddress = OnvifNetworkInterface::PrefixedAddress;
using IPv4 = OnvifNetworkInterface::IPv4;
using IPv6 = OnvifNetworkInterface::IPv6;

static void readValue(const RecordElement &element, LinkSettings::Duplex &duplex)
{
    readEnumeration(element, duplex, {{"Full", LinkSettings::Full}, {"Half", LinkSettings::Half}});
}

static void readValue(const RecordElement &element, IPv6::Configuration::DHCP &dhcp)
{
    readEnumeration(element, dhcp,
                    {
                        {"Auto", IPv6::Configuration::Auto},
                        {"Stateful", IPv6::Configuration::Stateful},
                        {"Stateless", IPv6::Configuration::Stateless},
                        {"Off", IPv6::Configuration::Off},
                    });
}

static void readValue(const RecordElement &element, LinkSettings &settings)
{
    settings.present = true;
    readChildren(element, {
                              field("AutoNegotiation", settings.autoNegotiation),
                              field("Speed", settings.speed),
                              field("Duplex", settings.duplex),
                          });
}

/// What an entry lacks is empty or 0, also where an earlier element had it.
static void readValue(const RecordElement &element, PrefixedAddress &entry)
{
    entry = PrefixedAddress();
    readChildren(element, {field("Address", entry.address), field("PrefixLength", entry.prefixLength)});
}

/// Each element adds an entry.
static void readValue(const RecordElement &element, QList<PrefixedAddress> &entries)
{
    readValue(element, entries.emplaceBack());
}

static void readValue(const RecordElement &element, IPv4::Configuration &config)
{
    readChildren(element, {
                              field("Manual", config.manual),
                              field("LinkLocal", config.linkLocal),
                              field("FromDHCP", config.fromDHCP),
                              field("DHCP", config.dhcp),
                          });
}

static void readValue(const RecordElement &element, IPv6::Configuration &config)
{
    readChildren(element, {
                              field("AcceptRouterAdvert", config.acceptRouterAdvert),
                              field("DHCP", config.dhcp),
                              field("Manual", config.manual),
                              field("LinkLocal", config.linkLocal),
                              field("FromDHCP", config.fromDHCP),
                              field("FromRA", config.fromRA),
                          });
}

static void readValue(const RecordElement &element, IPv4 &ipv4)
{
    readChildren(element, {field("Enabled", ipv4.enabled), field("Config", ipv4.config)});
}

static void readValue(const RecordElement &element, IPv6 &ipv6)
{
    readChildren(element, {field("Enabled", ipv6.enabled), field("Config", ipv6.config)});
}

OnvifNetworkInterface::LinkSettings::LinkSettings() = default;

namespace {

/// The assignments of LinkSettings are trivial, so that no code calls them. They are part of the library all the same:
/// what names them makes the compiler put them there.
struct LinkSettingsAssignments
{
    LinkSettings &(LinkSettings::*copy)(const LinkSettings &) = &LinkSettings::operator=;
    LinkSettings &(LinkSettings::*move)(LinkSettings &&) = &LinkSettings::operator=;
};

[[gnu::used]] const LinkSettingsAssignments linkSettingsAssignments;

} // namespace

OnvifNetworkInterface::PrefixedAddress::PrefixedAddress() = default;
OnvifNetworkInterface::PrefixedAddress::PrefixedAddress(const PrefixedAddress &other) = default;
OnvifNetworkInterface::PrefixedAddress::PrefixedAddress(PrefixedAddress &&other) noexcept = default;
PrefixedAddress &OnvifNetworkInterface::PrefixedAddress::operator=(const PrefixedAddress &other) = default;
PrefixedAddress &OnvifNetworkInterface::PrefixedAddress::operator=(PrefixedAddress &&other) noexcept = default;
OnvifNetworkInterface::PrefixedAddress::~PrefixedAddress() = default;

OnvifNetworkInterface::IPv4::Configuration::Configuration() = default;
OnvifNetworkInterface::IPv4::Configuration::Configuration(const Configuration &other) = default;
OnvifNetworkInterface::IPv4::Configuration::Configuration(Configuration &&other) noexcept = default;
IPv4::Configuration &OnvifNetworkInterface::IPv4::Configuration::operator=(const Configuration &other) = default;
IPv4::Configuration &OnvifNetworkInterface::IPv4::Configuration::operator=(Configuration &&other) noexcept = default;
OnvifNetworkInterface::IPv4::Configuration::~Configuration() = default;

OnvifNetworkInterface::IPv4::IPv4() = default;
OnvifNetworkInterface::IPv4::IPv4(const IPv4 &other) = default;
OnvifNetworkInterface::IPv4::IPv4(IPv4 &&other) noexcept = default;
IPv4 &OnvifNetworkInterface::IPv4::operator=(const IPv4 &other) = default;
IPv4 &OnvifNetworkInterface::IPv4::operator=(IPv4 &&other) noexcept = default;
OnvifNetworkInterface::IPv4::~IPv4() = default;

OnvifNetworkInterface::IPv6::Configuration::Configuration() = default;
OnvifNetworkInterface::IPv6::Configuration::Configuration(const Configuration &other) = default;
OnvifNetworkInterface::IPv6::Configuration::Configuration(Configuration &&other) noexcept = default;
IPv6::Configuration &OnvifNetworkInterface::IPv6::Configuration::operator=(const Configuration &other) = default;
IPv6::Configuration &OnvifNetworkInterface::IPv6::Configuration::operator=(Configuration &&other) noexcept = default;
OnvifNetworkInterface::IPv6::Configuration::~Configuration() = default;

OnvifNetworkInterface::IPv6::IPv6() = default;
OnvifNetworkInterface::IPv6::IPv6(const IPv6 &other) = default;
OnvifNetworkInterface::IPv6::IPv6(IPv6 &&other) noexcept = default;
IPv6 &OnvifNetworkInterface::IPv6::operator=(const IPv6 &other) = default;
IPv6 &OnvifNetworkInterface::IPv6::operator=(IPv6 &&other) noexcept = default;
OnvifNetworkInterface::IPv6::~IPv6() = default;

static void readValue(const RecordElement &element, OnvifNetworkInterface &networkInterface)
{
    networkInterface.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Enabled", networkInterface.enabled),
                              group("Info",
                                    {
                                        field("Name", networkInterface.name),
                                        field("HwAddress", networkInterface.hwAddress),
                                        field("MTU", networkInterface.mtu),
                                    }),
                              group("Link",
                                    {
                                        field("InterfaceType", networkInterface.interfaceType),
                                        field("AdminSettings", networkInterface.adminSettings),
                                        field("OperSettings", networkInterface.operSettings),
                                    }),
                              field("IPv4", networkInterface.ipv4),
                              field("IPv6", networkInterface.ipv6),
                          });
    // Reading includes one printing. It has no effect on the record.
    (void)networkInterface.toString();
}

OnvifNetworkInterface::OnvifNetworkInterface() = default;

OnvifNetworkInterface::OnvifNetworkInterface(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

OnvifNetworkInterface::OnvifNetworkInterface(const OnvifNetworkInterface &other) = default;
OnvifNetworkInterface::OnvifNetworkInterface(OnvifNetworkInterface &&other) noexcept = default;
OnvifNetworkInterface &OnvifNetworkInterface::operator=(const OnvifNetworkInterface &other) = default;
OnvifNetworkInterface &OnvifNetworkInterface::operator=(OnvifNetworkInterface &&other) noexcept = default;
OnvifNetworkInterface::~OnvifNetworkInterface() = default;

OnvifNetworkInterfaceVector::OnvifNetworkInterfaceVector() = default;

OnvifNetworkInterfaceVector::OnvifNetworkInterfaceVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/NetworkInterfaces"_s});
}

OnvifNetworkInterfaceVector::OnvifNetworkInterfaceVector(const OnvifNetworkInterfaceVector &other) = default;
OnvifNetworkInterfaceVector::OnvifNetworkInterfaceVector(OnvifNetworkInterfaceVector &&other) noexcept = default;
OnvifNetworkInterfaceVector &OnvifNetworkInterfaceVector::operator=(const OnvifNetworkInterfaceVector &other) = default;
OnvifNetworkInterfaceVector &
OnvifNetworkInterfaceVector::operator=(OnvifNetworkInterfaceVector &&other) noexcept = default;
OnvifNetworkInterfaceVector::~OnvifNetworkInterfaceVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifNetworkInterface)
