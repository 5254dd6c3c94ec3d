#include "analyticsrecord.h"

namespace {

struct Module
{
    using Record = vorn::OnvifAnalyticsModule;
    using Engine = vorn::OnvifAnalyticsEngineConfigurationVector;
    static constexpr const char *child = "AnalyticsModule";
    static constexpr const char *otherChild = "Rule";
};

} // namespace

namespace test {

INSTANTIATE_TYPED_TEST_SUITE_P(OnvifAnalyticsModule, AnalyticsRecord, Module, );

} // namespace test
