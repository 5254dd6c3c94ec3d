#include "network.h"

#include "road.h"

#include <vorn/onvif/network.h>
#include <vorn/onvif/relays.h>

#include <benchmark/benchmark.h>

namespace bench {
namespace {

vorn::OnvifNetworkInterfaceVector interfacesOf(const QByteArray &reply)
{
    return {reply, QStringLiteral("/Envelope/Body/GetNetworkInterfacesResponse")};
}

vorn::OnvifRelayOutputVector relaysOf(const QByteArray &reply)
{
    return {reply, QStringLiteral("/Envelope/Body/GetRelayOutputsResponse")};
}

QByteArray replyWithInterfaces(int count)
{
    QByteArray interfaces;
    for (int i = 0; i < count; ++i) {
        interfaces += "<tds:NetworkInterfaces token=\"" + QByteArray::number(i)
                      + "\"><tt:Enabled>true</tt:Enabled><tt:IPv4><tt:Enabled>true</tt:Enabled><tt:Config><tt:Manual>"
                        "<tt:Address>192.0.2.1</tt:Address><tt:PrefixLength>24</tt:PrefixLength></tt:Manual>"
                        "<tt:DHCP>false</tt:DHCP></tt:Config></tt:IPv4></tds:NetworkInterfaces>";
    }
    return "<s:Envelope><s:Body><tds:GetNetworkInterfacesResponse>" + interfaces
           + "</tds:GetNetworkInterfacesResponse></s:Body></s:Envelope>";
}

} // namespace

void addNetworkRoads()
{
    const auto readInterfaces = [](const QByteArray &reply) { benchmark::DoNotOptimize(interfacesOf(reply)); };
    const auto readGateway = [](const QByteArray &reply) {
        benchmark::DoNotOptimize(vorn::OnvifNetworkGateway(reply));
    };
    const auto readRelays = [](const QByteArray &reply) { benchmark::DoNotOptimize(relaysOf(reply)); };

    for (const char *style : {"many-namespaces", "short-prefixes"}) {
        const auto named = [style](const char *record) { return std::string(record) + '/' + style; };
        const QString folder = QLatin1String(style) + QLatin1Char('/');

        const QByteArray interfaces = sample(folder + QLatin1String("GetNetworkInterfaces.xml"));
        require(interfacesOf(interfaces).constFirst().ipv6.config.linkLocal.size() == 1, "interfaces are wrong");
        addRoad(named("OnvifNetworkInterfaceVector"), interfaces, {0.55}, readInterfaces);

        const QByteArray gateway = sample(folder + QLatin1String("GetNetworkDefaultGateway.xml"));
        require(!vorn::OnvifNetworkGateway(gateway).ipv4Address.isEmpty(), "the gateway is wrong");
        addRoad(named("OnvifNetworkGateway"), gateway, {0.10}, readGateway);

        const QByteArray relays = sample(folder + QLatin1String("GetRelayOutputs.xml"));
        require(relaysOf(relays).size() == 2, "relays are wrong");
        addRoad(named("OnvifRelayOutputVector"), relays, {0.45}, readRelays);
    }

    addGrowth("OnvifNetworkInterfaceVector/1000 interfaces", replyWithInterfaces(100), replyWithInterfaces(1000),
              {std::nullopt, 12}, readInterfaces);
}

} // namespace bench
