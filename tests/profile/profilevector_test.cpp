#include "media/records.h"

#include <vorn/onvif/profiles.h>

#include <cmath>
#include <type_traits>
#include <utility>

using namespace vorn;

static_assert(std::is_base_of_v<QList<OnvifProfile>, OnvifProfileVector>);
static_assert(std::is_base_of_v<OnvifResponseStructure, OnvifProfileVector>);
static_assert(!std::is_base_of_v<OnvifDataStructure, OnvifProfileVector>);
static_assert(sizeof(OnvifProfileVector) == sizeof(QList<OnvifProfile>) + sizeof(OnvifResponseStructure));
static_assert(std::is_default_constructible_v<OnvifProfileVector>);
static_assert(std::is_constructible_v<OnvifProfileVector, const QByteArray &, const QString &>);
static_assert(std::is_copy_constructible_v<OnvifProfileVector>);
static_assert(std::is_copy_assignable_v<OnvifProfileVector>);
static_assert(std::is_nothrow_move_constructible_v<OnvifProfileVector>);
static_assert(std::is_nothrow_move_assignable_v<OnvifProfileVector>);

namespace {

const QString root = "/Envelope/Body/GetProfilesResponse";

QByteArray replyWith(const QByteArray &profiles)
{
    return test::elementAt("/Envelope/Body/GetProfilesResponse", profiles);
}

OnvifProfileVector read(const QByteArray &profiles)
{
    return OnvifProfileVector(replyWith(profiles), root);
}

/// The one profile of a reply, with \a content.
OnvifProfileVector readOne(const QByteArray &content)
{
    return read("<trt:Profiles token='P' fixed='true'><tt:Name>Main</tt:Name>" + content + "</trt:Profiles>");
}

/// The nine configurations of a profile. Their tokens start with \a prefix.
QByteArray configurations(const QByteArray &prefix)
{
    return test::sampleElement<OnvifVideoSourceConfiguration>("VideoSourceConfiguration", prefix + "VS")
           + test::sampleElement<OnvifAudioSourceConfiguration>("AudioSourceConfiguration", prefix + "AS")
           + test::sampleElement<OnvifVideoEncoderConfiguration>("VideoEncoderConfiguration", prefix + "VE")
           + test::sampleElement<OnvifAudioEncoderConfiguration>("AudioEncoderConfiguration", prefix + "AE")
           + test::sampleElement<OnvifVideoAnalyticsConfiguration>("VideoAnalyticsConfiguration", prefix + "VA")
           + test::sampleElement<OnvifPtzConfiguration>("PTZConfiguration", prefix + "PTZ")
           + test::sampleElement<OnvifMetadataConfiguration>("MetadataConfiguration", prefix + "M") + "<tt:Extension>"
           + test::sampleElement<OnvifAudioOutputConfiguration>("AudioOutputConfiguration", prefix + "AO")
           + test::sampleElement<OnvifAudioDecoderConfiguration>("AudioDecoderConfiguration", prefix + "AD")
           + "</tt:Extension>";
}

void expectNoDecoder(const OnvifProfile &profile)
{
    EXPECT_TRUE(profile.audioDecoder.isNull());
    test::expectDefaults(profile.audioDecoder);
}

/// All configurations but that of the video source.
void expectOtherConfigurations(const OnvifProfile &profile, const QString &prefix)
{
    test::expectSample(profile.audioSource, prefix + "AS");
    test::expectSample(profile.videoEncoder, prefix + "VE");
    test::expectSample(profile.audioEncoder, prefix + "AE");
    test::expectSample(profile.videoAnalytics, prefix + "VA");
    test::expectSample(profile.ptz, prefix + "PTZ");
    test::expectSample(profile.metadata, prefix + "M");
    test::expectSample(profile.audioOutput, prefix + "AO");
    expectNoDecoder(profile);
}

void expectConfigurations(const OnvifProfile &profile, const QString &prefix)
{
    test::expectSample(profile.videoSource, prefix + "VS");
    expectOtherConfigurations(profile, prefix);
}

template <typename Record>
void expectAbsent(const Record &configuration)
{
    EXPECT_TRUE(configuration.isNull());
    test::expectDefaults(configuration);
}

void expectNoConfigurations(const OnvifProfile &profile)
{
    expectAbsent(profile.videoSource);
    expectAbsent(profile.audioSource);
    expectAbsent(profile.videoEncoder);
    expectAbsent(profile.audioEncoder);
    expectAbsent(profile.videoAnalytics);
    expectAbsent(profile.ptz);
    expectAbsent(profile.metadata);
    expectAbsent(profile.audioOutput);
    expectAbsent(profile.audioDecoder);
}

TEST(OnvifProfileVector, isEmptyByDefault)
{
    OnvifProfileVector list;
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.xml.isEmpty());
    EXPECT_FALSE(list.response.get("/Profiles").valid);
}

TEST(OnvifProfileVector, holdsItsListBeforeItsResponse)
{
    const OnvifProfileVector list;
    const QList<OnvifProfile> &profiles = list;
    const OnvifResponseStructure &response = list;
    EXPECT_LT(static_cast<const void *>(&profiles), static_cast<const void *>(&response));
}

TEST(OnvifProfileVector, readsNameTokenAndFixed)
{
    const auto list = readOne("");
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].name, "Main");
    EXPECT_EQ(list[0].token, "P");
    EXPECT_TRUE(list[0].fixed);
    EXPECT_FALSE(list[0].isNull());
    EXPECT_TRUE(list[0].isSaved());
}

TEST(OnvifProfileVector, profilesHaveNoResponseOfTheirOwn)
{
    auto list = readOne("");
    ASSERT_EQ(list.size(), 1);
    EXPECT_TRUE(list[0].xml.isEmpty());
    EXPECT_FALSE(list[0].response.get("/Profiles").valid);
    EXPECT_FALSE(list[0].response.get("/Envelope").valid);
}

TEST(OnvifProfileVector, readsEachConfiguration)
{
    const auto list = readOne(configurations("x-"));
    ASSERT_EQ(list.size(), 1);
    expectConfigurations(list[0], "x-");
}

TEST(OnvifProfileVector, readsProfilesInDocumentOrderEachWithItsOwnConfigurations)
{
    const auto list = read("<Profiles token='b'><Name>B</Name>" + configurations("1-") + "</Profiles>"
                           + "<Other/><Profiles token='c'/>" + "<Profiles token='a'><Name>A</Name>"
                           + configurations("2-") + "</Profiles>");
    ASSERT_EQ(list.size(), 3);
    EXPECT_EQ(list[0].token, "b");
    EXPECT_EQ(list[0].name, "B");
    expectConfigurations(list[0], "1-");
    EXPECT_EQ(list[1].token, "c");
    expectNoConfigurations(list[1]);
    EXPECT_EQ(list[2].token, "a");
    EXPECT_EQ(list[2].name, "A");
    expectConfigurations(list[2], "2-");
}

TEST(OnvifProfileVector, configurationBelongsToTheProfileThatHoldsIt)
{
    const auto list = read(
        "<Profiles token='a'>" + test::sampleElement<OnvifVideoSourceConfiguration>("VideoSourceConfiguration", "T")
        + "</Profiles><Profiles token='b'>" + test::sampleElement<OnvifPtzConfiguration>("PTZConfiguration", "T")
        + "</Profiles>"
          "<Profiles token='c'><VideoSourceConfiguration token='T'/></Profiles>");
    ASSERT_EQ(list.size(), 3);
    test::expectSample(list[0].videoSource, "T");
    expectAbsent(list[0].ptz);
    expectAbsent(list[1].videoSource);
    test::expectSample(list[1].ptz, "T");
    EXPECT_EQ(list[2].videoSource.token, "T");
    EXPECT_TRUE(list[2].videoSource.name.isEmpty());
}

TEST(OnvifProfileVector, readsAProfileOfNothingButAToken)
{
    const auto list = read("<Profiles token='T1'/>");
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].token, "T1");
    EXPECT_TRUE(list[0].name.isEmpty());
    EXPECT_FALSE(list[0].fixed);
    EXPECT_TRUE(list[0].isSaved());
    EXPECT_FALSE(list[0].isNull());
    expectNoConfigurations(list[0]);
}

TEST(OnvifProfileVector, keepsAnEmptyProfile)
{
    const auto list = read("<Profiles/>");
    ASSERT_EQ(list.size(), 1);
    EXPECT_TRUE(list[0].token.isEmpty());
    EXPECT_TRUE(list[0].isSaved());
    EXPECT_FALSE(list[0].isNull());
}

TEST(OnvifProfileVector, readsFixedOfTheWordTrueAlone)
{
    for (const char *value : {"1", "True", "TRUE", " true", "true ", "false", ""}) {
        const auto list = read(QByteArray("<Profiles fixed='") + value + "'/>");
        ASSERT_EQ(list.size(), 1);
        EXPECT_FALSE(list[0].fixed) << value;
    }
    EXPECT_FALSE(read("<Profiles Fixed='true'/>").first().fixed);
    EXPECT_TRUE(read("<Profiles fixed='true'/>").first().fixed);
}

