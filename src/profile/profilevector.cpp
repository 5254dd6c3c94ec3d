#include "core/listrecord.h"
#include "media/readconfigurations.h"

#include <vorn/onvif/profiles.h>

namespace vorn {

using namespace Qt::StringLiterals;

namespace {

/// The configuration that an element holds is assigned as a whole: what assignment does not take, a profile does not
/// get.
template <typename Configuration>
ChildReader configuration(const char *name, Configuration &target)
{
    return {QLatin1String(name), &target, [](const RecordElement &child, void *record) {
                *static_cast<Configuration *>(record) = recordFrom<Configuration>(child);
            }};
}

/// The profile that \a element holds, with all its configurations. Of two of one kind, the first counts.
OnvifProfile profileFrom(const RecordElement &element)
{
    OnvifProfile profile({}, element.attribute(u"token"_s), element.attribute(u"fixed"_s) == "true"_L1);
    readFirstChildren(element, {
                                   field("Name", profile.name),
                                   configuration("VideoSourceConfiguration", profile.videoSource),
                                   configuration("AudioSourceConfiguration", profile.audioSource),
                                   configuration("VideoEncoderConfiguration", profile.videoEncoder),
                                   configuration("AudioEncoderConfiguration", profile.audioEncoder),
                                   configuration("VideoAnalyticsConfiguration", profile.videoAnalytics),
                                   configuration("PTZConfiguration", profile.ptz),
                                   configuration("MetadataConfiguration", profile.metadata),
                                   nested("Extension",
                                          [&profile](const RecordElement &extension) {
                                              readFirstChildren(
                                                  extension,
                                                  {
                                                      configuration("AudioOutputConfiguration", profile.audioOutput),
                                                      configuration("AudioDecoderConfiguration", profile.audioDecoder),
                                                  });
                                          }),
                               });
    return profile;
}

} // namespace

OnvifProfileVector::OnvifProfileVector() = default;

OnvifProfileVector::OnvifProfileVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/Profiles"_s}, profileFrom);
}

OnvifProfileVector::OnvifProfileVector(const OnvifProfileVector &other) = default;
OnvifProfileVector::OnvifProfileVector(OnvifProfileVector &&other) noexcept = default;
OnvifProfileVector &OnvifProfileVector::operator=(const OnvifProfileVector &other) = default;
OnvifProfileVector &OnvifProfileVector::operator=(OnvifProfileVector &&other) noexcept = default;
OnvifProfileVector::~OnvifProfileVector() = default;

} // namespace vorn
