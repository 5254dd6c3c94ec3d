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
    json["useCount"] = orNull(given.number("/UseCount", source.useCount));
    json["bounds"] = jsonOf(source.bounds);
    return json;
}

/// Where a stream goes when it is multicast, of which the records keep nothing.
QJsonValue multicastJson(const Given &multicast)
{
    if (!multicast)
        return {};
    return QJsonObject{{"ipv4Address", orNull(multicast.text("/Address/IPv4Address"))},
                       {"ipv6Address", orNull(multicast.text("/Address/IPv6Address"))},
                       {"port", orNull(multicast.number("/Port"))},
                       {"ttl", orNull(multicast.number("/TTL"))},
                       {"autoStart", orNull(multicast.flag("/AutoStart"))}};
}

QJsonValue jsonOf(const vorn::OnvifVideoEncoderConfiguration &video, const Given &given)
{
    if (video.isNull())
        return {};
    const auto number = [&](const char *path, int value) { return orNull(given.number(path, value)); };
    QJsonObject json = start(video);
    json["encoding"] = orNull(video.encoding);
    json["width"] = number("/Resolution/Width", video.resolution.width());
    json["height"] = number("/Resolution/Height", video.resolution.height());
    json["quality"] = orNull(given.decimal("/Quality", video.quality));
    json["frameRateLimit"] = number("/RateControl/FrameRateLimit", video.frameRateLimit);
    json["encodingInterval"] = number("/RateControl/EncodingInterval", video.encodingInterval);
    json["bitrateLimit"] = number("/RateControl/BitrateLimit", video.bitrateLimit);
    json["multicast"] = multicastJson(given.at("/Multicast"));
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
    json["useCount"] = orNull(given.number("/UseCount", source.useCount));
    return json;
}

QJsonValue jsonOf(const vorn::OnvifAudioEncoderConfiguration &audio, const Given &given)
{
    if (audio.isNull())
        return {};
    QJsonObject json = start(audio);
    json["encoding"] = orNull(audio.encoding);
    json["bitrate"] = orNull(given.number("/Bitrate", audio.bitrate));
    json["sampleRate"] = orNull(given.number("/SampleRate", audio.sampleRate));
    json["multicast"] = multicastJson(given.at("/Multicast"));
    json["sessionTimeout"] = orNull(audio.sessionTimeout);
    json["useCount"] = orNull(given.number("/UseCount", audio.useCount));
    return json;
}

QJsonValue jsonOf(const vorn::OnvifAudioOutputConfiguration &output, const Given &given)
{
    if (output.isNull())
        return {};
    QJsonObject json = start(output);
    json["outputToken"] = orNull(output.outputToken);
    json["outputLevel"] = orNull(given.number("/OutputLevel", static_cast<int>(output.outputLevel)));
    json["sendPrimacy"] = orNull(output.sendPrimacy);
    json["useCount"] = orNull(given.number("/UseCount", static_cast<int>(output.useCount)));
    return json;
}

/// The \a range of the \a axis of a child of \a limits, whatever its name: the last that has one counts.
QJsonValue rangeJson(const vorn::OnvifPtzRange &range, const Given &limits, const char *axis)
{
    QJsonValue json;
    for (const Given &space : limits.children()) {
        if (const Given given = space.at(axis))
            json = QJsonObject{{"min", orNull(given.decimal("/Min", range.min))},
                               {"max", orNull(given.decimal("/Max", range.max))}};
    }
    return json;
}

QJsonValue jsonOf(const vorn::OnvifPtzConfiguration &ptz, const Given &given)
{
    if (ptz.isNull())
        return {};
    QJsonObject json = start(ptz);
    json["nodeToken"] = orNull(ptz.nodeToken);
    json["defaultPtzTimeout"] = orNull(ptz.defaultPtzTimeout);
    json["panTiltXRange"] = rangeJson(ptz.panTiltXRange, given.at("/PanTiltLimits"), "/XRange");
    json["panTiltYRange"] = rangeJson(ptz.panTiltYRange, given.at("/PanTiltLimits"), "/YRange");
    json["zoomXRange"] = rangeJson(ptz.zoomXRange, given.at("/ZoomLimits"), "/XRange");
    json["useCount"] = orNull(given.number("/UseCount", ptz.useCount));
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
    json["useCount"] = orNull(given.number("/UseCount", static_cast<int>(analytics.useCount)));
    json["modules"] = partsJson(analytics.analyticsEngineConfiguration);
    json["rules"] = partsJson(analytics.ruleEngineConfiguration);
    return json;
}

QJsonValue jsonOf(const vorn::OnvifMetadataConfiguration &metadata, const Given &given)
{
    if (metadata.isNull())
        return {};
    QJsonObject json = start(metadata);
    json["useCount"] = orNull(given.number("/UseCount", static_cast<int>(metadata.useCount)));
    json["analytics"] = orNull(given.flag("/Analytics"));
    json["ptzStatus"] = orNull(given.flag("/PTZStatus/Status"));
    json["ptzPosition"] = orNull(given.flag("/PTZStatus/Position"));
    json["eventsFilter"] = orNull(metadata.eventsFilter);
    json["eventsSubscriptionPolicy"] = orNull(metadata.eventsSubscriptionPolicy);
    json["multicast"] = multicastJson(given.at("/Multicast"));
    json["sessionTimeout"] = orNull(given.text("/SessionTimeout")); // the record takes a number only
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
            {"videoSource", jsonOf(profile.videoSource, given.at("/VideoSourceConfiguration"))},
            {"videoEncoder", jsonOf(profile.videoEncoder, given.at("/VideoEncoderConfiguration"))},
            {"audioSource", jsonOf(profile.audioSource, given.at("/AudioSourceConfiguration"))},
            {"audioEncoder", jsonOf(profile.audioEncoder, given.at("/AudioEncoderConfiguration"))},
            {"audioOutput", jsonOf(profile.audioOutput, given.at("/Extension/AudioOutputConfiguration"))},
            {"ptz", jsonOf(profile.ptz, given.at("/PTZConfiguration"))},
            {"videoAnalytics", jsonOf(profile.videoAnalytics, given.at("/VideoAnalyticsConfiguration"))},
            {"metadata", jsonOf(profile.metadata, given.at("/MetadataConfiguration"))},
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
