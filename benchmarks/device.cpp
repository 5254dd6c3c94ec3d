#include "device.h"

#include "road.h"

#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/scopes.h>

#include <benchmark/benchmark.h>

namespace bench {
namespace {

template <typename Record>
void read(const QByteArray &reply)
{
    benchmark::DoNotOptimize(Record(reply));
}

QByteArray replyWithScopes(int count)
{
    QByteArray scopes;
    for (int i = 0; i < count; ++i) {
        scopes += "<tds:Scopes><tt:ScopeDef>Fixed</tt:ScopeDef><tt:ScopeItem>onvif://www.onvif.org/location/place/"
                  + QByteArray::number(i) + "</tt:ScopeItem></tds:Scopes>";
    }
    return "<s:Envelope><s:Body><tds:GetScopesResponse>" + scopes + "</tds:GetScopesResponse></s:Body></s:Envelope>";
}

} // namespace

void addDeviceRoads()
{
    for (const char *style : {"many-namespaces", "short-prefixes", "undeclared-prefixes"}) {
        const QByteArray reply = sample(QLatin1String(style) + QLatin1String("/GetDeviceInformation.xml"));
        const vorn::OnvifDeviceInformation information(reply);
        require(information.manufacturer == QLatin1String("Example Optics") && !information.hardwareId.isEmpty(),
                std::string("device information of style ") + style + " is wrong");
        addRoad(std::string("OnvifDeviceInformation/") + style, reply, {0.12}, read<vorn::OnvifDeviceInformation>);
    }
    for (const char *style : {"many-namespaces", "short-prefixes"}) {
        const auto named = [style](const char *record) { return std::string(record) + '/' + style; };
        const QString folder = QLatin1String(style) + QLatin1Char('/');

        const QByteArray capabilities = sample(folder + QLatin1String("GetCapabilities.xml"));
        require(vorn::OnvifCapabilities(capabilities).hasMedia(), "capabilities are wrong");
        addRoad(named("OnvifCapabilities"), capabilities, {0.20}, read<vorn::OnvifCapabilities>);

        const QByteArray scopes = sample(folder + QLatin1String("GetScopes.xml"));
        require(vorn::OnvifScopeMap(scopes).size() == 12, "scopes are wrong");
        addRoad(named("OnvifScopeMap"), scopes, {0.45}, read<vorn::OnvifScopeMap>);
    }

    const QByteArray probeMatch = sample(QStringLiteral("many-namespaces/ProbeMatches.xml"));
    require(vorn::OnvifCamera(probeMatch).scopes.size() == 9, "the probe match is wrong");
    addRoad("OnvifCamera/many-namespaces", probeMatch, {0.40}, read<vorn::OnvifCamera>);

    addGrowth("OnvifScopeMap/10000 scopes", replyWithScopes(1000), replyWithScopes(10000), {std::nullopt, 12},
              read<vorn::OnvifScopeMap>);
}

} // namespace bench
