#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

void readValue(const RecordElement &element, OnvifAudioSourceConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Name", configuration.name),
                              field("UseCount", configuration.useCount),
                              field("SourceToken", configuration.sourceToken),
                          });
}

OnvifAudioSourceConfiguration::OnvifAudioSourceConfiguration() = default;

OnvifAudioSourceConfiguration::OnvifAudioSourceConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
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
    readElements(*this, {u"/Configurations"_s});
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
