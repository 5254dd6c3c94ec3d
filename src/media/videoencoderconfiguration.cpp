#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

/// A side that is missing is 0, also where an earlier element had it.
static void readValue(const XmlResponseNode &node, QSize &resolution)
{
    int width = 0;
    int height = 0;
    readChildren(node, {field("Width", width), field("Height", height)});
    resolution = QSize(width, height);
}

OnvifVideoEncoderConfiguration::OnvifVideoEncoderConfiguration() = default;

OnvifVideoEncoderConfiguration::OnvifVideoEncoderConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
    , token(node.element.attribute(u"token"_s))
{
    readChildren(node, {
                           field("Name", name),
                           field("Encoding", encoding),
                           field("UseCount", useCount),
                           field("Resolution", resolution),
                           field("Quality", quality),
                           group("RateControl",
                                 {
                                     field("FrameRateLimit", frameRateLimit),
                                     field("EncodingInterval", encodingInterval),
                                     field("BitrateLimit", bitrateLimit),
                                 }),
                           field("SessionTimeout", sessionTimeout),
                       });
}

OnvifVideoEncoderConfiguration::OnvifVideoEncoderConfiguration(const OnvifVideoEncoderConfiguration &other) = default;
OnvifVideoEncoderConfiguration &
OnvifVideoEncoderConfiguration::operator=(const OnvifVideoEncoderConfiguration &other) = default;
OnvifVideoEncoderConfiguration::~OnvifVideoEncoderConfiguration() = default;

bool OnvifVideoEncoderConfiguration::operator==(const OnvifVideoEncoderConfiguration &other) const
{
    return token == other.token;
}

bool OnvifVideoEncoderConfiguration::operator!=(const OnvifVideoEncoderConfiguration &other) const
{
    return !(*this == other);
}

OnvifVideoEncoderConfigurationVector::OnvifVideoEncoderConfigurationVector() = default;

OnvifVideoEncoderConfigurationVector::OnvifVideoEncoderConfigurationVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    appendElements(*this, u"/Configurations"_s);
}

OnvifVideoEncoderConfigurationVector::OnvifVideoEncoderConfigurationVector(
    const OnvifVideoEncoderConfigurationVector &other) = default;
OnvifVideoEncoderConfigurationVector::OnvifVideoEncoderConfigurationVector(
    OnvifVideoEncoderConfigurationVector &&other) noexcept = default;
OnvifVideoEncoderConfigurationVector &
OnvifVideoEncoderConfigurationVector::operator=(const OnvifVideoEncoderConfigurationVector &other) = default;
OnvifVideoEncoderConfigurationVector &
OnvifVideoEncoderConfigurationVector::operator=(OnvifVideoEncoderConfigurationVector &&other) noexcept = default;
OnvifVideoEncoderConfigurationVector::~OnvifVideoEncoderConfigurationVector() = default;

OnvifCompatibleVideoEncoderConfigurationVector::OnvifCompatibleVideoEncoderConfigurationVector() = default;

OnvifCompatibleVideoEncoderConfigurationVector::OnvifCompatibleVideoEncoderConfigurationVector(const QByteArray &bytes)
    : OnvifVideoEncoderConfigurationVector(bytes, u"/Envelope/Body/GetCompatibleVideoEncoderConfigurationsResponse"_s)
{
}

OnvifCompatibleVideoEncoderConfigurationVector::OnvifCompatibleVideoEncoderConfigurationVector(
    const OnvifCompatibleVideoEncoderConfigurationVector &other) = default;
OnvifCompatibleVideoEncoderConfigurationVector::OnvifCompatibleVideoEncoderConfigurationVector(
    OnvifCompatibleVideoEncoderConfigurationVector &&other) noexcept = default;
OnvifCompatibleVideoEncoderConfigurationVector &OnvifCompatibleVideoEncoderConfigurationVector::operator=(
    const OnvifCompatibleVideoEncoderConfigurationVector &other) = default;
OnvifCompatibleVideoEncoderConfigurationVector &OnvifCompatibleVideoEncoderConfigurationVector::operator=(
    OnvifCompatibleVideoEncoderConfigurationVector &&other) noexcept = default;
OnvifCompatibleVideoEncoderConfigurationVector::~OnvifCompatibleVideoEncoderConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifVideoEncoderConfiguration)
