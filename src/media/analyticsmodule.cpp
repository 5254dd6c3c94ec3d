#include "core/exportlist.h"
#include "core/listrecord.h"
#include "readconfigurations.h"

#include <vorn/onvif/analytics.h>

namespace vorn {

using namespace Qt::StringLiterals;

static void readValue(const RecordElement &element, OnvifAnalyticsModule &analyticsModule)
{
    analyticsModule.name = element.attribute(u"Name"_s);
    analyticsModule.type = element.attribute(u"Type"_s);
}

OnvifAnalyticsModule::OnvifAnalyticsModule() = default;

OnvifAnalyticsModule::OnvifAnalyticsModule(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
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

void readValue(const RecordElement &element, OnvifAnalyticsEngineConfigurationVector &modules)
{
    readList(element, "AnalyticsModule", modules);
}

OnvifAnalyticsEngineConfigurationVector::OnvifAnalyticsEngineConfigurationVector() = default;

OnvifAnalyticsEngineConfigurationVector::OnvifAnalyticsEngineConfigurationVector(const XmlResponseNode &node)
{
    readValue(node, *this);
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
