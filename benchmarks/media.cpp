#include "media.h"

#include "road.h"

#include <vorn/onvif/configurations.h>
#include <vorn/onvif/profiles.h>

#include <benchmark/benchmark.h>

namespace bench {
namespace {

template <typename List>
void addList(const QString &style, const QString &operation, int size, const Limits &limits)
{
    const QByteArray reply = sample(style + QLatin1Char('/') + operation + QLatin1String(".xml"));
    const QString root = QLatin1String("/Envelope/Body/") + operation + QLatin1String("Response");
    const std::string name = (operation + QLatin1Char('/') + style).toStdString();
    require(List(reply, root).size() == size, name + " is read wrongly");
    addRoad(name, reply, limits, [root](const QByteArray &bytes) { benchmark::DoNotOptimize(List(bytes, root)); });
}

void addCompatibleMetadata()
{
    using List = vorn::OnvifCompatibleMetadataConfigurationVector;
    const QByteArray reply = sample(QStringLiteral("no-prefixes/GetCompatibleMetadataConfigurations.xml"));
    require(List(reply).size() == 2, "compatible metadata configurations are read wrongly");
    addRoad("GetCompatibleMetadataConfigurations/no-prefixes", reply, {0.55},
            [](const QByteArray &bytes) { benchmark::DoNotOptimize(List(bytes)); });
}

/// A reply with \a count profiles, each the first of the sample.
QByteArray replyWithProfiles(int count)
{
    const QByteArray reply = sample(QStringLiteral("short-prefixes/GetProfiles.xml"));
    const QByteArray endTag = "</trt:Profiles>";
    const qsizetype start = reply.indexOf("<trt:Profiles ");
    const qsizetype end = reply.indexOf(endTag) + endTag.size();
    return reply.first(start) + reply.sliced(start, end - start).repeated(count)
           + reply.sliced(reply.lastIndexOf(endTag) + endTag.size());
}

} // namespace

void addMediaRoads()
{
    struct Style
    {
        QString name;
        int profiles;
        int configurations;
        Limits profileLimits;
    };

    for (const auto &[style, profiles, configurations, profileLimits] :
         {Style{QStringLiteral("many-namespaces"), 4, 4, {0.50}},
          Style{QStringLiteral("short-prefixes"), 2, 3, {0.55}}}) {
        const auto addConfigurations = [&style = style, size = configurations](auto list, const char *operation) {
            addList<decltype(list)>(style, QLatin1String(operation), size, {0.55});
        };
        addList<vorn::OnvifProfileVector>(style, QStringLiteral("GetProfiles"), profiles, profileLimits);
        addConfigurations(vorn::OnvifVideoSourceConfigurationVector(), "GetVideoSourceConfigurations");
        addConfigurations(vorn::OnvifVideoEncoderConfigurationVector(), "GetVideoEncoderConfigurations");
        addConfigurations(vorn::OnvifAudioSourceConfigurationVector(), "GetAudioSourceConfigurations");
        addConfigurations(vorn::OnvifAudioOutputConfigurationVector(), "GetAudioOutputConfigurations");
        addConfigurations(vorn::OnvifAudioEncoderConfigurationVector(), "GetAudioEncoderConfigurations");
        addConfigurations(vorn::OnvifAudioDecoderConfigurationVector(), "GetAudioDecoderConfigurations");
        addConfigurations(vorn::OnvifVideoAnalyticsConfigurationVector(), "GetVideoAnalyticsConfigurations");
        addConfigurations(vorn::OnvifPtzConfigurationVector(), "GetConfigurations");
    }
    addCompatibleMetadata();

    const QString root = QStringLiteral("/Envelope/Body/GetProfilesResponse");
    require(vorn::OnvifProfileVector(replyWithProfiles(1000), root).size() == 1000, "many profiles are read wrongly");
    addGrowth("GetProfiles/1000 profiles", replyWithProfiles(100), replyWithProfiles(1000), {std::nullopt, 11},
              [root](const QByteArray &bytes) { benchmark::DoNotOptimize(vorn::OnvifProfileVector(bytes, root)); });
}

} // namespace bench
