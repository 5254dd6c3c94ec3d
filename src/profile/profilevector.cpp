#include "core/listrecord.h"

#include <vorn/onvif/profiles.h>

namespace vorn {

using namespace Qt::StringLiterals;

namespace {

/// The profile that \a node holds, with all its configurations.
OnvifProfile profileFrom(XmlResponse &response, const XmlResponseNode &node)
{
    OnvifProfile profile(response.getText(node, u"/Profiles/Name"_s), node.element.attribute(u"token"_s),
                         node.element.attribute(u"fixed"_s) == "true"_L1);
    const auto read = [&](auto &configuration, const QString &path) {
        configuration = std::decay_t<decltype(configuration)>(response.get(node, path));
    };
    read(profile.videoSource, u"/Profiles/VideoSourceConfiguration"_s);
    read(profile.audioSource, u"/Profiles/AudioSourceConfiguration"_s);
    read(profile.videoEncoder, u"/Profiles/VideoEncoderConfiguration"_s);
    read(profile.audioEncoder, u"/Profiles/AudioEncoderConfiguration"_s);
    read(profile.videoAnalytics, u"/Profiles/VideoAnalyticsConfiguration"_s);
    read(profile.ptz, u"/Profiles/PTZConfiguration"_s);
    read(profile.metadata, u"/Profiles/MetadataConfiguration"_s);
    read(profile.audioOutput, u"/Profiles/Extension/AudioOutputConfiguration"_s);
    read(profile.audioDecoder, u"/Profiles/Extension/AudioDecoderConfiguration"_s);
    return profile;
}

} // namespace

OnvifProfileVector::OnvifProfileVector() = default;

OnvifProfileVector::OnvifProfileVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    appendElements(*this, u"/Profiles"_s, [this](const XmlResponseNode &node) { return profileFrom(response, node); });
}

OnvifProfileVector::OnvifProfileVector(const OnvifProfileVector &other) = default;
OnvifProfileVector::OnvifProfileVector(OnvifProfileVector &&other) noexcept = default;
OnvifProfileVector &OnvifProfileVector::operator=(const OnvifProfileVector &other) = default;
OnvifProfileVector &OnvifProfileVector::operator=(OnvifProfileVector &&other) noexcept = default;
OnvifProfileVector::~OnvifProfileVector() = default;

} // namespace vorn
