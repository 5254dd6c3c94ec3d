#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

void readValue(const RecordElement &element, OnvifAudioEncoderConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Name", configuration.name),
                              field("Encoding", configuration.encoding),
                              field("UseCount", configuration.useCount),
                              field("Bitrate", configuration.bitrate),
                              field("SampleRate", configuration.sampleRate),
                              field("SessionTimeout", configuration.sessionTimeout),
                          });
}

OnvifAudioEncoderConfiguration::OnvifAudioEncoderConfiguration() = default;

OnvifAudioEncoderConfiguration::OnvifAudioEncoderConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

OnvifAudioEncoderConfiguration::OnvifAudioEncoderConfiguration(const OnvifAudioEncoderConfiguration &other) = default;
OnvifAudioEncoderConfiguration &
OnvifAudioEncoderConfiguration::operator=(const OnvifAudioEncoderConfiguration &other) = default;
OnvifAudioEncoderConfiguration::~OnvifAudioEncoderConfiguration() = default;

bool OnvifAudioEncoderConfiguration::operator==(const OnvifAudioEncoderConfiguration &other) const
{
    return token == other.token;
}

bool OnvifAudioEncoderConfiguration::operator!=(const OnvifAudioEncoderConfiguration &other) const
{
    return !(*this == other);
}

OnvifAudioEncoderConfigurationVector::OnvifAudioEncoderConfigurationVector() = default;

OnvifAudioEncoderConfigurationVector::OnvifAudioEncoderConfigurationVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/Configurations"_s});
}

OnvifAudioEncoderConfigurationVector::OnvifAudioEncoderConfigurationVector(
    const OnvifAudioEncoderConfigurationVector &other) = default;
OnvifAudioEncoderConfigurationVector::OnvifAudioEncoderConfigurationVector(
    OnvifAudioEncoderConfigurationVector &&other) noexcept = default;
OnvifAudioEncoderConfigurationVector &
OnvifAudioEncoderConfigurationVector::operator=(const OnvifAudioEncoderConfigurationVector &other) = default;
OnvifAudioEncoderConfigurationVector &
OnvifAudioEncoderConfigurationVector::operator=(OnvifAudioEncoderConfigurationVector &&other) noexcept = default;
OnvifAudioEncoderConfigurationVector::~OnvifAudioEncoderConfigurationVector() = default;

OnvifCompatibleAudioEncoderConfigurationVector::OnvifCompatibleAudioEncoderConfigurationVector() = default;

OnvifCompatibleAudioEncoderConfigurationVector::OnvifCompatibleAudioEncoderConfigurationVector(const QByteArray &bytes)
    : OnvifAudioEncoderConfigurationVector(bytes, u"/Envelope/Body/GetCompatibleAudioEncoderConfigurationsResponse"_s)
{
}

OnvifCompatibleAudioEncoderConfigurationVector::OnvifCompatibleAudioEncoderConfigurationVector(
    const OnvifCompatibleAudioEncoderConfigurationVector &other) = default;
OnvifCompatibleAudioEncoderConfigurationVector::OnvifCompatibleAudioEncoderConfigurationVector(
    OnvifCompatibleAudioEncoderConfigurationVector &&other) noexcept = default;
OnvifCompatibleAudioEncoderConfigurationVector &OnvifCompatibleAudioEncoderConfigurationVector::operator=(
    const OnvifCompatibleAudioEncoderConfigurationVector &other) = default;
OnvifCompatibleAudioEncoderConfigurationVector &OnvifCompatibleAudioEncoderConfigurationVector::operator=(
    OnvifCompatibleAudioEncoderConfigurationVector &&other) noexcept = default;
OnvifCompatibleAudioEncoderConfigurationVector::~OnvifCompatibleAudioEncoderConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifAudioEncoderConfiguration)
