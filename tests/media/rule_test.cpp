#include "analyticsrecord.h"

namespace {

struct Rule
{
    using Record = vorn::OnvifRule;
    using Engine = vorn::OnvifRuleEngineConfigurationVector;
    static constexpr const char *child = "Rule";
    static constexpr const char *otherChild = "AnalyticsModule";
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(OnvifRule, AnalyticsRecord, Rule, );

} // namespace test
