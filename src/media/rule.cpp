#include "core/exportlist.h"
#include "core/listrecord.h"
#include "readconfigurations.h"

#include <vorn/onvif/analytics.h>

namespace vorn {

using namespace Qt::StringLiterals;

static void readValue(const RecordElement &element, OnvifRule &rule)
{
    rule.name = element.attribute(u"Name"_s);
    rule.type = element.attribute(u"Type"_s);
}

OnvifRule::OnvifRule() = default;

OnvifRule::OnvifRule(const XmlResponseNode &node)
    : OnvifDataStructure(node.element.isNull())
{
    readValue(node, *this);
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

void readValue(const RecordElement &element, OnvifRuleEngineConfigurationVector &rules)
{
    readList(element, "Rule", rules);
}

OnvifRuleEngineConfigurationVector::OnvifRuleEngineConfigurationVector() = default;

OnvifRuleEngineConfigurationVector::OnvifRuleEngineConfigurationVector(const XmlResponseNode &node)
{
    readValue(node, *this);
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
