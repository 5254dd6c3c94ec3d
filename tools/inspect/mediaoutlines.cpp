#include "outlines.h"

namespace inspect {
namespace {

/// As the attributes of the reply are, also where an edge has wrapped around.
Outline rectangleOutline(const QRect &rectangle)
{
    const auto lengthOf = [](int first, int last) {
        return static_cast<int>(static_cast<unsigned int>(last) - static_cast<unsigned int>(first) + 1U);
    };
    return Outline::Fields{
        {"x", rectangle.left()},
        {"y", rectangle.top()},
        {"width", lengthOf(rectangle.left(), rectangle.right())},
        {"height", lengthOf(rectangle.top(), rectangle.bottom())},
    };
}

Outline sizeOutline(const QSize &size)
{
    return Outline::Fields{{"width", size.width()}, {"height", size.height()}};
}

Outline rangeOutline(const vorn::OnvifPtzRange &range)
{
    return Outline::Fields{{"min", range.min}, {"max", range.max}};
}

} // namespace

Outline outline(const vorn::OnvifAnalyticsModule &record)
{
    return Outline::Fields{{"name", record.name}, {"type", record.type}};
}

Outline outline(const vorn::OnvifRule &record)
{
    return Outline::Fields{{"name", record.name}, {"type", record.type}};
}

Outline outline(const vorn::OnvifVideoSourceConfiguration &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"useCount", record.useCount},
        {"sourceToken", record.sourceToken},
        {"bounds", rectangleOutline(record.bounds)},
    };
}

Outline outline(const vorn::OnvifVideoEncoderConfiguration &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"encoding", record.encoding},
        {"useCount", record.useCount},
        {"resolution", sizeOutline(record.resolution)},
        {"quality", record.quality},
        {"frameRateLimit", record.frameRateLimit},
        {"encodingInterval", record.encodingInterval},
        {"bitrateLimit", record.bitrateLimit},
        {"sessionTimeout", record.sessionTimeout},
    };
}

Outline outline(const vorn::OnvifAudioSourceConfiguration &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"useCount", record.useCount},
        {"sourceToken", record.sourceToken},
    };
}

Outline outline(const vorn::OnvifAudioOutputConfiguration &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"useCount", record.useCount},
        {"outputToken", record.outputToken},
        {"outputLevel", record.outputLevel},
        {"sendPrimacy", record.sendPrimacy},
    };
}

Outline outline(const vorn::OnvifAudioEncoderConfiguration &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"encoding", record.encoding},
        {"useCount", record.useCount},
        {"bitrate", record.bitrate},
        {"sampleRate", record.sampleRate},
        {"sessionTimeout", record.sessionTimeout},
    };
}

Outline outline(const vorn::OnvifAudioDecoderConfiguration &record)
{
    return Outline::Fields{{"name", record.name}, {"token", record.token}, {"useCount", record.useCount}};
}

Outline outline(const vorn::OnvifMetadataConfiguration &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"useCount", record.useCount},
        {"analytics", record.analytics},
        {"sessionTimeout", record.sessionTimeout},
        {"ptzStatus", record.ptzStatus},
        {"ptzPosition", record.ptzPosition},
        {"eventsFilter", record.eventsFilter},
        {"eventsSubscriptionPolicy", record.eventsSubscriptionPolicy},
        {"analyticsEngineConfiguration", outlineOfRecords(record.analyticsEngineConfiguration)},
    };
}

Outline outline(const vorn::OnvifPtzConfiguration &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"defaultPtzTimeout", record.defaultPtzTimeout},
        {"useCount", record.useCount},
        {"nodeToken", record.nodeToken},
        {"panTiltXRange", rangeOutline(record.panTiltXRange)},
        {"panTiltYRange", rangeOutline(record.panTiltYRange)},
        {"zoomXRange", rangeOutline(record.zoomXRange)},
    };
}

Outline outline(const vorn::OnvifVideoAnalyticsConfiguration &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"useCount", record.useCount},
        {"analyticsEngineConfiguration", outlineOfRecords(record.analyticsEngineConfiguration)},
        {"ruleEngineConfiguration", outlineOfRecords(record.ruleEngineConfiguration)},
    };
}

Outline outline(const vorn::OnvifProfile &record)
{
    return Outline::Fields{
        {"name", record.name},
        {"token", record.token},
        {"fixed", record.fixed},
        {"videoSource", outlineUnlessNull(record.videoSource)},
        {"audioSource", outlineUnlessNull(record.audioSource)},
        {"videoEncoder", outlineUnlessNull(record.videoEncoder)},
        {"audioEncoder", outlineUnlessNull(record.audioEncoder)},
        {"videoAnalytics", outlineUnlessNull(record.videoAnalytics)},
        {"ptz", outlineUnlessNull(record.ptz)},
        {"metadata", outlineUnlessNull(record.metadata)},
        {"audioOutput", outlineUnlessNull(record.audioOutput)},
        {"audioDecoder", outlineUnlessNull(record.audioDecoder)},
        {"saved", record.isSaved()},
    };
}

} // namespace inspect