TEST(OnvifProfileVector, keepsProfilesOfTheSameToken)
{
    const auto list =
        read("<Profiles token='T1'><Name>a</Name></Profiles><Profiles token='T1'><Name>b</Name></Profiles>");
    ASSERT_EQ(list.size(), 2);
    EXPECT_TRUE(list[0] == list[1]);
    EXPECT_EQ(list[0].name, "a");
    EXPECT_EQ(list[1].name, "b");
}

TEST(OnvifProfileVector, readsAudioOutputAndDecoderInTheExtensionOnly)
{
    const auto list = readOne(test::sampleElement<OnvifAudioOutputConfiguration>("AudioOutputConfiguration", "AO")
                              + test::sampleElement<OnvifAudioDecoderConfiguration>("AudioDecoderConfiguration", "AD"));
    ASSERT_EQ(list.size(), 1);
    expectAbsent(list[0].audioOutput);
    expectAbsent(list[0].audioDecoder);
    const auto extended =
        readOne("<Extension>" + test::sampleElement<OnvifAudioOutputConfiguration>("AudioOutputConfiguration", "AO")
                + "</Extension>");
    ASSERT_EQ(extended.size(), 1);
    test::expectSample(extended[0].audioOutput, "AO");
}

TEST(OnvifProfileVector, readsOtherConfigurationsOutsideTheExtensionOnly)
{
    const auto list = readOne("<Extension>" + configurations("") + "</Extension>");
    ASSERT_EQ(list.size(), 1);
    expectNoConfigurations(list[0]);
}

TEST(OnvifProfileVector, decoderIsLostOnItsWayIntoTheList)
{
    auto list =
        readOne("<Extension>" + test::sampleElement<OnvifAudioDecoderConfiguration>("AudioDecoderConfiguration", "AD")
                + "</Extension>");
    ASSERT_EQ(list.size(), 1);
    expectAbsent(list[0].audioDecoder);
    // The way to it.
    const XmlResponseNode node = list.response.get("/Profiles/Extension/AudioDecoderConfiguration");
    const OnvifAudioDecoderConfiguration decoder(node);
    test::expectSample(decoder, "AD");
}

TEST(OnvifProfileVector, metadataArrivesWithoutItsModules)
{
    const auto list = readOne(test::sampleElement<OnvifMetadataConfiguration>("MetadataConfiguration", "M")
                                  .replace("</tt:MetadataConfiguration>",
                                           "<AnalyticsEngineConfiguration><AnalyticsModule Name='m' Type='t'/>"
                                           "</AnalyticsEngineConfiguration></tt:MetadataConfiguration>"));
    ASSERT_EQ(list.size(), 1);
    test::expectSample(list[0].metadata, "M");
    EXPECT_TRUE(list[0].metadata.analyticsEngineConfiguration.isEmpty());
}

TEST(OnvifProfileVector, emptyConfigurationIsNotNull)
{
    const auto list = readOne("<VideoSourceConfiguration/><AudioSourceConfiguration/><VideoEncoderConfiguration/>"
                              "<AudioEncoderConfiguration/><VideoAnalyticsConfiguration/><PTZConfiguration/>"
                              "<MetadataConfiguration/><Extension><AudioOutputConfiguration/></Extension>");
    ASSERT_EQ(list.size(), 1);
    const OnvifProfile &profile = list[0];
    EXPECT_FALSE(profile.videoSource.isNull());
    EXPECT_FALSE(profile.audioSource.isNull());
    EXPECT_FALSE(profile.videoEncoder.isNull());
    EXPECT_FALSE(profile.audioEncoder.isNull());
    EXPECT_FALSE(profile.videoAnalytics.isNull());
    EXPECT_FALSE(profile.ptz.isNull());
    EXPECT_FALSE(profile.metadata.isNull());
    EXPECT_FALSE(profile.audioOutput.isNull());
    test::expectDefaults(profile.videoSource);
    test::expectDefaults(profile.ptz);
}

TEST(OnvifProfileVector, comparesNamesCaseSensitively)
{
    const auto list = read("<profiles token='x'/><Profile token='y'/><Profiles Token='z'><name>n</name>"
                           "<videoSourceConfiguration/><PtzConfiguration/></Profiles>");
    ASSERT_EQ(list.size(), 1);
    EXPECT_TRUE(list[0].token.isEmpty());
    EXPECT_TRUE(list[0].name.isEmpty());
    expectNoConfigurations(list[0]);
}

TEST(OnvifProfileVector, nameIsThatOfTheProfile)
{
    const auto list = read("<Profiles><VideoSourceConfiguration><Name>x</Name></VideoSourceConfiguration></Profiles>"
                           "<Profiles><Name> b </Name></Profiles>");
    ASSERT_EQ(list.size(), 2);
    EXPECT_TRUE(list[0].name.isEmpty());
    EXPECT_EQ(list[0].videoSource.name, "x");
    EXPECT_EQ(list[1].name, " b ");
}

TEST(OnvifProfileVector, isReadBelowTheRootOfTheCaller)
{
    const QByteArray reply = "<r><Profiles token='T1'/></r>";
    EXPECT_EQ(OnvifProfileVector(reply, "/r").size(), 1);
    EXPECT_TRUE(OnvifProfileVector(reply, root).isEmpty());
    EXPECT_TRUE(OnvifProfileVector(reply, "").isEmpty());
}

TEST(OnvifProfileVector, isEmptyWithAWorkingResponseForOtherReplies)
{
    OnvifProfileVector fault(test::elementAt("/Envelope/Body/Fault/Code/Value", "s:Sender"), "/Envelope/Body");
    EXPECT_TRUE(fault.isEmpty());
    EXPECT_EQ(fault.response.getText("/Fault/Code/Value"), "s:Sender");
    OnvifProfileVector none("no xml", root);
    EXPECT_TRUE(none.isEmpty());
    EXPECT_EQ(none.xml, "no xml");
    EXPECT_FALSE(none.response.get("/Profiles").valid);
    EXPECT_TRUE(OnvifProfileVector(QByteArray(), QString()).isEmpty());
}

struct TwoProfiles : ::testing::Test
{
    const QByteArray reply = replyWith("<Profiles token='a'>" + configurations("1-") + "</Profiles>"
                                       + "<Profiles token='b'>" + configurations("2-") + "</Profiles>");
    OnvifProfileVector source = OnvifProfileVector(reply, root);

    void expectSource(OnvifProfileVector &list) const
    {
        ASSERT_EQ(list.size(), 2);
        EXPECT_EQ(list[0].token, "a");
        expectConfigurations(list[0], "1-");
        EXPECT_EQ(list[1].token, "b");
        expectConfigurations(list[1], "2-");
        EXPECT_TRUE(list[1].isSaved());
        EXPECT_EQ(list.xml, QString::fromUtf8(reply));
        EXPECT_EQ(list.response.getAttribute("token", "/Profiles"), "a");
    }
};

TEST_F(TwoProfiles, areCopied)
{
    auto copy = source;
    expectSource(copy);
    expectSource(source);
}

TEST_F(TwoProfiles, areMoved)
{
    const OnvifProfile *profiles = source.constData();
    auto moved = std::move(source);
    expectSource(moved);
    EXPECT_EQ(moved.constData(), profiles);
}

TEST_F(TwoProfiles, areAssigned)
{
    auto target = read("<Profiles token='x'/>");
    target = source;
    expectSource(target);
    expectSource(source);
}

TEST_F(TwoProfiles, areMoveAssigned)
{
    auto target = read("<Profiles token='x'/>");
    const OnvifProfile *profiles = source.constData();
    target = std::move(source);
    EXPECT_EQ(target.constData(), profiles);
    expectSource(target);
}

TEST_F(TwoProfiles, growAndShrinkWithTheirConfigurations)
{
    source.reserve(source.capacity() + 100);
    expectSource(source);
    source.prepend(OnvifProfile("new", "n", false));
    source.removeFirst();
    expectSource(source);
}

// What devices send and clients stumble over.

TEST(OnvifProfileVector, readsAReplyWithoutProfiles)
{
    const QByteArray reply = replyWith("");
    const OnvifProfileVector list(reply, root);
    EXPECT_TRUE(list.isEmpty());
    EXPECT_EQ(list.xml, QString::fromUtf8(reply));
}

TEST(OnvifProfileVector, readsAProfileWithoutVideoSource)
{
    const QByteArray all = configurations("");
    const QByteArray end = "</tt:VideoSourceConfiguration>";
    const auto list = readOne(all.mid(all.indexOf(end) + end.size()) + "<Other/>");
    ASSERT_EQ(list.size(), 1);
    EXPECT_TRUE(list[0].videoSource.isNull());
    EXPECT_TRUE(list[0].videoSource.token.isEmpty());
    EXPECT_TRUE(list[0].videoSource.bounds.isNull());
    expectOtherConfigurations(list[0], "");
}

TEST(OnvifProfileVector, readsAVideoEncoderWithoutResolutionAndRateControl)
{
    const auto list = readOne(R"(<VideoSourceConfiguration token="VS"/><VideoEncoderConfiguration token="VE">
        <Name>Sub</Name><UseCount>1</UseCount><Encoding>JPEG</Encoding><Quality>2</Quality>
        <SessionTimeout>PT1M</SessionTimeout></VideoEncoderConfiguration><PTZConfiguration token="PTZ"/>)");
    ASSERT_EQ(list.size(), 1);
    const OnvifVideoEncoderConfiguration &encoder = list[0].videoEncoder;
    EXPECT_FALSE(encoder.isNull());
    EXPECT_EQ(encoder.token, "VE");
    EXPECT_EQ(encoder.name, "Sub");
    EXPECT_EQ(encoder.useCount, 1);
    EXPECT_EQ(encoder.encoding, "JPEG");
    test::expectSize(encoder.resolution, -1, -1);
    EXPECT_EQ(encoder.quality, 2.0);
    EXPECT_EQ(encoder.frameRateLimit, 0);
    EXPECT_EQ(encoder.encodingInterval, 0);
    EXPECT_EQ(encoder.bitrateLimit, 0);
    EXPECT_EQ(encoder.sessionTimeout, "PT1M");
    EXPECT_EQ(list[0].videoSource.token, "VS");
    EXPECT_EQ(list[0].ptz.token, "PTZ");
}

TEST(OnvifProfileVector, readsAProfileWithAnUnknownAttribute)
{
    const auto list = read("<Profiles xmlns:v='urn:vendor' v:kind='1' main='yes' token='P' fixed='true'>"
                           "<Name>Main</Name>"
                           + configurations("") + "</Profiles>");
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].token, "P");
    EXPECT_EQ(list[0].name, "Main");
    EXPECT_TRUE(list[0].fixed);
    expectConfigurations(list[0], "");
}

TEST(OnvifProfileVector, readsAProfileWhosePtzLimitsAreNoNumbers)
{
    const QByteArray ptz = configurations("").replace("<tt:Min>-0.5</tt:Min>", "<tt:Min>NAN</tt:Min>");
    const auto list = readOne(ptz);
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].name, "Main");
    EXPECT_EQ(list[0].token, "P");
    OnvifProfile profile;
    profile = list[0];
    EXPECT_TRUE(std::isnan(profile.ptz.panTiltYRange.min)); // as Qt reads it
    EXPECT_EQ(profile.ptz.panTiltYRange.max, 0.25);
    profile.ptz.panTiltYRange.min = -0.5;
    expectConfigurations(profile, "");
}

TEST(OnvifProfileVector, readsAReplyWithAnUndeclaredPrefixInItsHeader)
{
    const QByteArray reply =
        "<?xml version='1.0' encoding='UTF-8'?>"
        "<s:Envelope xmlns:s='http://www.w3.org/2003/05/soap-envelope' xmlns:tt='http://www.onvif.org/ver10/schema'"
        " xmlns:trt='http://www.onvif.org/ver10/media/wsdl'><s:Header><wsa:Action s:mustUnderstand='1'>urn:x"
        "</wsa:Action><wsse:Security/></s:Header><s:Body><trt:GetProfilesResponse><trt:Profiles token='P'>"
        "<tt:Name>Main</tt:Name>"
        + configurations("") + "</trt:Profiles></trt:GetProfilesResponse></s:Body></s:Envelope>";
    const OnvifProfileVector list(reply, root);
    ASSERT_EQ(list.size(), 1);
    EXPECT_EQ(list[0].token, "P");
    EXPECT_EQ(list[0].name, "Main");
    expectConfigurations(list[0], "");
}

TEST(OnvifProfileVector, isTheSameUnderEachPolicyOfQtForInvalidData)
{
    const auto policy = QDomImplementation::invalidDataPolicy();
    for (const auto other : {QDomImplementation::AcceptInvalidChars, QDomImplementation::DropInvalidChars,
                             QDomImplementation::ReturnNullNode}) {
        QDomImplementation::setInvalidDataPolicy(other);
        const OnvifProfileVector profiles = read("<:Profiles token='p\x01'><:Name>n\x02</:Name>"
                                                 "<:VideoEncoderConfiguration/></:Profiles>");
        QDomImplementation::setInvalidDataPolicy(policy);

        ASSERT_EQ(profiles.size(), 1) << other;
        EXPECT_FALSE(profiles[0].isNull()) << other;
        EXPECT_EQ(profiles[0].token, u"p\u0001") << other;
        EXPECT_EQ(profiles[0].name, u"n\u0002") << other;
        EXPECT_FALSE(profiles[0].videoEncoder.isNull()) << other;
    }
}

} // namespace
