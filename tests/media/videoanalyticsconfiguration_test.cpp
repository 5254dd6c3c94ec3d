#include "records.h"

using vorn::OnvifVideoAnalyticsConfiguration;

namespace {

OnvifVideoAnalyticsConfiguration read(const QByteArray &children)
{
    return test::recordFrom<OnvifVideoAnalyticsConfiguration>(children);
}

template <typename List>
QStringList namesOf(const List &list)
{
    QStringList names;
    for (const auto &element : list)
        names.append(element.name);
    return names;
}

const QByteArray bothEngines = "<AnalyticsEngineConfiguration><AnalyticsModule Name='m1'/><AnalyticsModule Name='m2'/>"
                               "</AnalyticsEngineConfiguration>"
                               "<RuleEngineConfiguration><Rule Name='r1'/><Rule Name='r2'/></RuleEngineConfiguration>";

TEST(OnvifVideoAnalyticsConfiguration, readsModulesAndRulesInDocumentOrder)
{
    const auto record = read(bothEngines);
    EXPECT_EQ(namesOf(record.analyticsEngineConfiguration), QStringList({"m1", "m2"}));
    EXPECT_EQ(namesOf(record.ruleEngineConfiguration), QStringList({"r1", "r2"}));
}

TEST(OnvifVideoAnalyticsConfiguration, lastEngineReplacesItsList)
{
    const auto modules = read(bothEngines
                              + "<AnalyticsEngineConfiguration><AnalyticsModule Name='m3'/>"
                                "</AnalyticsEngineConfiguration>");
    EXPECT_EQ(namesOf(modules.analyticsEngineConfiguration), QStringList({"m3"}));
    EXPECT_EQ(namesOf(modules.ruleEngineConfiguration), QStringList({"r1", "r2"}));

    const auto rules = read(bothEngines + "<RuleEngineConfiguration><Rule Name='r3'/></RuleEngineConfiguration>");
    EXPECT_EQ(namesOf(rules.analyticsEngineConfiguration), QStringList({"m1", "m2"}));
    EXPECT_EQ(namesOf(rules.ruleEngineConfiguration), QStringList({"r3"}));
}

TEST(OnvifVideoAnalyticsConfiguration, emptyEngineEmptiesItsList)
{
    const auto record = read(bothEngines + "<AnalyticsEngineConfiguration/><RuleEngineConfiguration/>");
    EXPECT_TRUE(record.analyticsEngineConfiguration.isEmpty());
    EXPECT_TRUE(record.ruleEngineConfiguration.isEmpty());
}

TEST(OnvifVideoAnalyticsConfiguration, ignoresTheElementsOfTheOtherEngine)
{
    const auto record = read("<AnalyticsEngineConfiguration><Rule Name='r'/></AnalyticsEngineConfiguration>"
                             "<RuleEngineConfiguration><AnalyticsModule Name='m'/></RuleEngineConfiguration>"
                             "<AnalyticsModule Name='m'/><Rule Name='r'/>");
    EXPECT_TRUE(record.analyticsEngineConfiguration.isEmpty());
    EXPECT_TRUE(record.ruleEngineConfiguration.isEmpty());
}

TEST(OnvifVideoAnalyticsConfiguration, readsAnUnsignedUseCount)
{
    EXPECT_EQ(read("<UseCount>-1</UseCount>").useCount, 0U);
    EXPECT_EQ(read("<UseCount>4294967295</UseCount>").useCount, 4294967295U);
    EXPECT_EQ(read("<UseCount>many</UseCount>").useCount, 0U);
}

TEST(OnvifVideoAnalyticsConfiguration, lastUseCountCountsAlsoIfItIsBad)
{
    EXPECT_EQ(read("<UseCount>1</UseCount><UseCount>2</UseCount>").useCount, 2U);
    EXPECT_EQ(read("<UseCount>1</UseCount><UseCount>-1</UseCount>").useCount, 0U);
}

TEST(OnvifVideoAnalyticsConfiguration, ignoresNamesOfAnotherCaseAtEveryLevel)
{
    test::expectDefaults(
        read("<analyticsEngineConfiguration><AnalyticsModule/></analyticsEngineConfiguration>"
             "<AnalyticsEngineConfiguration><analyticsmodule/></AnalyticsEngineConfiguration>"
             "<ruleEngineConfiguration><Rule/></ruleEngineConfiguration>"
             "<RuleEngineConfiguration><rule/><RULE/></RuleEngineConfiguration><useCount>1</useCount>"));
}

TEST(OnvifVideoAnalyticsConfiguration, assignmentTakesBothListsOver)
{
    const auto source = test::sample<OnvifVideoAnalyticsConfiguration>();
    auto target = read(bothEngines);
    target = source;
    test::expectSample(target);
    target = OnvifVideoAnalyticsConfiguration();
    test::expectDefaults(target);
}

TEST(OnvifVideoAnalyticsConfiguration, isEqualWhateverItsLists)
{
    const auto left = read(bothEngines);
    const auto right = read("");
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

} // namespace
