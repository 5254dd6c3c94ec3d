#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

/// A side that is missing is 0, also where an earlier element had it.
static void readValue(const RecordElement &element, QSize &resolution)
{
    int width = 0;
    int height = 0;
    readChildren(element, {field("Width", width), field("Height", height)});
    resolution = QSize(width, height);
}

void readValue(const RecordElement &element, OnvifVideoEncoderConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Name", configuration.name),
                              field("Encoding", configuration.encoding),
                              field("UseCount", configuration.useCount),
                              field("Resolution", configuration.resolution),
                              field("Quality", configuration.quality),
                              group("RateControl",
                                    {
                                        field("FrameRateLimit", configuration.frameRateLimit),
                                        field("EncodingInterval", configuration.encodingInterval),
                                        field("BitrateLimit", configuration.bitrateLimit),
                                    }),
                              field("SessionTimeout", configuration.sessionTimeout),
                          });
}

OnvifVideoEncoderConfiguration::OnvifVideoEncoderConfiguration() = default;

OnvifVideoEncoderConfiguration::OnvifVideoEncoderConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
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
    readElements(*this, {u"/Configurations"_s});
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
