#include <vorn/onvif/network.h>
#include <vorn/onvif/placeholderstring.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QStringView>

#include <string>
#include <type_traits>

namespace vorn {

using LinkSettings = OnvifNetworkInterface::LinkSettings;
using PrefixedAddress = OnvifNetworkInterface::PrefixedAddress;
using IPv4 = OnvifNetworkInterface::IPv4;
using IPv6 = OnvifNetworkInterface::IPv6;

namespace {

/// Written out here because Qt's hash of an integer is not the same in all its versions.
quint32 integerHash(qint64 value)
{
    const quint64 factor = 0xD6E8FEB86659FD93U;
    auto x = static_cast<quint64>(value);
    x ^= x >> 32U;
    x *= factor;
    x ^= x >> 32U;
    x *= factor;
    x ^= x >> 32U;
    return static_cast<quint32>(x);
}

template <typename Part>
quint32 partHash(const Part &part)
{
    if constexpr (std::is_same_v<Part, QString>)
        return static_cast<quint32>(qHash(QStringView(part), 0));
    else if constexpr (std::is_integral_v<Part> || std::is_enum_v<Part>)
        return integerHash(part);
    else
        return qHash(part);
}

template <typename Part>
void fold(quint32 &seed, const Part &part)
{
    seed ^= partHash(part) + 0x9E3779B9U + (seed << 6U) + (seed >> 2U);
}

/// A list has no hash of its own: its elements are folded one by one.
template <typename Part>
void fold(quint32 &seed, const QList<Part> &parts)
{
    for (const Part &part : parts)
        fold(seed, part);
}

/// The hash of a record from its \a parts in this order.
template <typename... Parts>
quint32 hashOf(const Parts &...parts)
{
    quint32 seed = 0;
    (fold(seed, parts), ...);
    return seed;
}

} // namespace

bool OnvifNetworkInterface::LinkSettings::operator==(const LinkSettings &other) const
{
    return present == other.present && autoNegotiation == other.autoNegotiation && speed == other.speed
           && duplex == other.duplex;
}

bool OnvifNetworkInterface::LinkSettings::operator!=(const LinkSettings &other) const
{
    return !(*this == other);
}

bool OnvifNetworkInterface::PrefixedAddress::operator==(const PrefixedAddress &other) const
{
    return address == other.address && prefixLength == other.prefixLength;
}

bool OnvifNetworkInterface::PrefixedAddress::operator!=(const PrefixedAddress &other) const
{
    return !(*this == other);
}

bool OnvifNetworkInterface::IPv4::Configuration::operator==(const Configuration &other) const
{
    return manual == other.manual && linkLocal == other.linkLocal && fromDHCP == other.fromDHCP && dhcp == other.dhcp;
}

bool OnvifNetworkInterface::IPv4::Configuration::operator!=(const Configuration &other) const
{
    return !(*this == other);
}

bool OnvifNetworkInterface::IPv4::operator==(const IPv4 &other) const
{
    return enabled == other.enabled && config == other.config;
}

bool OnvifNetworkInterface::IPv4::operator!=(const IPv4 &other) const
{
    return !(*this == other);
}

bool OnvifNetworkInterface::IPv6::Configuration::operator==(const Configuration &other) const
{
    return acceptRouterAdvert == other.acceptRouterAdvert && dhcp == other.dhcp && manual == other.manual
           && linkLocal == other.linkLocal && fromDHCP == other.fromDHCP && fromRA == other.fromRA;
}

bool OnvifNetworkInterface::IPv6::Configuration::operator!=(const Configuration &other) const
{
    return !(*this == other);
}

bool OnvifNetworkInterface::IPv6::operator==(const IPv6 &other) const
{
    return enabled == other.enabled && config == other.config;
}

bool OnvifNetworkInterface::IPv6::operator!=(const IPv6 &other) const
{
    return !(*this == other);
}

bool OnvifNetworkInterface::operator==(const OnvifNetworkInterface &other) const
{
    return token == other.token;
}

bool OnvifNetworkInterface::operator!=(const OnvifNetworkInterface &other) const
{
    return !(*this == other);
}

unsigned int qHash(const PrefixedAddress &address)
{
    return hashOf(address.address, address.prefixLength);
}

unsigned int qHash(const LinkSettings &settings)
{
    return hashOf(settings.autoNegotiation, settings.speed, settings.duplex);
}

unsigned int qHash(const IPv4::Configuration &configuration)
{
    return hashOf(configuration.dhcp, configuration.manual, configuration.linkLocal, configuration.fromDHCP);
}

unsigned int qHash(const IPv6::Configuration &configuration)
{
    return hashOf(configuration.acceptRouterAdvert, configuration.dhcp, configuration.manual, configuration.linkLocal,
                  configuration.fromDHCP, configuration.fromRA);
}

unsigned int qHash(const IPv4 &ipv4)
{
    return hashOf(ipv4.enabled, ipv4.config);
}

unsigned int qHash(const IPv6 &ipv6)
{
    return hashOf(ipv6.enabled, ipv6.config);
}

// Wider than operator==: it follows the content, not the identity.
unsigned int qHash(const OnvifNetworkInterface &networkInterface)
{
    return hashOf(networkInterface.name, networkInterface.token, networkInterface.enabled, networkInterface.hwAddress,
                  networkInterface.mtu, networkInterface.adminSettings, networkInterface.operSettings,
                  networkInterface.ipv4, networkInterface.ipv6);
}

QString vPrintable(IPv6::Configuration::DHCP dhcp)
{
    switch (dhcp) {
    case IPv6::Configuration::Auto:
        return QCoreApplication::translate("vorn::OnvifNetworkInterface", "Auto");
    case IPv6::Configuration::Stateful:
        return QCoreApplication::translate("vorn::OnvifNetworkInterface", "Stateful");
    case IPv6::Configuration::Stateless:
        return QCoreApplication::translate("vorn::OnvifNetworkInterface", "Stateless");
    case IPv6::Configuration::Off:
        return QCoreApplication::translate("vorn::OnvifNetworkInterface", "Off");
    }
    return {};
}

QString vPrintable(LinkSettings::Duplex duplex)
{
    switch (duplex) {
    case LinkSettings::Full:
        return QCoreApplication::translate("vorn::OnvifNetworkInterface", "Full", "Meaning full duplex");
    case LinkSettings::Half:
        return QCoreApplication::translate("vorn::OnvifNetworkInterface", "Half", "Meaning half duplex");
    }
    return {};
}

QString OnvifNetworkInterface::toString() const
{
    const char *const placeHolder = "$@";
    std::string text = PlaceHolderString("<tds:InterfaceToken>$@</tds:InterfaceToken><tds:NetworkInterface>"
                                         "<tt:Enabled>$@</tt:Enabled><tt:IPv4><tt:Enabled>$@</tt:Enabled>",
                                         placeHolder)
                           .arg(name)
                           .arg(enabled)
                           .arg(ipv4.enabled)
                           .str();
    for (const PrefixedAddress &entry : ipv4.config.manual) {
        text +=
            PlaceHolderString("<tt:Manual><tt:Address>$@</tt:Address><tt:PrefixLength>$@</tt:PrefixLength></tt:Manual>",
                              placeHolder)
                .arg(entry.address)
                .arg(entry.prefixLength)
                .str();
    }
    text += PlaceHolderString("<tt:DHCP>$@</tt:DHCP></tt:IPv4></tds:NetworkInterface>", placeHolder)
                .arg(ipv4.config.dhcp)
                .str();
    return QString::fromStdString(text);
}

} // namespace vorn
