#include "core/exportlist.h"
#include "core/readchildren.h"

#include <vorn/onvif/analytics.h>

namespace vorn {

using namespace Qt::StringLiterals;

OnvifAnalyticsModule::OnvifAnalyticsModule() = default;

OnvifAnalyticsModule::OnvifAnalyticsModule(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
    , name(node.element.attribute(u"Name"_s))
    , type(node.element.attribute(u"Type"_s))
{
}

OnvifAnalyticsModule::OnvifAnalyticsModule(const OnvifAnalyticsModule &other) = default;
OnvifAnalyticsModule::OnvifAnalyticsModule(OnvifAnalyticsModule &&other) noexcept = default;
OnvifAnalyticsModule &OnvifAnalyticsModule::operator=(const OnvifAnalyticsModule &other) = default;
OnvifAnalyticsModule &OnvifAnalyticsModule::operator=(OnvifAnalyticsModule &&other) noexcept = default;
OnvifAnalyticsModule::~OnvifAnalyticsModule() = default;

bool OnvifAnalyticsModule::operator==(const OnvifAnalyticsModule &other) const
{
    return isNull() == other.isNull() && name == other.name && type == other.type;
}

OnvifAnalyticsEngineConfigurationVector::OnvifAnalyticsEngineConfigurationVector() = default;

OnvifAnalyticsEngineConfigurationVector::OnvifAnalyticsEngineConfigurationVector(const XmlResponseNode &node)
{
    readChildren(node, {nested("AnalyticsModule",
                               [this](const XmlResponseNode &child) { append(OnvifAnalyticsModule(child)); })});
}

OnvifAnalyticsEngineConfigurationVector::OnvifAnalyticsEngineConfigurationVector(
    const OnvifAnalyticsEngineConfigurationVector &other) = default;
OnvifAnalyticsEngineConfigurationVector::OnvifAnalyticsEngineConfigurationVector(
    OnvifAnalyticsEngineConfigurationVector &&other) noexcept = default;
OnvifAnalyticsEngineConfigurationVector &
OnvifAnalyticsEngineConfigurationVector::operator=(const OnvifAnalyticsEngineConfigurationVector &other) = default;
OnvifAnalyticsEngineConfigurationVector &
OnvifAnalyticsEngineConfigurationVector::operator=(OnvifAnalyticsEngineConfigurationVector &&other) noexcept = default;
OnvifAnalyticsEngineConfigurationVector::~OnvifAnalyticsEngineConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifAnalyticsModule)
