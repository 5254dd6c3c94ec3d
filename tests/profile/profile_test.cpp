#include "media/records.h"

#include <vorn/onvif/profiles.h>

#include <algorithm>
#include <type_traits>
#include <utility>

using namespace vorn;

static_assert(std::is_base_of_v<OnvifDataStructure, OnvifProfile>);
static_assert(std::is_base_of_v<OnvifResponseStructure, OnvifProfile>);
static_assert(std::is_polymorphic_v<OnvifProfile>);
static_assert(std::has_virtual_destructor_v<OnvifProfile>);
static_assert(std::is_default_constructible_v<OnvifProfile>);
static_assert(std::is_constructible_v<OnvifProfile, const QByteArray &, const QString &>);
static_assert(std::is_constructible_v<OnvifProfile, const QString &, const QString &, bool>);
static_assert(!std::is_constructible_v<OnvifProfile, const XmlResponseNode &>);
static_assert(std::is_same_v<decltype(&OnvifProfile::toString), QString (OnvifDataStructure::*)() const>);
static_assert(std::is_same_v<decltype(&OnvifProfile::isSaved), bool (OnvifProfile::*)() const>);
static_assert(std::is_same_v<decltype(OnvifProfile::name), QString>);
static_assert(std::is_same_v<decltype(OnvifProfile::token), QString>);
static_assert(std::is_same_v<decltype(OnvifProfile::fixed), bool>);
static_assert(std::is_same_v<decltype(OnvifProfile::videoSource), OnvifVideoSourceConfiguration>);
static_assert(std::is_same_v<decltype(OnvifProfile::audioSource), OnvifAudioSourceConfiguration>);
static_assert(std::is_same_v<decltype(OnvifProfile::videoEncoder), OnvifVideoEncoderConfiguration>);
static_assert(std::is_same_v<decltype(OnvifProfile::audioEncoder), OnvifAudioEncoderConfiguration>);
static_assert(std::is_same_v<decltype(OnvifProfile::videoAnalytics), OnvifVideoAnalyticsConfiguration>);
static_assert(std::is_same_v<decltype(OnvifProfile::ptz), OnvifPtzConfiguration>);
static_assert(std::is_same_v<decltype(OnvifProfile::metadata), OnvifMetadataConfiguration>);
static_assert(std::is_same_v<decltype(OnvifProfile::audioOutput), OnvifAudioOutputConfiguration>);
static_assert(std::is_same_v<decltype(OnvifProfile::audioDecoder), OnvifAudioDecoderConfiguration>);

namespace {

template <typename T, typename = void>
constexpr bool hasHash = false;

template <typename T>
constexpr bool hasHash<T, std::void_t<decltype(qHash(std::declval<const T &>()))>> = true;

static_assert(hasHash<QString>);
static_assert(!hasHash<OnvifProfile>);

const QString root = "/Envelope/Body/GetProfileResponse";

OnvifProfile read(const QByteArray &profile)
{
    return OnvifProfile(test::elementAt("/Envelope/Body/GetProfileResponse", profile), root);
}

OnvifProfile saved(const QString &token)
{
    return OnvifProfile("Main", token, true);
}

/// The names of the configurations that are not null.
QStringList configurationsOf(const OnvifProfile &profile)
{
    QStringList names;
    const auto add = [&names](const char *name, const OnvifDataStructure &configuration) {
        if (!configuration.isNull())
            names.append(name);
    };
    add("videoSource", profile.videoSource);
    add("audioSource", profile.audioSource);
    add("videoEncoder", profile.videoEncoder);
    add("audioEncoder", profile.audioEncoder);
    add("videoAnalytics", profile.videoAnalytics);
    add("ptz", profile.ptz);
    add("metadata", profile.metadata);
    add("audioOutput", profile.audioOutput);
    add("audioDecoder", profile.audioDecoder);
    return names;
}

/// A profile that was read from a reply, with a value of its own in each field.
void fill(OnvifProfile &profile, const QByteArray &token)
{
    profile.name = "Main";
    profile.token = token;
    profile.fixed = true;
    profile.videoSource = test::sample<OnvifVideoSourceConfiguration>("VS");
    profile.audioSource = test::sample<OnvifAudioSourceConfiguration>("AS");
    profile.videoEncoder = test::sample<OnvifVideoEncoderConfiguration>("VE");
    profile.audioEncoder = test::sample<OnvifAudioEncoderConfiguration>("AE");
    profile.videoAnalytics = test::sample<OnvifVideoAnalyticsConfiguration>("VA");
    profile.ptz = test::sample<OnvifPtzConfiguration>("PTZ");
    profile.metadata = test::sample<OnvifMetadataConfiguration>("M");
    profile.metadata.analyticsEngineConfiguration.append(test::sample<OnvifAnalyticsModule>("module"));
    profile.audioOutput = test::sample<OnvifAudioOutputConfiguration>("AO");
    profile.audioDecoder = test::sample<OnvifAudioDecoderConfiguration>("AD");
}

struct FullProfile : ::testing::Test
{
    OnvifProfile source = read("<Profile token='read'/>");

    FullProfile() { fill(source, "T1"); }
};

/// All that copies, moves and both assignments carry.
void expectCarried(const OnvifProfile &profile)
{
    EXPECT_FALSE(profile.isNull());
    EXPECT_FALSE(profile.isSaved());
    EXPECT_EQ(profile.xml, "<Envelope><Body><GetProfileResponse><Profile token='read'/></GetProfileResponse></Body>"
                           "</Envelope>");
    XmlResponse response = profile.response;
    EXPECT_EQ(response.getAttribute("token", "/Profile"), "read");
    EXPECT_EQ(profile.name, "Main");
    EXPECT_EQ(profile.token, "T1");
    EXPECT_TRUE(profile.fixed);
    test::expectSample(profile.videoSource, "VS");
    test::expectSample(profile.audioSource, "AS");
    test::expectSample(profile.videoEncoder, "VE");
    test::expectSample(profile.audioEncoder, "AE");
    test::expectSample(profile.videoAnalytics, "VA");
    test::expectSample(profile.ptz, "PTZ");
    test::expectSample(profile.metadata, "M");
    test::expectSample(profile.audioOutput, "AO");
}

QStringList modulesOf(const OnvifProfile &profile)
{
    QStringList names;
    for (const OnvifAnalyticsModule &module : profile.metadata.analyticsEngineConfiguration)
        names.append(module.name);
    return names;
}

void expectNoDecoder(const OnvifProfile &profile)
{
    EXPECT_TRUE(profile.audioDecoder.isNull());
    EXPECT_TRUE(profile.audioDecoder.token.isEmpty());
    EXPECT_TRUE(profile.audioDecoder.name.isEmpty());
}

TEST(OnvifProfile, isNullByDefault)
{
    OnvifProfile profile;
    EXPECT_TRUE(profile.isNull());
    EXPECT_FALSE(profile.isSaved());
    EXPECT_TRUE(profile.name.isEmpty());
    EXPECT_TRUE(profile.token.isEmpty());
    EXPECT_FALSE(profile.fixed);
    EXPECT_EQ(configurationsOf(profile), QStringList());
    EXPECT_TRUE(profile.xml.isEmpty());
    EXPECT_FALSE(profile.response.get("/Profile").valid);
}

TEST(OnvifProfile, hasDefaultConfigurationsByDefault)
{
    const OnvifProfile profile;
    test::expectDefaults(profile.videoSource);
    test::expectDefaults(profile.audioSource);
    test::expectDefaults(profile.videoEncoder);
    test::expectDefaults(profile.audioEncoder);
    test::expectDefaults(profile.videoAnalytics);
    test::expectDefaults(profile.ptz);
    test::expectDefaults(profile.metadata);
    test::expectDefaults(profile.audioOutput);
    test::expectDefaults(profile.audioDecoder);
}

TEST(OnvifProfile, isSavedIfMadeFromItsValues)
{
    OnvifProfile profile("Main", "T1", false);
    EXPECT_FALSE(profile.isNull());
    EXPECT_TRUE(profile.isSaved());
    EXPECT_EQ(profile.name, "Main");
    EXPECT_EQ(profile.token, "T1");
    EXPECT_FALSE(profile.fixed);
    EXPECT_TRUE(OnvifProfile("Main", "T1", true).fixed);
    EXPECT_EQ(configurationsOf(profile), QStringList());
    EXPECT_TRUE(profile.xml.isEmpty());
    EXPECT_FALSE(profile.response.get("/Envelope").valid);
    EXPECT_FALSE(profile.response.get("/Profile").valid);
    EXPECT_TRUE(profile.response.getAll("/Profile").isEmpty());
    EXPECT_TRUE(profile.response.getText("/Profile/Name").isEmpty());
}

TEST(OnvifProfile, isSavedWithoutValues)
{
    EXPECT_TRUE(OnvifProfile(QString(), QString(), false).isSaved());
    EXPECT_FALSE(OnvifProfile(QString(), QString(), false).isNull());
}

TEST(OnvifProfile, readsNameTokenAndFixed)
{
    OnvifProfile profile = read("<tt:Profile token='T1' fixed='true'><tt:Name> Main </tt:Name></tt:Profile>");
    EXPECT_FALSE(profile.isNull());
    EXPECT_FALSE(profile.isSaved());
    EXPECT_EQ(profile.name, " Main ");
    EXPECT_EQ(profile.token, "T1");
    EXPECT_TRUE(profile.fixed);
    EXPECT_EQ(profile.response.getText("/Profile/Name"), " Main ");
    EXPECT_TRUE(profile.xml.contains("<tt:Name> Main </tt:Name>"));
}

TEST(OnvifProfile, readsFixedOfTheWordTrueAlone)
{
    for (const char *value : {"1", "True", "TRUE", " true", "true ", "false", "0", ""})
        EXPECT_FALSE(read(QByteArray("<Profile fixed='") + value + "'/>").fixed) << value;
    EXPECT_FALSE(read("<Profile/>").fixed);
    EXPECT_FALSE(read("<Profile Fixed='true'><fixed>true</fixed></Profile>").fixed);
    EXPECT_TRUE(read("<Profile fixed='true'/>").fixed);
}

TEST(OnvifProfile, readsNoConfiguration)
{
    const OnvifProfile profile = read(
        "<Profile token='T1'>" + test::sampleElement<OnvifVideoSourceConfiguration>("VideoSourceConfiguration", "a")
        + test::sampleElement<OnvifAudioSourceConfiguration>("AudioSourceConfiguration", "a")
        + test::sampleElement<OnvifVideoEncoderConfiguration>("VideoEncoderConfiguration", "a")
        + test::sampleElement<OnvifAudioEncoderConfiguration>("AudioEncoderConfiguration", "a")
        + test::sampleElement<OnvifVideoAnalyticsConfiguration>("VideoAnalyticsConfiguration", "a")
        + test::sampleElement<OnvifPtzConfiguration>("PTZConfiguration", "a")
        + test::sampleElement<OnvifMetadataConfiguration>("MetadataConfiguration", "a") + "<Extension>"
        + test::sampleElement<OnvifAudioOutputConfiguration>("AudioOutputConfiguration", "a")
        + test::sampleElement<OnvifAudioDecoderConfiguration>("AudioDecoderConfiguration", "a")
        + "</Extension></Profile>");
    EXPECT_EQ(profile.token, "T1");
    EXPECT_EQ(configurationsOf(profile), QStringList());
    EXPECT_TRUE(profile.name.isEmpty());
}

// The way to the configurations that the record does not read.
TEST(OnvifProfile, responseHoldsTheConfigurations)
{
    OnvifProfile profile = read("<Profile token='T1'>"
                                + test::sampleElement<OnvifPtzConfiguration>("PTZConfiguration", "a") + "</Profile>");
    profile.ptz = OnvifPtzConfiguration(profile.response.get("/Profile/PTZConfiguration"));
    test::expectSample(profile.ptz, "a");
}

TEST(OnvifProfile, readsDirectChildrenOfItsElementOnly)
{
    const OnvifProfile profile = read("<Any token='x'><Profile token='y'/></Any><Name>a</Name><token>b</token>"
                                      "<Profile><token>c</token><Extension><Name>d</Name></Extension></Profile>");
    EXPECT_TRUE(profile.token.isEmpty());
    EXPECT_TRUE(profile.name.isEmpty());
}

TEST(OnvifProfile, isReadBelowTheRootOfTheCaller)
{
    const QByteArray reply = "<Envelope><Body><CreateProfileResponse><Profile token='T1'><Name>n</Name></Profile>"
                             "</CreateProfileResponse></Body></Envelope>";
    EXPECT_EQ(OnvifProfile(reply, "/Envelope/Body/CreateProfileResponse").token, "T1");
    EXPECT_TRUE(OnvifProfile(reply, root).token.isEmpty());
}

TEST(OnvifProfile, isNotNullWhateverTheReplyHolds)
{
    const QByteArray fault = test::elementAt("/Envelope/Body/Fault/Code/Value", "s:Sender");
    for (const QByteArray &bytes : {QByteArray(), QByteArray("no xml"), QByteArray("<Envelope>"), fault,
                                    test::elementAt("/Envelope/Body/GetProfileResponse", "")}) {
        const OnvifProfile profile(bytes, root);
        EXPECT_FALSE(profile.isNull());
        EXPECT_FALSE(profile.isSaved());
        EXPECT_TRUE(profile.name.isEmpty());
        EXPECT_TRUE(profile.token.isEmpty());
        EXPECT_FALSE(profile.fixed);
        EXPECT_EQ(profile.xml, QString::fromUtf8(bytes));
    }
}

TEST(OnvifProfile, hasNoText)
{
    EXPECT_TRUE(OnvifProfile().toString().isNull());
    EXPECT_TRUE(saved("T1").toString().isNull());
    EXPECT_TRUE(read("<Profile token='T1'/>").toString().isNull());
}

TEST(OnvifProfile, fieldsStandBehindBothBases)
{
    const OnvifProfile profile;
    const OnvifDataStructure &data = profile;
    const OnvifResponseStructure &response = profile;
    EXPECT_LT(static_cast<const void *>(&data), static_cast<const void *>(&response));
    EXPECT_LT(static_cast<const void *>(&response), static_cast<const void *>(&profile.name));
}

TEST(OnvifProfile, isEqualByItsTokenAlone)
{
    OnvifProfile other("Other", "T1", false);
    other.ptz = test::sample<OnvifPtzConfiguration>();
    EXPECT_TRUE(saved("T1") == other);
    EXPECT_FALSE(saved("T1") != other);
    EXPECT_TRUE(saved("T1") == read("<Profile token='T1'><Name>n</Name></Profile>"));
}

TEST(OnvifProfile, differsByItsToken)
{
    for (const char *token : {"T2", "t1", "T1 ", "T11", ""}) {
        EXPECT_FALSE(saved("T1") == saved(token)) << token;
        EXPECT_TRUE(saved("T1") != saved(token)) << token;
    }
}

TEST(OnvifProfile, withoutTokenIsEqualToADefaultOne)
{
    EXPECT_TRUE(OnvifProfile() == OnvifProfile());
    EXPECT_TRUE(OnvifProfile() == OnvifProfile("no xml", root));
    EXPECT_FALSE(OnvifProfile() != OnvifProfile("Main", QString(), true));
}

TEST_F(FullProfile, isCopiedWithoutItsDecoder)
{
    const OnvifProfile copy(source);
    expectCarried(copy);
    EXPECT_EQ(modulesOf(copy), QStringList("module"));
    expectNoDecoder(copy);
    test::expectSample(source.audioDecoder, "AD");
}

TEST_F(FullProfile, isMovedWithoutItsDecoder)
{
    const OnvifProfile moved(std::move(source));
    expectCarried(moved);
    EXPECT_EQ(modulesOf(moved), QStringList("module"));
    expectNoDecoder(moved);
}

// The configurations have no move operations: a move copies them.
TEST_F(FullProfile, keepsItsConfigurationsWhenItIsMovedFrom)
{
    const OnvifProfile moved(std::move(source));
    expectCarried(moved);
    test::expectSample(source.audioDecoder, "AD"); // NOLINT(bugprone-use-after-move)
    test::expectSample(source.videoSource, "VS");
    test::expectSample(source.metadata, "M");
    EXPECT_EQ(modulesOf(source), QStringList("module"));
}

TEST_F(FullProfile, isAssignedWithoutItsModules)
{
    OnvifProfile target;
    target.metadata.analyticsEngineConfiguration.append(test::sample<OnvifAnalyticsModule>("own"));
    OnvifProfile &result = target = source;
    EXPECT_EQ(&result, &target);
    expectCarried(target);
    EXPECT_EQ(modulesOf(target), QStringList("own"));
    test::expectSample(target.audioDecoder, "AD");
    expectCarried(source);
    EXPECT_EQ(modulesOf(source), QStringList("module"));
}

TEST_F(FullProfile, isMoveAssignedWithoutItsModules)
{
    OnvifProfile target;
    target.metadata.analyticsEngineConfiguration.append(test::sample<OnvifAnalyticsModule>("own"));
    target = std::move(source);
    expectCarried(target);
    EXPECT_EQ(modulesOf(target), QStringList("own"));
    test::expectSample(target.audioDecoder, "AD");
}

TEST_F(FullProfile, becomesNullByAssignment)
{
    source = OnvifProfile();
    EXPECT_TRUE(source.isNull());
    EXPECT_TRUE(source.name.isEmpty());
    EXPECT_TRUE(source.token.isEmpty());
    EXPECT_FALSE(source.fixed);
    EXPECT_TRUE(source.xml.isEmpty());
    EXPECT_FALSE(source.response.get("/Profile").valid);
    EXPECT_EQ(configurationsOf(source), QStringList());
    EXPECT_EQ(modulesOf(source), QStringList("module"));
}

TEST_F(FullProfile, survivesSelfAssignment)
{
    const OnvifProfile &same = source;
    source = same;
    expectCarried(source);
    EXPECT_EQ(modulesOf(source), QStringList("module"));
    test::expectSample(source.audioDecoder, "AD");
}

TEST(OnvifProfile, textsAreMovedByConstruction)
{
    OnvifProfile source;
    source.name = QString(20, u'n');
    source.token = QString(20, u't');
    const OnvifProfile moved(std::move(source));
    EXPECT_EQ(moved.name, "nnnnnnnnnnnnnnnnnnnn");
    EXPECT_EQ(moved.token, "tttttttttttttttttttt");
    EXPECT_TRUE(moved.name.isDetached()); // a copied text would be shared
    EXPECT_TRUE(moved.token.isDetached());
}

TEST(OnvifProfile, textsAreMovedByAssignment)
{
    OnvifProfile source;
    source.name = QString(20, u'n');
    source.token = QString(20, u't');
    OnvifProfile target;
    target = std::move(source);
    EXPECT_EQ(target.name, "nnnnnnnnnnnnnnnnnnnn");
    EXPECT_EQ(target.token, "tttttttttttttttttttt");
    EXPECT_TRUE(target.name.isDetached());
    EXPECT_TRUE(target.token.isDetached());
}

TEST(OnvifProfile, savedFollowsCopiesAndMoves)
{
    OnvifProfile source = saved("T1");
    const OnvifProfile copy(source); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_TRUE(copy.isSaved());
    EXPECT_TRUE(copy.fixed);
    EXPECT_FALSE(copy.isNull());
    const OnvifProfile moved(std::move(source));
    EXPECT_TRUE(moved.isSaved());
    EXPECT_TRUE(moved.fixed);
    EXPECT_FALSE(moved.isNull());
}

TEST(OnvifProfile, savedFollowsAssignmentInBothDirections)
{
    const OnvifProfile savedOne = saved("T1");
    const OnvifProfile readOne = read("<Profile token='T2'/>");
    OnvifProfile target;
    target = savedOne;
    EXPECT_TRUE(target.isSaved());
    target = readOne;
    EXPECT_FALSE(target.isSaved());
    target = OnvifProfile(savedOne);
    EXPECT_TRUE(target.isSaved());
    target = OnvifProfile();
    EXPECT_FALSE(target.isSaved());
}

/// A list of full profiles, which have lost their decoders on their way into it.
QList<OnvifProfile> listOf(const QByteArrayList &tokens)
{
    QList<OnvifProfile> list;
    for (const QByteArray &token : tokens) {
        OnvifProfile profile = saved(token);
        fill(profile, token);
        list.append(profile);
    }
    return list;
}

void expectList(const QList<OnvifProfile> &list, const QStringList &tokens)
{
    ASSERT_EQ(list.size(), tokens.size());
    for (qsizetype i = 0; i < list.size(); ++i) {
        EXPECT_EQ(list[i].token, tokens[i]);
        EXPECT_EQ(list[i].name, "Main");
        EXPECT_TRUE(list[i].fixed);
        EXPECT_TRUE(list[i].isSaved());
        EXPECT_FALSE(list[i].isNull());
        test::expectSample(list[i].videoSource, "VS");
        test::expectSample(list[i].audioSource, "AS");
        test::expectSample(list[i].videoEncoder, "VE");
        test::expectSample(list[i].audioEncoder, "AE");
        test::expectSample(list[i].videoAnalytics, "VA");
        test::expectSample(list[i].ptz, "PTZ");
        test::expectSample(list[i].metadata, "M");
        test::expectSample(list[i].audioOutput, "AO");
        expectNoDecoder(list[i]);
    }
}

TEST(OnvifProfile, losesItsDecoderInAList)
{
    expectList(listOf({"a", "b"}), {"a", "b"});
    QList<OnvifProfile> list;
    OnvifProfile profile;
    fill(profile, "a");
    list.append(std::move(profile));
    expectNoDecoder(list.at(0));
    EXPECT_EQ(modulesOf(list.at(0)), QStringList("module"));
}

TEST(OnvifProfile, losesAnAssignedDecoderWhenTheListGrows)
{
    QList<OnvifProfile> list = listOf({"a", "b", "c"});
    list[1].audioDecoder = test::sample<OnvifAudioDecoderConfiguration>("AD");
    test::expectSample(list.at(1).audioDecoder, "AD");
    test::growByAppending(list);
    expectList(list, {"a", "b", "c"});
    list[2].audioDecoder = test::sample<OnvifAudioDecoderConfiguration>("AD");
    list.reserve(list.capacity() + 100);
    expectList(list, {"a", "b", "c"});
    EXPECT_EQ(modulesOf(list.at(1)), QStringList("module"));
}

TEST(OnvifProfile, losesAnAssignedDecoderWhenTheListDetaches)
{
    QList<OnvifProfile> list = listOf({"a", "b"});
    list[1].audioDecoder = test::sample<OnvifAudioDecoderConfiguration>("AD");
    QList<OnvifProfile> other = list;
    other.detach();
    expectList(other, {"a", "b"});
    EXPECT_EQ(modulesOf(other.at(1)), QStringList("module"));
    test::expectSample(list.at(1).audioDecoder, "AD");
}

TEST(OnvifProfile, survivesInsertingErasingAndSorting)
{
    QList<OnvifProfile> list = listOf({"c", "a", "d"});
    list.insert(1, listOf({"b"}).first());
    expectList(list, {"c", "b", "a", "d"});
    list.removeAt(2);
    expectList(list, {"c", "b", "d"});
    std::sort(list.begin(), list.end(), [](const auto &left, const auto &right) { return left.token < right.token; });
    expectList(list, {"b", "c", "d"});
    list.removeFirst();
    expectList(list, {"c", "d"});
}

TEST(OnvifProfile, isFoundInAListByItsToken)
{
    const QList<OnvifProfile> list = listOf({"a", "b"});
    EXPECT_EQ(list.indexOf(OnvifProfile("Other", "b", false)), 1);
    EXPECT_FALSE(list.contains(OnvifProfile()));
}

} // namespace
