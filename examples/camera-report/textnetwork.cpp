#include "given.h"
#include "textparts.h"

#include <QtCore/QStringList>

namespace client {
namespace {

using Interface = vorn::OnvifNetworkInterface;

/// An address with its prefix, unless the device gave none.
QString text(const Interface::PrefixedAddress &address)
{
    return address.prefixLength == 0 ? address.address : address.address + '/' + QString::number(address.prefixLength);
}

QStringList texts(const QList<Interface::PrefixedAddress> &addresses, const QString &origin)
{
    QStringList result;
    for (const Interface::PrefixedAddress &address : addresses) {
        if (!address.address.isEmpty())
            result += text(address) + origin;
    }
    return result;
}

// Whether something is on is asked of the reply: the record takes what is missing for off.

QString ipv4Text(const Interface::IPv4 &ipv4, const Given &given)
{
    if (given.flag("/IPv4/Enabled") == false)
        return "off";
    QStringList parts = texts(ipv4.config.manual, "") + texts({ipv4.config.fromDHCP}, " from DHCP")
                        + texts({ipv4.config.linkLocal}, " link-local");
    if (const auto dhcp = given.flag("/IPv4/Config/DHCP"))
        parts += *dhcp ? "DHCP on" : "DHCP off";
    return parts.join(", ");
}

QString ipv6Text(const Interface::IPv6 &ipv6, const Given &given)
{
    if (given.flag("/IPv6/Enabled") == false)
        return "off";
    QStringList parts = texts(ipv6.config.manual, "") + texts(ipv6.config.fromDHCP, " from DHCP")
                        + texts(ipv6.config.fromRA, " advertised") + texts(ipv6.config.linkLocal, " link-local");
    if (given.isOneOf("/IPv6/Config/DHCP", {"Auto", "Stateful", "Stateless", "Off"}))
        parts += "DHCP " + vPrintable(ipv6.config.dhcp);
    return parts.join(", ");
}

QString linkText(const Interface::LinkSettings &settings, const Given &given)
{
    const bool saysDuplex = given.isOneOf("/Link/OperSettings/Duplex", {"Full", "Half"});
    return joined(
        {amount(settings.speed, "Mbit/s"), saysDuplex ? vPrintable(settings.duplex).toLower() + " duplex" : QString()});
}

void write(Lines &lines, const Interface &card, const Given &given)
{
    const bool isOff = given.flag("/Enabled") == false;
    const QString name = withToken(card.name, card.token);
    lines.line(1, (name.isEmpty() ? "without a name" : name) + (isOff ? ", off" : ""));
    lines.field(2, "Hardware address", card.hwAddress);
    lines.field(2, "MTU", amount(given.number("/Info/MTU", card.mtu).value_or(0), "bytes"));
    lines.field(2, "Link", linkText(card.operSettings, given));
    lines.field(2, "IPv4", ipv4Text(card.ipv4, given));
    lines.field(2, "IPv6", ipv6Text(card.ipv6, given));
}

} // namespace

void write(Lines &lines, const vorn::OnvifNetworkInterfaceVector &interfaces)
{
    lines.heading("Network interfaces", interfaces.isEmpty());
    const auto entries = entriesAt(interfaces.response, "/NetworkInterfaces", interfaces.size());
    auto entry = entries.begin();
    for (const Interface &card : interfaces)
        write(lines, card, Given(*entry++));
}

void write(Lines &lines, const vorn::OnvifNetworkGateway &gateway)
{
    lines.heading("Default gateway", gateway.ipv4Address.isEmpty() && gateway.ipv6Address.isEmpty());
    lines.field(1, "IPv4", gateway.ipv4Address);
    lines.field(1, "IPv6", gateway.ipv6Address);
}

void write(Lines &lines, const vorn::OnvifRelayOutputVector &relays)
{
    lines.heading("Relay outputs", relays.isEmpty());
    const auto entries = entriesAt(relays.response, "/RelayOutputs", relays.size());
    auto entry = entries.begin();
    for (const vorn::OnvifRelayOutput &relay : relays) {
        const Given given(*entry++);
        const bool saysMode = given.isOneOf("/Properties/Mode", {"Monostable", "Bistable"});
        const bool saysState = given.isOneOf("/Properties/IdleState", {"open", "closed"});
        const bool fallsBack = relay.mode == vorn::OnvifRelayOutput::Monostable && !relay.delayTime.isEmpty();
        const QString mode = saysMode ? vPrintable(relay.mode).toLower() : QString();
        const QString behaviour = joined({mode + (saysMode && fallsBack ? " for " + relay.delayTime : ""),
                                          saysState ? "idle state " + vPrintable(relay.idleState).toLower() : ""});
        const QString name = relay.token.isEmpty() ? "without a token" : relay.token;
        lines.line(1, behaviour.isEmpty() ? name : name + ": " + behaviour);
    }
}

} // namespace client
