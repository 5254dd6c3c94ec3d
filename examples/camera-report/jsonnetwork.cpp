#include "given.h"
#include "jsonparts.h"

namespace client {
namespace {

using Interface = vorn::OnvifNetworkInterface;

/// The text at \a path, if it is one of \a known.
QJsonValue wordIn(const Given &given, const char *path, std::initializer_list<const char *> known)
{
    return given.isOneOf(path, known) ? QJsonValue(given.text(path)) : QJsonValue();
}

/// Null for an address that the device did not send.
QJsonValue jsonOf(const Interface::PrefixedAddress &address)
{
    if (address.address.isEmpty())
        return {};
    const auto length = address.prefixLength == 0 ? QJsonValue() : QJsonValue(address.prefixLength);
    return QJsonObject{{"address", address.address}, {"prefixLength", length}};
}

QJsonArray jsonOf(const QList<Interface::PrefixedAddress> &addresses)
{
    QJsonArray array;
    for (const Interface::PrefixedAddress &address : addresses) {
        if (!address.address.isEmpty())
            array.append(jsonOf(address));
    }
    return array;
}

QJsonValue linkJson(const Interface::LinkSettings &settings, const QByteArray &path, const Given &given)
{
    if (!settings.present)
        return {};
    const QByteArray autoNegotiation = path + "/AutoNegotiation";
    const QByteArray speed = path + "/Speed";
    const QByteArray duplex = path + "/Duplex";
    return QJsonObject{{"autoNegotiation", orNull(given.flag(autoNegotiation.constData()))},
                       {"speed", orNull(given.number(speed.constData(), settings.speed))},
                       {"duplex", wordIn(given, duplex.constData(), {"Full", "Half"})}};
}

QJsonValue jsonOf(const Interface::IPv4 &ipv4, const Given &given)
{
    if (given.text("/IPv4").isNull())
        return {};
    return QJsonObject{{"enabled", orNull(given.flag("/IPv4/Enabled"))},
                       {"dhcp", orNull(given.flag("/IPv4/Config/DHCP"))},
                       {"manual", jsonOf(ipv4.config.manual)},
                       {"linkLocal", jsonOf(ipv4.config.linkLocal)},
                       {"fromDHCP", jsonOf(ipv4.config.fromDHCP)}};
}

QJsonValue jsonOf(const Interface::IPv6 &ipv6, const Given &given)
{
    if (given.text("/IPv6").isNull())
        return {};
    return QJsonObject{{"enabled", orNull(given.flag("/IPv6/Enabled"))},
                       {"acceptRouterAdvert", orNull(given.flag("/IPv6/Config/AcceptRouterAdvert"))},
                       {"dhcp", wordIn(given, "/IPv6/Config/DHCP", {"Auto", "Stateful", "Stateless", "Off"})},
                       {"manual", jsonOf(ipv6.config.manual)},
                       {"linkLocal", jsonOf(ipv6.config.linkLocal)},
                       {"fromDHCP", jsonOf(ipv6.config.fromDHCP)},
                       {"fromRA", jsonOf(ipv6.config.fromRA)}};
}

QJsonObject jsonOf(const Interface &card, const Given &given)
{
    return {{"name", orNull(card.name)},
            {"token", orNull(card.token)},
            {"enabled", orNull(given.flag("/Enabled"))},
            {"hwAddress", orNull(card.hwAddress)},
            {"mtu", orNull(given.number("/Info/MTU", card.mtu))},
            {"interfaceType", orNull(given.number("/Link/InterfaceType", card.interfaceType))},
            {"adminSettings", linkJson(card.adminSettings, "/Link/AdminSettings", given)},
            {"operSettings", linkJson(card.operSettings, "/Link/OperSettings", given)},
            {"ipv4", jsonOf(card.ipv4, given)},
            {"ipv6", jsonOf(card.ipv6, given)}};
}

} // namespace

QJsonArray interfacesJson(const vorn::OnvifNetworkInterfaceVector &interfaces)
{
    const auto entries = entriesAt(interfaces.response, "/NetworkInterfaces", interfaces.size());
    auto entry = entries.begin();
    QJsonArray array;
    for (const Interface &card : interfaces)
        array.append(jsonOf(card, Given(*entry++)));
    return array;
}

QJsonArray relaysJson(const vorn::OnvifRelayOutputVector &relays)
{
    const auto entries = entriesAt(relays.response, "/RelayOutputs", relays.size());
    auto entry = entries.begin();
    QJsonArray array;
    for (const vorn::OnvifRelayOutput &relay : relays) {
        const Given given(*entry++);
        array.append(QJsonObject{{"token", orNull(relay.token)},
                                 {"mode", wordIn(given, "/Properties/Mode", {"Monostable", "Bistable"})},
                                 {"delayTime", orNull(relay.delayTime)},
                                 {"idleState", wordIn(given, "/Properties/IdleState", {"open", "closed"})}});
    }
    return array;
}

} // namespace client
