// Uses something of each header. Reads the folder of samples that it is given, and says what is wrong.

#include <vorn/onvif/analytics.h>
#include <vorn/onvif/bases.h>
#include <vorn/onvif/compare.h>
#include <vorn/onvif/configurations.h>
#include <vorn/onvif/debug.h>
#include <vorn/onvif/device.h>
#include <vorn/onvif/discovery.h>
#include <vorn/onvif/enumerators.h>
#include <vorn/onvif/faults.h>
#include <vorn/onvif/fields.h>
#include <vorn/onvif/network.h>
#include <vorn/onvif/paths.h>
#include <vorn/onvif/placeholderstring.h>
#include <vorn/onvif/profiles.h>
#include <vorn/onvif/relays.h>
#include <vorn/onvif/scopes.h>
#include <vorn/onvif/version.h>
#include <vorn/util/xmlresponse.h>

#include <QtCore/QFile>
#include <QtCore/QSet>

#include <algorithm>
#include <cstdio>

static_assert(VORNSDK_ONVIF_VERSION >= 0x010000 && VORNSDK_ONVIF_VERSION_MAJOR == 1);

namespace {

int failures = 0;

void expect(bool holds, const char *what)
{
    if (!holds) {
        std::fprintf(stderr, "consumer: %s\n", what);
        ++failures;
    }
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    expect(file.open(QIODevice::ReadOnly), "a sample cannot be read");
    return file.readAll();
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: consumer SAMPLES\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]) + QLatin1String("/short-prefixes/");
    const auto reply = [&folder](const char *name) { return contentsOf(folder + QLatin1String(name)); };

    expect(vorn::OnvifDeviceInformation(reply("GetDeviceInformation.xml")).manufacturer
               == QLatin1String("Example Optics"),
           "the device information is wrong");
    expect(vorn::OnvifCapabilities(reply("GetCapabilities.xml")).hasMedia(), "the capabilities are wrong");
    expect(vorn::OnvifScopeMap(reply("GetScopes.xml")).size() == 12, "the scopes are wrong");
    expect(vorn::OnvifCamera(reply("ProbeMatches.xml")).isValid(), "the probe match is wrong");

    const QByteArray profilesReply = reply("GetProfiles.xml");
    const vorn::OnvifFault fault(profilesReply, "GetProfiles", 1);
    expect(!fault.hasError(), "a good reply is taken for a fault");
    vorn::OnvifProfileVector profiles(profilesReply, vorn::paths::GetProfilesResponse);
    expect(profiles.size() == 2, "the profiles are wrong");
    profiles.append(profiles.constFirst());
    std::sort(profiles.begin(), profiles.end(), [](const auto &a, const auto &b) { return a.token < b.token; });
    expect(profiles.constFirst().videoEncoder.resolution == QSize(1920, 1080), "an encoder is wrong");
    expect(profiles.constFirst().videoAnalytics.ruleEngineConfiguration.size() == 1, "the rules are wrong");

    const vorn::OnvifNetworkInterfaceVector interfaces(reply("GetNetworkInterfaces.xml"),
                                                       vorn::paths::GetNetworkInterfacesResponse);
    const QSet<vorn::OnvifNetworkInterface> set(interfaces.cbegin(), interfaces.cend());
    expect(!set.isEmpty() && set.size() == interfaces.size(), "the interfaces are wrong");
    vorn::OnvifNetworkInterface::LinkSettings settings;
    settings = interfaces.constFirst().adminSettings;
    expect(settings == interfaces.constFirst().adminSettings, "the link settings are wrong");
    expect(vPrintable(vorn::OnvifRelayOutput::Bistable) == QLatin1String("Bistable"), "the printing is wrong");
    expect(vorn::PlaceHolderString("<a>$@</a>", "$@").arg(7).qStr() == QLatin1String("<a>7</a>"),
           "the template is wrong");

    int fields = 0;
    vorn::visitFields([&fields](QLatin1StringView, const auto &) { ++fields; }, profiles.constFirst());
    expect(fields == 12, "the fields are wrong");
    expect(vorn::enumeratorName(fault.faultType) == QLatin1String("NoFault"), "the name of an enumerator is wrong");
    expect(vorn::sameContent(interfaces, interfaces) && !vorn::sameContent(profiles[0], profiles[2]),
           "the comparison is wrong");
    QString text;
    QDebug(&text) << fault.faultType << interfaces << profiles.constFirst();
    expect(text.startsWith(QLatin1String("NoFault [OnvifNetworkInterface(name: \"eth0\"")), "the debugging is wrong");

    vorn::XmlResponse response(reply("GetHostname.xml"), vorn::paths::GetHostnameResponse);
    expect(!response.getText(QStringLiteral("/HostnameInformation/Name")).isEmpty(), "the host name is wrong");

    std::printf("vornsdk-onvif %s: %s\n", VORNSDK_ONVIF_VERSION_STRING, failures == 0 ? "good" : "bad");
    return failures == 0 ? 0 : 1;
}
