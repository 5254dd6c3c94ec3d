#include "records.h"

#include <algorithm>
#include <utility>

using vorn::OnvifCompatibleMetadataConfigurationVector;
using vorn::OnvifMetadataConfiguration;

namespace {

OnvifMetadataConfiguration read(const QByteArray &children)
{
    return test::recordFrom<OnvifMetadataConfiguration>(children);
}

/// An engine with one module for each of \a names.
QByteArray engine(const QByteArrayList &names)
{
    QByteArray modules;
    for (const QByteArray &name : names)
        modules += "<tt:AnalyticsModule Name='" + name + "' Type='tt:Any'/>";
    return test::element("AnalyticsEngineConfiguration", modules);
}

QStringList modulesOf(const OnvifMetadataConfiguration &record)
{
    QStringList names;
    for (const vorn::OnvifAnalyticsModule &module : record.analyticsEngineConfiguration)
        names.append(module.name);
    return names;
}

QByteArray full(const QByteArray &token, const QByteArray &engineElement)
{
    using Sample = test::Sample<OnvifMetadataConfiguration>;
    return "<Element token='" + token + "'>" + Sample::children + engineElement + "</Element>";
}

/// A full record with one module for each of \a names.
OnvifMetadataConfiguration withModules(const QByteArray &token, const QByteArrayList &names)
{
    return OnvifMetadataConfiguration(test::nodeOf(full(token, engine(names))));
}

TEST(OnvifMetadataConfiguration, readsItsModules)
{
    const auto record = withModules("T1", {"Cells", "Tracks"});
    test::expectSample(record);
    EXPECT_EQ(modulesOf(record), QStringList({"Cells", "Tracks"}));
    EXPECT_EQ(record.analyticsEngineConfiguration[0].type, "tt:Any");
    EXPECT_FALSE(record.analyticsEngineConfiguration[0].isNull());
}

TEST(OnvifMetadataConfiguration, lastEngineReplacesTheModules)
{
    EXPECT_EQ(modulesOf(read(engine({"a", "b"}) + engine({"c"}))), QStringList({"c"}));
    EXPECT_TRUE(modulesOf(read(engine({"a", "b"}) + engine({}))).isEmpty());
}

TEST(OnvifMetadataConfiguration, ignoresModulesOutsideTheEngine)
{
    EXPECT_TRUE(modulesOf(read("<AnalyticsModule Name='a'/><AnalyticsEngine><AnalyticsModule/></AnalyticsEngine>"
                               "<AnalyticsEngineConfiguration><Extension><AnalyticsModule/></Extension>"
                               "</AnalyticsEngineConfiguration>"))
                    .isEmpty());
}

TEST(OnvifMetadataConfiguration, readsBooleansOfTheWordTrueAlone)
{
    for (const char *text : {"True", "TRUE", "1", " true", "true ", "truee", "yes", "false", ""}) {
        const auto record =
            read(test::element("Analytics", text)
                 + test::element("PTZStatus", test::element("Status", text) + test::element("Position", text)));
        EXPECT_FALSE(record.analytics) << text;
        EXPECT_FALSE(record.ptzStatus) << text;
        EXPECT_FALSE(record.ptzPosition) << text;
    }
    EXPECT_TRUE(read("<Analytics>true</Analytics>").analytics);
}

TEST(OnvifMetadataConfiguration, laterBooleanClearsAnEarlierOne)
{
    EXPECT_FALSE(read("<Analytics>true</Analytics><Analytics>false</Analytics>").analytics);
    EXPECT_FALSE(read("<Analytics>true</Analytics><Analytics/>").analytics);
    EXPECT_TRUE(read("<Analytics>1</Analytics><Analytics>true</Analytics>").analytics);
}

TEST(OnvifMetadataConfiguration, readsEachFlagOfPtzStatus)
{
    const auto status = read("<PTZStatus><Status>true</Status></PTZStatus>");
    EXPECT_TRUE(status.ptzStatus);
    EXPECT_FALSE(status.ptzPosition);
    const auto position = read("<PTZStatus><Position>true</Position></PTZStatus>");
    EXPECT_FALSE(position.ptzStatus);
    EXPECT_TRUE(position.ptzPosition);
}

TEST(OnvifMetadataConfiguration, flagSurvivesAPtzStatusWithoutIt)
{
    const auto record = read("<PTZStatus><Status>true</Status><Position>true</Position></PTZStatus>"
                             "<PTZStatus><Position>false</Position></PTZStatus><PTZStatus/>");
    EXPECT_TRUE(record.ptzStatus);
    EXPECT_FALSE(record.ptzPosition);
}

TEST(OnvifMetadataConfiguration, readsFlagsInsidePtzStatusOnly)
{
    const auto record = read("<Status>true</Status><Position>true</Position><Events><Status>true</Status></Events>"
                             "<PTZStatus><Any><Position>true</Position></Any></PTZStatus>");
    EXPECT_FALSE(record.ptzStatus);
    EXPECT_FALSE(record.ptzPosition);
}

TEST(OnvifMetadataConfiguration, textSurvivesEventsWithoutIt)
{
    const auto record = read("<Events><Filter>f</Filter><SubscriptionPolicy>p</SubscriptionPolicy></Events>"
                             "<Events><Filter>g</Filter></Events><Events/>");
    EXPECT_EQ(record.eventsFilter, "g");
    EXPECT_EQ(record.eventsSubscriptionPolicy, "p");
}

TEST(OnvifMetadataConfiguration, readsTextsInsideEventsOnly)
{
    const auto record = read("<Filter>f</Filter><SubscriptionPolicy>p</SubscriptionPolicy>"
                             "<PTZStatus><Filter>f</Filter></PTZStatus>");
    EXPECT_TRUE(record.eventsFilter.isEmpty());
    EXPECT_TRUE(record.eventsSubscriptionPolicy.isEmpty());
}

TEST(OnvifMetadataConfiguration, keepsTheTextOfAFilterWithoutItsElements)
{
    const auto record =
        read("<Events><Filter><TopicExpression Dialect='d'>tns1:a</TopicExpression><MessageContent>b</MessageContent>"
             "</Filter></Events>");
    EXPECT_EQ(record.eventsFilter, "tns1:ab");
}

TEST(OnvifMetadataConfiguration, readsTheSessionTimeoutAsANumber)
{
    const auto timeoutOf = [](const char *text) { return read(test::element("SessionTimeout", text)).sessionTimeout; };
    EXPECT_EQ(timeoutOf("60"), 60U);
    EXPECT_EQ(timeoutOf("4294967295"), 4294967295U);
    EXPECT_EQ(timeoutOf("PT60S"), 0U);
    EXPECT_EQ(timeoutOf("-60"), 0U);
    EXPECT_EQ(timeoutOf("1.5"), 0U);
    EXPECT_EQ(timeoutOf(""), 0U);
    EXPECT_EQ(read("<SessionTimeout>60</SessionTimeout><SessionTimeout>PT1S</SessionTimeout>").sessionTimeout, 0U);
}

TEST(OnvifMetadataConfiguration, readsAnUnsignedUseCount)
{
    EXPECT_EQ(read("<UseCount>-1</UseCount>").useCount, 0U);
    EXPECT_EQ(read("<UseCount>4294967295</UseCount>").useCount, 4294967295U);
    EXPECT_EQ(read("<UseCount>1</UseCount><UseCount>x</UseCount>").useCount, 0U);
}

TEST(OnvifMetadataConfiguration, ignoresNamesOfAnotherCaseAtEveryLevel)
{
    const auto record = read("<PtzStatus><Status>true</Status><Position>true</Position></PtzStatus>"
                             "<PTZStatus><status>true</status><POSITION>true</POSITION></PTZStatus>"
                             "<events><Filter>f</Filter></events><Events><filter>f</filter></Events>"
                             "<analytics>true</analytics><sessiontimeout>1</sessiontimeout>"
                             "<analyticsEngineConfiguration><AnalyticsModule/></analyticsEngineConfiguration>"
                             "<AnalyticsEngineConfiguration><analyticsModule/></AnalyticsEngineConfiguration>");
    test::expectDefaults(record);
}

TEST(OnvifMetadataConfiguration, copyTakesTheModulesOver)
{
    const auto source = withModules("T1", {"a", "b"});
    const OnvifMetadataConfiguration copy(source); // NOLINT(performance-unnecessary-copy-initialization)
    test::expectSample(copy);
    EXPECT_EQ(modulesOf(copy), QStringList({"a", "b"}));
}

TEST(OnvifMetadataConfiguration, moveCopiesTheModules)
{
    auto source = withModules("T1", {"a", "b"});
    const OnvifMetadataConfiguration moved(std::move(source));
    EXPECT_EQ(modulesOf(moved), QStringList({"a", "b"}));
    EXPECT_EQ(modulesOf(source), QStringList({"a", "b"})); // NOLINT(bugprone-use-after-move): nothing is moved
}

TEST(OnvifMetadataConfiguration, assignmentKeepsTheModulesOfTheTarget)
{
    const auto source = withModules("T1", {"a", "b"});
    auto target = withModules("T2", {"own"});
    target = source;
    test::expectSample(target);
    EXPECT_EQ(modulesOf(target), QStringList({"own"}));

    OnvifMetadataConfiguration empty;
    empty = source;
    test::expectSample(empty);
    EXPECT_TRUE(modulesOf(empty).isEmpty());
}

TEST(OnvifMetadataConfiguration, moveAssignmentKeepsTheModulesOfTheTarget)
{
    auto source = withModules("T1", {"a", "b"});
    auto target = withModules("T2", {"own"});
    target = std::move(source);
    test::expectSample(target);
    EXPECT_EQ(modulesOf(target), QStringList({"own"}));
    EXPECT_EQ(modulesOf(source), QStringList({"a", "b"})); // NOLINT(bugprone-use-after-move): nothing is moved
}

TEST(OnvifMetadataConfiguration, assigningANullRecordLeavesTheModules)
{
    auto target = withModules("T1", {"own"});
    target = OnvifMetadataConfiguration();
    EXPECT_TRUE(target.isNull());
    EXPECT_TRUE(target.token.isEmpty());
    EXPECT_EQ(modulesOf(target), QStringList({"own"}));
}

TEST(OnvifMetadataConfiguration, keepsItsModulesWhenItIsAssignedToItself)
{
    auto record = withModules("T1", {"own"});
    const auto &same = record;
    record = same;
    test::expectSample(record);
    EXPECT_EQ(modulesOf(record), QStringList({"own"}));
}

TEST(OnvifMetadataConfiguration, isEqualWhateverItsModules)
{
    EXPECT_TRUE(withModules("T1", {"a"}) == withModules("T1", {"b", "c"}));
    EXPECT_FALSE(withModules("T1", {"a"}) != withModules("T1", {}));
}

TEST(OnvifMetadataConfiguration, modulesSurviveTheGrowthOfAList)
{
    QList<OnvifMetadataConfiguration> list;
    list.append(withModules("T1", {"a"}));
    list.append(withModules("T2", {"b", "c"}));
    test::growByAppending(list);
    list.reserve(list.capacity() + 100);
    EXPECT_EQ(modulesOf(list.at(0)), QStringList({"a"}));
    EXPECT_EQ(modulesOf(list.at(1)), QStringList({"b", "c"}));
}

TEST(OnvifMetadataConfiguration, modulesSurviveTheDetachingOfAList)
{
    QList<OnvifMetadataConfiguration> list;
    list.append(withModules("T1", {"a"}));
    QList<OnvifMetadataConfiguration> other = list;
    other[0].name = "changed";
    EXPECT_EQ(modulesOf(other.at(0)), QStringList({"a"}));
    EXPECT_EQ(modulesOf(list.at(0)), QStringList({"a"}));
}

TEST(OnvifMetadataConfiguration, assignedElementOfAListKeepsItsModules)
{
    QList<OnvifMetadataConfiguration> list;
    list.append(withModules("T1", {"a"}));
    list[0] = withModules("T2", {"b"});
    test::expectSample(list.at(0), "T2");
    EXPECT_EQ(modulesOf(list.at(0)), QStringList({"a"}));
}

// Which modules an element ends up with depends on how the list moves it there, by copies or by assignments; that all
// have some if all had the same does not.
TEST(OnvifMetadataConfiguration, modulesThatAllElementsShareSurviveSorting)
{
    QList<OnvifMetadataConfiguration> list;
    for (const char *token : {"c", "a", "d", "b"})
        list.append(withModules(token, {"m"}));
    std::sort(list.begin(), list.end(), [](const auto &left, const auto &right) { return left.token < right.token; });
    const QStringList tokens = {"a", "b", "c", "d"};
    ASSERT_EQ(list.size(), 4);
    for (qsizetype i = 0; i < list.size(); ++i) {
        test::expectSample(list.at(i), tokens[i]);
        EXPECT_EQ(modulesOf(list.at(i)), QStringList({"m"}));
    }
}

TEST(OnvifCompatibleMetadataConfigurationVector, keepsTheModules)
{
    const QByteArray reply = test::elementAt("/Envelope/Body/GetCompatibleMetadataConfigurationsResponse",
                                             test::element("Configurations", engine({"a", "b"}))
                                                 + test::element("Configurations", engine({"c"})));
    const OnvifCompatibleMetadataConfigurationVector list(reply);
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(modulesOf(list[0]), QStringList({"a", "b"}));
    EXPECT_EQ(modulesOf(list[1]), QStringList({"c"}));
}

} // namespace
