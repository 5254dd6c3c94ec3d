#include "core/exportlist.h"
#include "core/readchildren.h"

#include <vorn/onvif/analytics.h>

namespace vorn {

using namespace Qt::StringLiterals;

OnvifRule::OnvifRule() = default;

OnvifRule::OnvifRule(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
    , name(node.element.attribute(u"Name"_s))
    , type(node.element.attribute(u"Type"_s))
{
}

OnvifRule::OnvifRule(const OnvifRule &other) = default;
OnvifRule::OnvifRule(OnvifRule &&other) noexcept = default;
OnvifRule &OnvifRule::operator=(const OnvifRule &other) = default;
OnvifRule &OnvifRule::operator=(OnvifRule &&other) noexcept = default;
OnvifRule::~OnvifRule() = default;

bool OnvifRule::operator==(const OnvifRule &other) const
{
    return isNull() == other.isNull() && name == other.name && type == other.type;
}

OnvifRuleEngineConfigurationVector::OnvifRuleEngineConfigurationVector() = default;

OnvifRuleEngineConfigurationVector::OnvifRuleEngineConfigurationVector(const XmlResponseNode &node)
{
    readChildren(node, {nested("Rule", [this](const XmlResponseNode &child) { append(OnvifRule(child)); })});
}

OnvifRuleEngineConfigurationVector::OnvifRuleEngineConfigurationVector(
    const OnvifRuleEngineConfigurationVector &other) = default;
OnvifRuleEngineConfigurationVector::OnvifRuleEngineConfigurationVector(
    OnvifRuleEngineConfigurationVector &&other) noexcept = default;
OnvifRuleEngineConfigurationVector &
OnvifRuleEngineConfigurationVector::operator=(const OnvifRuleEngineConfigurationVector &other) = default;
OnvifRuleEngineConfigurationVector &
OnvifRuleEngineConfigurationVector::operator=(OnvifRuleEngineConfigurationVector &&other) noexcept = default;
OnvifRuleEngineConfigurationVector::~OnvifRuleEngineConfigurationVector() = default;

} // namespace vorn

VORNSDK_ONVIF_DEFINE_LIST(vorn::OnvifRule)
