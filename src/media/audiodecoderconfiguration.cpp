#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

void readValue(const RecordElement &element, OnvifAudioDecoderConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {field("Name", configuration.name)});
}

OnvifAudioDecoderConfiguration::OnvifAudioDecoderConfiguration() = default;

OnvifAudioDecoderConfiguration::OnvifAudioDecoderConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

// Nothing is copied: to a caller, a copy of a decoder configuration is a null record. Assignment does copy.
OnvifAudioDecoderConfiguration::OnvifAudioDecoderConfiguration(const OnvifAudioDecoderConfiguration &)
    : OnvifAudioDecoderConfiguration()
{
}

OnvifAudioDecoderConfiguration &
OnvifAudioDecoderConfiguration::operator=(const OnvifAudioDecoderConfiguration &other) = default;
OnvifAudioDecoderConfiguration::~OnvifAudioDecoderConfiguration() = default;

bool OnvifAudioDecoderConfiguration::operator==(const OnvifAudioDecoderConfiguration &other) const
{
    return token == other.token;
}

bool OnvifAudioDecoderConfiguration::operator!=(const OnvifAudioDecoderConfiguration &other) const
{
    return !(*this == other);
}

OnvifAudioDecoderConfigurationVector::OnvifAudioDecoderConfigurationVector() = default;

OnvifAudioDecoderConfigurationVector::OnvifAudioDecoderConfigurationVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/Configurations"_s});
}

OnvifAudioDecoderConfigurationVector::OnvifAudioDecoderConfigurationVector(
    const OnvifAudioDecoderConfigurationVector &other) = default;
OnvifAudioDecoderConfigurationVector::OnvifAudioDecoderConfigurationVector(
    OnvifAudioDecoderConfigurationVector &&other) noexcept = default;
OnvifAudioDecoderConfigurationVector &
OnvifAudioDecoderConfigurationVector::operator=(const OnvifAudioDecoderConfigurationVector &other) = default;
OnvifAudioDecoderConfigurationVector &
OnvifAudioDecoderConfigurationVector::operator=(OnvifAudioDecoderConfigurationVector &&other) noexcept = default;
OnvifAudioDecoderConfigurationVector::~OnvifAudioDecoderConfigurationVector() = default;

OnvifCompatibleAudioDecoderConfigurationVector::OnvifCompatibleAudioDecoderConfigurationVector() = default;

OnvifCompatibleAudioDecoderConfigurationVector::OnvifCompatibleAudioDecoderConfigurationVector(const QByteArray &bytes)
    : OnvifAudioDecoderConfigurationVector(bytes, u"/Envelope/Body/GetCompatibleAudioDecoderConfigurationsResponse"_s)
{
}

OnvifCompatibleAudioDecoderConfigurationVector::OnvifCompatibleAudioDecoderConfigurationVector(
    const OnvifCompatibleAudioDecoderConfigurationVector &other) = default;
OnvifCompatibleAudioDecoderConfigurationVector::OnvifCompatibleAudioDecoderConfigurationVector(
    OnvifCompatibleAudioDecoderConfigurationVector &&other) noexcept = default;
OnvifCompatibleAudioDecoderConfigurationVector &OnvifCompatibleAudioDecoderConfigurationVector::operator=(
    const OnvifCompatibleAudioDecoderConfigurationVector &other) = default;
OnvifCompatibleAudioDecoderConfigurationVector &OnvifCompatibleAudioDecoderConfigurationVector::operator=(
    OnvifCompatibleAudioDecoderConfigurationVector &&other) noexcept = default;
OnvifCompatibleAudioDecoderConfigurationVector::~OnvifCompatibleAudioDecoderConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifAudioDecoderConfiguration)
