#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"
#include "readconfigurations.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

void readValue(const RecordElement &element, OnvifVideoAnalyticsConfiguration &configuration)
{
    configuration.token = element.attribute(u"token"_s);
    readChildren(element, {
                              field("Name", configuration.name),
                              field("UseCount", configuration.useCount),
                              field("AnalyticsEngineConfiguration", configuration.analyticsEngineConfiguration),
                              field("RuleEngineConfiguration", configuration.ruleEngineConfiguration),
                          });
}

OnvifVideoAnalyticsConfiguration::OnvifVideoAnalyticsConfiguration() = default;

OnvifVideoAnalyticsConfiguration::OnvifVideoAnalyticsConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
}

OnvifVideoAnalyticsConfiguration::OnvifVideoAnalyticsConfiguration(const OnvifVideoAnalyticsConfiguration &other) =
    default;
OnvifVideoAnalyticsConfiguration &
OnvifVideoAnalyticsConfiguration::operator=(const OnvifVideoAnalyticsConfiguration &other) = default;
OnvifVideoAnalyticsConfiguration::~OnvifVideoAnalyticsConfiguration() = default;

bool OnvifVideoAnalyticsConfiguration::operator==(const OnvifVideoAnalyticsConfiguration &other) const
{
    return token == other.token;
}

bool OnvifVideoAnalyticsConfiguration::operator!=(const OnvifVideoAnalyticsConfiguration &other) const
{
    return !(*this == other);
}

OnvifVideoAnalyticsConfigurationVector::OnvifVideoAnalyticsConfigurationVector() = default;

OnvifVideoAnalyticsConfigurationVector::OnvifVideoAnalyticsConfigurationVector(const QByteArray &bytes,
                                                                               const QString &root)
    : OnvifResponseStructure(bytes, root)
{
    readElements(*this, {u"/Configurations"_s});
}

OnvifVideoAnalyticsConfigurationVector::OnvifVideoAnalyticsConfigurationVector(
    const OnvifVideoAnalyticsConfigurationVector &other) = default;
OnvifVideoAnalyticsConfigurationVector::OnvifVideoAnalyticsConfigurationVector(
    OnvifVideoAnalyticsConfigurationVector &&other) noexcept = default;
OnvifVideoAnalyticsConfigurationVector &
OnvifVideoAnalyticsConfigurationVector::operator=(const OnvifVideoAnalyticsConfigurationVector &other) = default;
OnvifVideoAnalyticsConfigurationVector &
OnvifVideoAnalyticsConfigurationVector::operator=(OnvifVideoAnalyticsConfigurationVector &&other) noexcept = default;
OnvifVideoAnalyticsConfigurationVector::~OnvifVideoAnalyticsConfigurationVector() = default;

OnvifCompatibleVideoAnalyticsConfigurationVector::OnvifCompatibleVideoAnalyticsConfigurationVector() = default;

OnvifCompatibleVideoAnalyticsConfigurationVector::OnvifCompatibleVideoAnalyticsConfigurationVector(
    const QByteArray &bytes)
    : OnvifVideoAnalyticsConfigurationVector(bytes,
                                             u"/Envelope/Body/GetCompatibleVideoAnalyticsConfigurationsResponse"_s)
{
}

OnvifCompatibleVideoAnalyticsConfigurationVector::OnvifCompatibleVideoAnalyticsConfigurationVector(
    const OnvifCompatibleVideoAnalyticsConfigurationVector &other) = default;
OnvifCompatibleVideoAnalyticsConfigurationVector::OnvifCompatibleVideoAnalyticsConfigurationVector(
    OnvifCompatibleVideoAnalyticsConfigurationVector &&other) noexcept = default;
OnvifCompatibleVideoAnalyticsConfigurationVector &OnvifCompatibleVideoAnalyticsConfigurationVector::operator=(
    const OnvifCompatibleVideoAnalyticsConfigurationVector &other) = default;
OnvifCompatibleVideoAnalyticsConfigurationVector &OnvifCompatibleVideoAnalyticsConfigurationVector::operator=(
    OnvifCompatibleVideoAnalyticsConfigurationVector &&other) noexcept = default;
OnvifCompatibleVideoAnalyticsConfigurationVector::~OnvifCompatibleVideoAnalyticsConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifVideoAnalyticsConfiguration)
