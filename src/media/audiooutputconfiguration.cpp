#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

void readValue(const RecordElement &element, OnvifAudioOutputConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Name", configuration.name),
                              field("UseCount", configuration.useCount),
                              field("OutputToken", configuration.outputToken),
                              field("OutputLevel", configuration.outputLevel),
                              field("SendPrimacy", configuration.sendPrimacy),
                          });
}

OnvifAudioOutputConfiguration::OnvifAudioOutputConfiguration() = default;

OnvifAudioOutputConfiguration::OnvifAudioOutputConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

OnvifAudioOutputConfiguration::OnvifAudioOutputConfiguration(const OnvifAudioOutputConfiguration &other) = default;
OnvifAudioOutputConfiguration &
OnvifAudioOutputConfiguration::operator=(const OnvifAudioOutputConfiguration &other) = default;
OnvifAudioOutputConfiguration::~OnvifAudioOutputConfiguration() = default;

bool OnvifAudioOutputConfiguration::operator==(const OnvifAudioOutputConfiguration &other) const
{
    return token == other.token;
}

bool OnvifAudioOutputConfiguration::operator!=(const OnvifAudioOutputConfiguration &other) const
{
    return !(*this == other);
}

OnvifAudioOutputConfigurationVector::OnvifAudioOutputConfigurationVector() = default;

OnvifAudioOutputConfigurationVector::OnvifAudioOutputConfigurationVector(const QByteArray &bytes, const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/Configurations"_s, u"/Options"_s});
}

OnvifAudioOutputConfigurationVector::OnvifAudioOutputConfigurationVector(
    const OnvifAudioOutputConfigurationVector &other) = default;
OnvifAudioOutputConfigurationVector::OnvifAudioOutputConfigurationVector(
    OnvifAudioOutputConfigurationVector &&other) noexcept = default;
OnvifAudioOutputConfigurationVector &
OnvifAudioOutputConfigurationVector::operator=(const OnvifAudioOutputConfigurationVector &other) = default;
OnvifAudioOutputConfigurationVector &
OnvifAudioOutputConfigurationVector::operator=(OnvifAudioOutputConfigurationVector &&other) noexcept = default;
OnvifAudioOutputConfigurationVector::~OnvifAudioOutputConfigurationVector() = default;

OnvifCompatibleAudioOutputConfigurationVector::OnvifCompatibleAudioOutputConfigurationVector() = default;

OnvifCompatibleAudioOutputConfigurationVector::OnvifCompatibleAudioOutputConfigurationVector(const QByteArray &bytes)
    : OnvifAudioOutputConfigurationVector(bytes, u"/Envelope/Body/GetCompatibleAudioOutputConfigurationsResponse"_s)
{
}

OnvifCompatibleAudioOutputConfigurationVector::OnvifCompatibleAudioOutputConfigurationVector(
    const OnvifCompatibleAudioOutputConfigurationVector &other) = default;
OnvifCompatibleAudioOutputConfigurationVector::OnvifCompatibleAudioOutputConfigurationVector(
    OnvifCompatibleAudioOutputConfigurationVector &&other) noexcept = default;
OnvifCompatibleAudioOutputConfigurationVector &OnvifCompatibleAudioOutputConfigurationVector::operator=(
    const OnvifCompatibleAudioOutputConfigurationVector &other) = default;
OnvifCompatibleAudioOutputConfigurationVector &OnvifCompatibleAudioOutputConfigurationVector::operator=(
    OnvifCompatibleAudioOutputConfigurationVector &&other) noexcept = default;
OnvifCompatibleAudioOutputConfigurationVector::~OnvifCompatibleAudioOutputConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifAudioOutputConfiguration)
