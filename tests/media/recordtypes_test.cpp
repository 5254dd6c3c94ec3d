#include "records.h"

#include <algorithm>
#include <type_traits>
#include <utility>

using namespace vorn;

namespace {

// What the records are, as types. The functions only gather assertions of the compiler.

template <typename Record>
constexpr bool isDataRecord()
{
    static_assert(std::is_base_of_v<OnvifDataStructure, Record>);
    static_assert(!std::is_base_of_v<OnvifResponseStructure, Record>);
    static_assert(std::is_polymorphic_v<Record>);
    static_assert(std::has_virtual_destructor_v<Record>);
    static_assert(std::is_default_constructible_v<Record>);
    static_assert(std::is_constructible_v<Record, const XmlResponseNode &>);
    static_assert(std::is_copy_constructible_v<Record>);
    static_assert(std::is_copy_assignable_v<Record>);
    // toString() is the base's.
    static_assert(std::is_same_v<decltype(&Record::toString), QString (OnvifDataStructure::*)() const>);
    static_assert(std::is_same_v<decltype(Record::name), QString>);
    static_assert(std::is_same_v<decltype(std::declval<const Record &>() == std::declval<const Record &>()), bool>);
    return true;
}

template <typename Record, typename = void>
constexpr bool hasNotEqual = false;

template <typename Record>
constexpr bool
    hasNotEqual<Record, std::void_t<decltype(std::declval<const Record &>() != std::declval<const Record &>())>> = true;

template <typename Record>
constexpr bool isConfiguration()
{
    static_assert(isDataRecord<Record>());
    static_assert(hasNotEqual<Record>);
    static_assert(std::is_same_v<decltype(Record::token), QString>);
    return true;
}

template <typename Record>
constexpr bool isAnalyticsRecord()
{
    static_assert(isDataRecord<Record>());
    static_assert(!hasNotEqual<Record>);
    static_assert(std::is_same_v<decltype(Record::type), QString>);
    return true;
}

static_assert(isAnalyticsRecord<OnvifAnalyticsModule>());
static_assert(isAnalyticsRecord<OnvifRule>());
static_assert(!std::is_base_of_v<OnvifAnalyticsModule, OnvifRule>);
static_assert(!std::is_base_of_v<OnvifRule, OnvifAnalyticsModule>);

static_assert(isConfiguration<OnvifVideoSourceConfiguration>());
static_assert(std::is_same_v<decltype(OnvifVideoSourceConfiguration::useCount), qint32>);
static_assert(std::is_same_v<decltype(OnvifVideoSourceConfiguration::sourceToken), QString>);
static_assert(std::is_same_v<decltype(OnvifVideoSourceConfiguration::bounds), QRect>);

static_assert(isConfiguration<OnvifVideoEncoderConfiguration>());
static_assert(std::is_same_v<decltype(OnvifVideoEncoderConfiguration::encoding), QString>);
static_assert(std::is_same_v<decltype(OnvifVideoEncoderConfiguration::useCount), qint32>);
static_assert(std::is_same_v<decltype(OnvifVideoEncoderConfiguration::resolution), QSize>);
static_assert(std::is_same_v<decltype(OnvifVideoEncoderConfiguration::quality), double>);
static_assert(std::is_same_v<decltype(OnvifVideoEncoderConfiguration::frameRateLimit), qint32>);
static_assert(std::is_same_v<decltype(OnvifVideoEncoderConfiguration::encodingInterval), qint32>);
static_assert(std::is_same_v<decltype(OnvifVideoEncoderConfiguration::bitrateLimit), qint32>);
static_assert(std::is_same_v<decltype(OnvifVideoEncoderConfiguration::sessionTimeout), QString>);

static_assert(isConfiguration<OnvifAudioSourceConfiguration>());
static_assert(std::is_same_v<decltype(OnvifAudioSourceConfiguration::useCount), qint32>);
static_assert(std::is_same_v<decltype(OnvifAudioSourceConfiguration::sourceToken), QString>);

static_assert(isConfiguration<OnvifAudioOutputConfiguration>());
static_assert(std::is_same_v<decltype(OnvifAudioOutputConfiguration::useCount), quint32>);
static_assert(std::is_same_v<decltype(OnvifAudioOutputConfiguration::outputToken), QString>);
static_assert(std::is_same_v<decltype(OnvifAudioOutputConfiguration::outputLevel), quint32>);
static_assert(std::is_same_v<decltype(OnvifAudioOutputConfiguration::sendPrimacy), QString>);

static_assert(isConfiguration<OnvifAudioEncoderConfiguration>());
static_assert(std::is_same_v<decltype(OnvifAudioEncoderConfiguration::encoding), QString>);
static_assert(std::is_same_v<decltype(OnvifAudioEncoderConfiguration::useCount), qint32>);
static_assert(std::is_same_v<decltype(OnvifAudioEncoderConfiguration::bitrate), qint32>);
static_assert(std::is_same_v<decltype(OnvifAudioEncoderConfiguration::sampleRate), qint32>);
static_assert(std::is_same_v<decltype(OnvifAudioEncoderConfiguration::sessionTimeout), QString>);

static_assert(isConfiguration<OnvifAudioDecoderConfiguration>());
static_assert(std::is_integral_v<decltype(OnvifAudioDecoderConfiguration::useCount)>);
static_assert(sizeof(OnvifAudioDecoderConfiguration::useCount) == 4);

static_assert(isConfiguration<OnvifMetadataConfiguration>());
static_assert(std::is_same_v<decltype(OnvifMetadataConfiguration::useCount), quint32>);
static_assert(std::is_same_v<decltype(OnvifMetadataConfiguration::analytics), bool>);
static_assert(std::is_same_v<decltype(OnvifMetadataConfiguration::sessionTimeout), quint32>);
static_assert(std::is_same_v<decltype(OnvifMetadataConfiguration::ptzStatus), bool>);
static_assert(std::is_same_v<decltype(OnvifMetadataConfiguration::ptzPosition), bool>);
static_assert(std::is_same_v<decltype(OnvifMetadataConfiguration::eventsFilter), QString>);
static_assert(std::is_same_v<decltype(OnvifMetadataConfiguration::eventsSubscriptionPolicy), QString>);
static_assert(std::is_same_v<decltype(OnvifMetadataConfiguration::analyticsEngineConfiguration),
                             OnvifAnalyticsEngineConfigurationVector>);

static_assert(isConfiguration<OnvifPtzConfiguration>());
static_assert(std::is_same_v<decltype(OnvifPtzConfiguration::defaultPtzTimeout), QString>);
static_assert(std::is_same_v<decltype(OnvifPtzConfiguration::useCount), qint32>);
static_assert(std::is_same_v<decltype(OnvifPtzConfiguration::nodeToken), QString>);
static_assert(std::is_same_v<decltype(OnvifPtzConfiguration::panTiltXRange), OnvifPtzRange>);
static_assert(std::is_same_v<decltype(OnvifPtzConfiguration::panTiltYRange), OnvifPtzRange>);
static_assert(std::is_same_v<decltype(OnvifPtzConfiguration::zoomXRange), OnvifPtzRange>);
static_assert(std::is_same_v<decltype(OnvifPtzRange::min), double>);
static_assert(std::is_same_v<decltype(OnvifPtzRange::max), double>);
static_assert(sizeof(OnvifPtzRange) == 2 * sizeof(double));
static_assert(!std::is_polymorphic_v<OnvifPtzRange>);

static_assert(isConfiguration<OnvifVideoAnalyticsConfiguration>());
static_assert(std::is_same_v<decltype(OnvifVideoAnalyticsConfiguration::useCount), quint32>);
static_assert(std::is_same_v<decltype(OnvifVideoAnalyticsConfiguration::analyticsEngineConfiguration),
                             OnvifAnalyticsEngineConfigurationVector>);
static_assert(std::is_same_v<decltype(OnvifVideoAnalyticsConfiguration::ruleEngineConfiguration),
                             OnvifRuleEngineConfigurationVector>);

/// A record that was changed in nothing but its identity.
template <typename Record>
Record withIdentity(const QString &identity)
{
    Record record;
    test::Sample<Record>::identity(record) = identity;
    return record;
}

template <typename Record>
struct EachRecord : ::testing::Test
{
};

TYPED_TEST_SUITE(EachRecord, test::Records, test::SampleTitles);

TYPED_TEST(EachRecord, isNullByDefault)
{
    const TypeParam record;
    EXPECT_TRUE(record.isNull());
    test::expectDefaults(record);
}

TYPED_TEST(EachRecord, isNullForAMissingNode)
{
    const TypeParam record{XmlResponseNode()};
    EXPECT_TRUE(record.isNull());
    test::expectDefaults(record);
}

TYPED_TEST(EachRecord, isNotNullForAnEmptyElement)
{
    const TypeParam record(test::nodeOf("<Element/>"));
    EXPECT_FALSE(record.isNull());
    test::expectDefaults(record);
}

TYPED_TEST(EachRecord, readsEachField)
{
    const TypeParam record = test::sample<TypeParam>();
    test::expectSample(record);
}

TYPED_TEST(EachRecord, ignoresOtherElements)
{
    const TypeParam record =
        test::recordFrom<TypeParam>("text<tt:Extension><tt:Name>x</tt:Name><tt:UseCount>1</tt:UseCount></tt:Extension>"
                                    "<!-- comment --><token>x</token><Type>x</Type>");
    EXPECT_FALSE(record.isNull());
    test::expectDefaults(record);
}

TYPED_TEST(EachRecord, readsANodeThatTheCallerAskedFor)
{
    XmlResponse response("<Reply><Other/><Item><Inner>" + test::sampleElement<TypeParam>("Any", "T1")
                             + test::sampleElement<TypeParam>("Any", "T2") + "</Inner></Item></Reply>",
                         "/Reply");
    const TypeParam byPath(response.get("/Item/Inner/Any"));
    test::expectSample(byPath);
    const TypeParam byNode(response.get(response.get("/Item"), "/Item/Inner/Any"));
    test::expectSample(byNode);
    const QList<XmlResponseNode> nodes = response.getAll("/Item/Inner/Any");
    ASSERT_EQ(nodes.size(), 2);
    const TypeParam second(nodes[1]);
    test::expectSample(second, "T2");
    const TypeParam missing(response.get("/Item/Any"));
    EXPECT_TRUE(missing.isNull());
    test::expectDefaults(missing);
}

TYPED_TEST(EachRecord, nullFlagIsThatOfTheElement)
{
    XmlResponseNode node = test::nodeOf("<Element/>");
    node.valid = false;
    EXPECT_FALSE(TypeParam(node).isNull());
    node.valid = true;
    node.element = QDomElement();
    EXPECT_TRUE(TypeParam(node).isNull());
}

TYPED_TEST(EachRecord, hasNoText)
{
    EXPECT_TRUE(TypeParam().toString().isNull());
    const TypeParam record = test::sample<TypeParam>();
    EXPECT_TRUE(record.toString().isNull());
    const OnvifDataStructure &base = record;
    EXPECT_TRUE(base.toString().isNull());
}

TYPED_TEST(EachRecord, isAssigned)
{
    const TypeParam source = test::sample<TypeParam>();
    TypeParam target = test::recordFrom<TypeParam>("");
    TypeParam &result = target = source;
    EXPECT_EQ(&result, &target);
    test::expectSample(target);
    test::expectSample(source);
}

TYPED_TEST(EachRecord, assignmentCarriesTheNullFlag)
{
    TypeParam record = test::sample<TypeParam>();
    record = TypeParam();
    EXPECT_TRUE(record.isNull());
    test::expectDefaults(record);
    record = test::recordFrom<TypeParam>("");
    EXPECT_FALSE(record.isNull());
}

TYPED_TEST(EachRecord, survivesSelfAssignment)
{
    TypeParam record = test::sample<TypeParam>();
    const TypeParam &same = record;
    record = same;
    test::expectSample(record);
}

TYPED_TEST(EachRecord, isEqualToItself)
{
    const TypeParam record = test::sample<TypeParam>();
    EXPECT_TRUE(record == record);
    EXPECT_TRUE(TypeParam() == TypeParam());
}

template <typename Record>
struct CopiedRecord : ::testing::Test
{
};

TYPED_TEST_SUITE(CopiedRecord, test::CopiedRecords, test::SampleTitles);

TYPED_TEST(CopiedRecord, isCopied)
{
    const TypeParam source = test::sample<TypeParam>();
    const TypeParam copy(source); // NOLINT(performance-unnecessary-copy-initialization)
    test::expectSample(copy);
    test::expectSample(source);
}

TYPED_TEST(CopiedRecord, copiesTheNullFlag)
{
    const TypeParam null = withIdentity<TypeParam>("T1");
    const TypeParam copy(null); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_TRUE(copy.isNull());
    EXPECT_TRUE(copy == null);
}

TYPED_TEST(CopiedRecord, copiesAreIndependent)
{
    const TypeParam source = test::sample<TypeParam>();
    TypeParam copy(source);
    test::Sample<TypeParam>::identity(copy) = "T2";
    test::expectSample(copy, "T2");
    test::expectSample(source);
}

template <typename Record>
QList<Record> listOf(const QByteArrayList &identities)
{
    QList<Record> list;
    for (const QByteArray &identity : identities)
        list.append(test::sample<Record>(identity));
    return list;
}

template <typename Record>
void expectList(const QList<Record> &list, const QStringList &identities)
{
    ASSERT_EQ(list.size(), identities.size());
    for (qsizetype i = 0; i < list.size(); ++i)
        test::expectSample(list[i], identities[i]);
}

TYPED_TEST(CopiedRecord, survivesTheGrowthOfAList)
{
    QList<TypeParam> list = listOf<TypeParam>({"a", "b", "c"});
    test::growByAppending(list);
    expectList(list, {"a", "b", "c"});
    list.reserve(list.capacity() + 100);
    expectList(list, {"a", "b", "c"});
}

TYPED_TEST(CopiedRecord, survivesTheDetachingOfAList)
{
    const QList<TypeParam> source = listOf<TypeParam>({"a", "b"});
    QList<TypeParam> copy = source;
    test::Sample<TypeParam>::identity(copy[0]) = "z";
    expectList(copy, {"z", "b"});
    expectList(source, {"a", "b"});
}

TYPED_TEST(CopiedRecord, survivesInsertingIntoAList)
{
    QList<TypeParam> list = listOf<TypeParam>({"a", "b", "c"});
    list.insert(1, test::sample<TypeParam>("x"));
    list.prepend(test::sample<TypeParam>("y"));
    expectList(list, {"y", "a", "x", "b", "c"});
}

TYPED_TEST(CopiedRecord, survivesErasingFromAList)
{
    QList<TypeParam> list = listOf<TypeParam>({"a", "b", "c", "d"});
    list.removeAt(1);
    expectList(list, {"a", "c", "d"});
    list.removeFirst();
    expectList(list, {"c", "d"});
}

TYPED_TEST(CopiedRecord, survivesTheSortingOfAList)
{
    QList<TypeParam> list = listOf<TypeParam>({"c", "e", "a", "d", "b"});
    std::sort(list.begin(), list.end(), [](TypeParam &left, TypeParam &right) {
        return test::Sample<TypeParam>::identity(left) < test::Sample<TypeParam>::identity(right);
    });
    expectList(list, {"a", "b", "c", "d", "e"});
}

template <typename Record>
struct EachConfiguration : ::testing::Test
{
};

TYPED_TEST_SUITE(EachConfiguration, test::Configurations, test::SampleTitles);

TYPED_TEST(EachConfiguration, isEqualByItsTokenAlone)
{
    const TypeParam full = test::sample<TypeParam>("T1");
    const TypeParam bare = withIdentity<TypeParam>("T1");
    ASSERT_NE(full.isNull(), bare.isNull());
    EXPECT_TRUE(full == bare);
    EXPECT_FALSE(full != bare);
}

TYPED_TEST(EachConfiguration, differsByItsToken)
{
    const TypeParam record = test::sample<TypeParam>("T1");
    for (const char *token : {"T2", "t1", "T1 ", "T11", "T", ""}) {
        const TypeParam other = test::sample<TypeParam>(token);
        EXPECT_FALSE(record == other) << token;
        EXPECT_TRUE(record != other) << token;
    }
}

TYPED_TEST(EachConfiguration, withoutTokenIsEqualToANullOne)
{
    const TypeParam record = test::recordFrom<TypeParam>("<Name>n</Name>");
    ASSERT_FALSE(record.isNull());
    EXPECT_TRUE(record == TypeParam());
    EXPECT_FALSE(record != TypeParam());
}

TYPED_TEST(EachConfiguration, readsItsTokenAsItIsWritten)
{
    EXPECT_EQ(TypeParam(test::nodeOf("<Element token=' T &amp; 1 '/>")).token, " T & 1 ");
    EXPECT_TRUE(TypeParam(test::nodeOf("<Element Token='x' TOKEN='y'/>")).token.isEmpty());
    EXPECT_TRUE(TypeParam(test::nodeOf("<Element><token>x</token><Any token='y'/></Element>")).token.isEmpty());
}

TYPED_TEST(EachConfiguration, readsItsNameVerbatim)
{
    EXPECT_EQ(test::recordFrom<TypeParam>("<Name>  a\n b </Name>").name, "  a\n b ");
    EXPECT_EQ(test::recordFrom<TypeParam>("<Name>a<b>c</b><![CDATA[<d>]]></Name>").name, "ac<d>");
}

TYPED_TEST(EachConfiguration, readsTheLastOfSeveralNames)
{
    EXPECT_EQ(test::recordFrom<TypeParam>("<Name>a</Name><Name>b</Name>").name, "b");
    EXPECT_TRUE(test::recordFrom<TypeParam>("<Name>a</Name><Name/>").name.isEmpty());
}

TYPED_TEST(EachConfiguration, comparesNamesCaseSensitively)
{
    QByteArray children = test::Sample<TypeParam>::children;
    test::expectDefaults(test::recordFrom<TypeParam>(children.toLower()));
    test::expectDefaults(test::recordFrom<TypeParam>(children.toUpper()));
}

// The configurations have no move operations of their own: what is moved from is left as it was.

TYPED_TEST(EachConfiguration, isLeftAsItWasByAMove)
{
    TypeParam source = test::sample<TypeParam>();
    const TypeParam moved(std::move(source));
    test::expectSample(source); // NOLINT(bugprone-use-after-move)
    EXPECT_EQ(moved.isNull(), (std::is_same_v<TypeParam, OnvifAudioDecoderConfiguration>));
}

TYPED_TEST(EachConfiguration, isLeftAsItWasByAMoveAssignment)
{
    TypeParam source = test::sample<TypeParam>();
    TypeParam target;
    target = std::move(source);
    test::expectSample(source); // NOLINT(bugprone-use-after-move)
    test::expectSample(target);
}

} // namespace
