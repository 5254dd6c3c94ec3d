#include "core/exportlist.h"
#include "core/listrecord.h"
#include "core/readchildren.h"

#include <vorn/onvif/configurations.h>

namespace vorn {

using namespace Qt::StringLiterals;

OnvifVideoAnalyticsConfiguration::OnvifVideoAnalyticsConfiguration() = default;

OnvifVideoAnalyticsConfiguration::OnvifVideoAnalyticsConfiguration(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
    , token(node.element.attribute(u"token"_s))
{
    readChildren(node, {
                           field("Name", name),
                           field("UseCount", useCount),
                           field("AnalyticsEngineConfiguration", analyticsEngineConfiguration),
                           field("RuleEngineConfiguration", ruleEngineConfiguration),
                       });
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
    appendElements(*this, u"/Configurations"_s);
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
