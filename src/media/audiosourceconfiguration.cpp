#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

OnvifAudioSourceConfiguration::OnvifAudioSourceConfiguration() = default;

OnvifAudioSourceConfiguration::OnvifAudioSourceConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
    , token(node.element.attribute(u"token"_s))
{
    readChildren(node, {
                           field("Name", name),
                           field("UseCount", useCount),
                           field("SourceToken", sourceToken),
                       });
}

OnvifAudioSourceConfiguration::OnvifAudioSourceConfiguration(const OnvifAudioSourceConfiguration &other) = default;
OnvifAudioSourceConfiguration &
OnvifAudioSourceConfiguration::operator=(const OnvifAudioSourceConfiguration &other) = default;
OnvifAudioSourceConfiguration::~OnvifAudioSourceConfiguration() = default;

bool OnvifAudioSourceConfiguration::operator==(const OnvifAudioSourceConfiguration &other) const
{
    return token == other.token;
}

bool OnvifAudioSourceConfiguration::operator!=(const OnvifAudioSourceConfiguration &other) const
{
    return !(*this == other);
}

OnvifAudioSourceConfigurationVector::OnvifAudioSourceConfigurationVector() = default;

OnvifAudioSourceConfigurationVector::OnvifAudioSourceConfigurationVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    appendElements(*this, u"/Configurations"_s);
}

OnvifAudioSourceConfigurationVector::OnvifAudioSourceConfigurationVector(
    const OnvifAudioSourceConfigurationVector &other) = default;
OnvifAudioSourceConfigurationVector::OnvifAudioSourceConfigurationVector(
    OnvifAudioSourceConfigurationVector &&other) noexcept = default;
OnvifAudioSourceConfigurationVector &
OnvifAudioSourceConfigurationVector::operator=(const OnvifAudioSourceConfigurationVector &other) = default;
OnvifAudioSourceConfigurationVector &
OnvifAudioSourceConfigurationVector::operator=(OnvifAudioSourceConfigurationVector &&other) noexcept = default;
OnvifAudioSourceConfigurationVector::~OnvifAudioSourceConfigurationVector() = default;

OnvifCompatibleAudioSourceConfigurationVector::OnvifCompatibleAudioSourceConfigurationVector() = default;

OnvifCompatibleAudioSourceConfigurationVector::OnvifCompatibleAudioSourceConfigurationVector(const QByteArray &bytes)
    : OnvifAudioSourceConfigurationVector(bytes, u"/Envelope/Body/GetCompatibleAudioSourceConfigurationsResponse"_s)
{
}

OnvifCompatibleAudioSourceConfigurationVector::OnvifCompatibleAudioSourceConfigurationVector(
    const OnvifCompatibleAudioSourceConfigurationVector &other) = default;
OnvifCompatibleAudioSourceConfigurationVector::OnvifCompatibleAudioSourceConfigurationVector(
    OnvifCompatibleAudioSourceConfigurationVector &&other) noexcept = default;
OnvifCompatibleAudioSourceConfigurationVector &OnvifCompatibleAudioSourceConfigurationVector::operator=(
    const OnvifCompatibleAudioSourceConfigurationVector &other) = default;
OnvifCompatibleAudioSourceConfigurationVector &OnvifCompatibleAudioSourceConfigurationVector::operator=(
    OnvifCompatibleAudioSourceConfigurationVector &&other) noexcept = default;
OnvifCompatibleAudioSourceConfigurationVector::~OnvifCompatibleAudioSourceConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifAudioSourceConfiguration)
