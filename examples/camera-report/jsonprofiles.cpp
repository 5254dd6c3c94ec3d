#include "given.h"
#include "jsonparts.h"

namespace client {
namespace {

/// What all configurations have.
template <typename Configuration>
QJsonObject start(const Configuration &configuration)
{
    return {{"name", orNull(configuration.name)}, {"token", orNull(configuration.token)}};
}

/// From the first to the last, as the reply says it: also where a device's number has made the last wrap around, which
/// QRect::width() must not be asked for.
int lengthOf(int first, int last)
{
    return static_cast<int>(static_cast<unsigned int>(last) - static_cast<unsigned int>(first) + 1U);
}

QJsonValue jsonOf(const QRect &bounds)
{
    const int width = lengthOf(bounds.left(), bounds.right());
    const int height = lengthOf(bounds.top(), bounds.bottom());
    if (width == 0 && height == 0)
        return {};
    return QJsonObject{{"x", bounds.x()}, {"y", bounds.y()}, {"width", width}, {"height", height}};
}

QJsonValue jsonOf(const vorn::OnvifVideoSourceConfiguration &source, const Given &given)
{
    if (source.isNull())
        return {};
    QJsonObject json = start(source);
    json["sourceToken"] = orNull(source.sourceToken);
    json["useCount"] = orNull(given.number("/VideoSourceConfiguration/UseCount", source.useCount));
    json["bounds"] = jsonOf(source.bounds);
    return json;
}

QJsonValue jsonOf(const vorn::OnvifVideoEncoderConfiguration &video, const Given &given)
{
    if (video.isNull())
        return {};
    const auto number = [&](const char *path, int value) {
        return orNull(given.number(("/VideoEncoderConfiguration" + QByteArray(path)).constData(), value));
    };
    bool hasQuality = false;
    given.text("/VideoEncoderConfiguration/Quality").trimmed().toDouble(&hasQuality);
    QJsonObject json = start(video);
    json["encoding"] = orNull(video.encoding);
    json["width"] = number("/Resolution/Width", video.resolution.width());
    json["height"] = number("/Resolution/Height", video.resolution.height());
    json["quality"] = hasQuality ? QJsonValue(video.quality) : QJsonValue();
    json["frameRateLimit"] = number("/RateControl/FrameRateLimit", video.frameRateLimit);
    json["encodingInterval"] = number("/RateControl/EncodingInterval", video.encodingInterval);
    json["bitrateLimit"] = number("/RateControl/BitrateLimit", video.bitrateLimit);
    json["sessionTimeout"] = orNull(video.sessionTimeout);
    json["useCount"] = number("/UseCount", video.useCount);
    return json;
}

QJsonValue jsonOf(const vorn::OnvifAudioSourceConfiguration &source, const Given &given)
{
    if (source.isNull())
        return {};
    QJsonObject json = start(source);
    json["sourceToken"] = orNull(source.sourceToken);
    json["useCount"] = orNull(given.number("/AudioSourceConfiguration/UseCount", source.useCount));
    return json;
}

QJsonValue jsonOf(const vorn::OnvifAudioEncoderConfiguration &audio, const Given &given)
{
    if (audio.isNull())
        return {};
    QJsonObject json = start(audio);
    json["encoding"] = orNull(audio.encoding);
    json["bitrate"] = orNull(given.number("/AudioEncoderConfiguration/Bitrate", audio.bitrate));
    json["sampleRate"] = orNull(given.number("/AudioEncoderConfiguration/SampleRate", audio.sampleRate));
    json["sessionTimeout"] = orNull(audio.sessionTimeout);
    json["useCount"] = orNull(given.number("/AudioEncoderConfiguration/UseCount", audio.useCount));
    return json;
}

QJsonValue jsonOf(const vorn::OnvifAudioOutputConfiguration &output)
{
    if (output.isNull())
        return {};
    QJsonObject json = start(output);
    json["outputToken"] = orNull(output.outputToken);
    json["sendPrimacy"] = orNull(output.sendPrimacy);
    return json;
}

QJsonValue jsonOf(const vorn::OnvifPtzConfiguration &ptz, const Given &given)
{
    if (ptz.isNull())
        return {};
    QJsonObject json = start(ptz);
    json["nodeToken"] = orNull(ptz.nodeToken);
    json["defaultPtzTimeout"] = orNull(ptz.defaultPtzTimeout);
    json["useCount"] = orNull(given.number("/PTZConfiguration/UseCount", ptz.useCount));
    return json;
}

/// Analytics modules or rules.
template <typename List>
QJsonArray partsJson(const List &parts)
{
    QJsonArray array;
    for (const auto &part : parts)
        array.append(QJsonObject{{"name", orNull(part.name)}, {"type", orNull(part.type)}});
    return array;
}

QJsonValue jsonOf(const vorn::OnvifVideoAnalyticsConfiguration &analytics, const Given &given)
{
    if (analytics.isNull())
        return {};
    QJsonObject json = start(analytics);
    json["useCount"] =
        orNull(given.number("/VideoAnalyticsConfiguration/UseCount", static_cast<int>(analytics.useCount)));
    json["modules"] = partsJson(analytics.analyticsEngineConfiguration);
    json["rules"] = partsJson(analytics.ruleEngineConfiguration);
    return json;
}

QJsonValue jsonOf(const vorn::OnvifMetadataConfiguration &metadata, const Given &given)
{
    if (metadata.isNull())
        return {};
    QJsonObject json = start(metadata);
    json["useCount"] = orNull(given.number("/MetadataConfiguration/UseCount", static_cast<int>(metadata.useCount)));
    json["analytics"] = orNull(given.flag("/MetadataConfiguration/Analytics"));
    json["ptzStatus"] = orNull(given.flag("/MetadataConfiguration/PTZStatus/Status"));
    json["ptzPosition"] = orNull(given.flag("/MetadataConfiguration/PTZStatus/Position"));
    return json;
}

QJsonValue uriJson(const Section<QString> &uri)
{
    return sectionJson(uri, [](const QString &text) { return QJsonValue(text); });
}

QJsonObject jsonOf(const vorn::OnvifProfile &profile, const ProfileUris &uris, const Given &given)
{
    return {{"name", orNull(profile.name)},
            {"token", orNull(profile.token)},
            {"fixed", orNull(flagOf(given.attribute("fixed")))},
            {"videoSource", jsonOf(profile.videoSource, given)},
            {"videoEncoder", jsonOf(profile.videoEncoder, given)},
            {"audioSource", jsonOf(profile.audioSource, given)},
            {"audioEncoder", jsonOf(profile.audioEncoder, given)},
            {"audioOutput", jsonOf(profile.audioOutput)},
            {"ptz", jsonOf(profile.ptz, given)},
            {"videoAnalytics", jsonOf(profile.videoAnalytics, given)},
            {"metadata", jsonOf(profile.metadata, given)},
            {"streamOverUdp", uriJson(uris.streamOverUdp)},
            {"streamOverTcp", uriJson(uris.streamOverTcp)},
            {"snapshot", uriJson(uris.snapshot)}};
}

} // namespace

QJsonArray profilesJson(const Report &report)
{
    const vorn::OnvifProfileVector &profiles = *report.profiles.record;
    const auto entries = entriesAt(profiles.response, "/Profiles", profiles.size());
    auto entry = entries.begin();
    auto uris = report.uris.begin();
    QJsonArray array;
    for (const vorn::OnvifProfile &profile : profiles)
        array.append(jsonOf(profile, *uris++, Given(*entry++)));
    return array;
}

} // namespace client
