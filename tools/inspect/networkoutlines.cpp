#include "outlines.h"

namespace inspect {
namespace {

Outline groupOutline(const vorn::OnvifNetworkInterface::LinkSettings &settings)
{
    return Outline::Fields{
        {"present", settings.present},
        {"autoNegotiation", settings.autoNegotiation},
        {"speed", settings.speed},
        {"duplex", vPrintable(settings.duplex)},
    };
}

Outline groupOutline(const vorn::OnvifNetworkInterface::IPv4 &ipv4)
{
    const Outline::Fields config{
        {"manual", outlineOfRecords(ipv4.config.manual)},
        {"linkLocal", outline(ipv4.config.linkLocal)},
        {"fromDHCP", outline(ipv4.config.fromDHCP)},
        {"dhcp", ipv4.config.dhcp},
    };
    return Outline::Fields{{"enabled", ipv4.enabled}, {"config", config}};
}

Outline groupOutline(const vorn::OnvifNetworkInterface::IPv6 &ipv6)
{
    const Outline::Fields config{
        {"acceptRouterAdvert", ipv6.config.acceptRouterAdvert}, {"dhcp", vPrintable(ipv6.config.dhcp)},
        {"manual", outlineOfRecords(ipv6.config.manual)},       {"linkLocal", outlineOfRecords(ipv6.config.linkLocal)},
        {"fromDHCP", outlineOfRecords(ipv6.config.fromDHCP)},   {"fromRA", outlineOfRecords(ipv6.config.fromRA)},
    };
    return Outline::Fields{{"enabled", ipv6.enabled}, {"config", config}};
}

} // namespace

Outline outline(const vorn::OnvifNetworkInterface::PrefixedAddress &address)
{
    return Outline::Fields{{"address", address.address}, {"prefixLength", address.prefixLength}};
}

Outline outline(const vorn::OnvifNetworkInterface &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"enabled", record.enabled},
        {"hwAddress", record.hwAddress},
        {"mtu", record.mtu},
        {"interfaceType", record.interfaceType},
        {"adminSettings", groupOutline(record.adminSettings)},
        {"operSettings", groupOutline(record.operSettings)},
        {"ipv4", groupOutline(record.ipv4)},
        {"ipv6", groupOutline(record.ipv6)},
    };
}

Outline outline(const vorn::OnvifNetworkGateway &record)
{
    return Outline::Fields{{"ipv4Address", record.ipv4Address}, {"ipv6Address", record.ipv6Address}};
}

Outline outline(const vorn::OnvifRelayOutput &record)
{
    return Outline::Fields{
        {"token", record.token},
        {"mode", vPrintable(record.mode)},
        {"delayTime", record.delayTime},
        {"idleState", vPrintable(record.idleState)},
    };
}

} // namespace inspect
