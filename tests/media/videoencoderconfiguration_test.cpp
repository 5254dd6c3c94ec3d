#include "records.h"

using vorn::OnvifVideoEncoderConfiguration;

namespace {

OnvifVideoEncoderConfiguration read(const QByteArray &children)
{
    return test::recordFrom<OnvifVideoEncoderConfiguration>(children);
}

QSize resolutionOf(const QByteArray &children)
{
    return read(children).resolution;
}

TEST(OnvifVideoEncoderConfiguration, resolutionIsInvalidWithoutAnElement)
{
    test::expectSize(resolutionOf("<Width>640</Width><Height>480</Height>"), -1, -1);
    EXPECT_FALSE(resolutionOf("").isValid());
}

TEST(OnvifVideoEncoderConfiguration, missingSideIsZero)
{
    test::expectSize(resolutionOf("<Resolution/>"), 0, 0);
    test::expectSize(resolutionOf("<Resolution><Width>640</Width></Resolution>"), 640, 0);
    test::expectSize(resolutionOf("<Resolution><Height>480</Height></Resolution>"), 0, 480);
}

TEST(OnvifVideoEncoderConfiguration, lastResolutionReplacesBothSides)
{
    const QByteArray first = "<Resolution><Width>640</Width><Height>480</Height></Resolution>";
    test::expectSize(resolutionOf(first + "<Resolution><Width>320</Width><Height>240</Height></Resolution>"), 320, 240);
    test::expectSize(resolutionOf(first + "<Resolution><Height>240</Height></Resolution>"), 0, 240);
    test::expectSize(resolutionOf(first + "<Resolution/>"), 0, 0);
}

TEST(OnvifVideoEncoderConfiguration, readsTheLastOfSeveralSides)
{
    test::expectSize(resolutionOf("<Resolution><Width>1</Width><Width>2</Width><Height>3</Height><Height>4</Height>"
                                  "</Resolution>"),
                     2, 4);
}

TEST(OnvifVideoEncoderConfiguration, countsBadSidesAsZero)
{
    test::expectSize(resolutionOf("<Resolution><Width>wide</Width><Height>4.5</Height></Resolution>"), 0, 0);
    test::expectSize(resolutionOf("<Resolution><Width>640</Width><Width>wide</Width></Resolution>"), 0, 0);
    test::expectSize(resolutionOf("<Resolution><Width>-3</Width><Height>-4</Height></Resolution>"), -3, -4);
}

TEST(OnvifVideoEncoderConfiguration, readsSidesFromDirectChildrenOnly)
{
    test::expectSize(resolutionOf("<Resolution Width='1' Height='2'><Any><Width>3</Width></Any></Resolution>"), 0, 0);
}

TEST(OnvifVideoEncoderConfiguration, readsTheQuality)
{
    const auto qualityOf = [](const char *text) { return read(test::element("Quality", text)).quality; };
    EXPECT_EQ(qualityOf("4.5"), 4.5);
    EXPECT_EQ(qualityOf("-0.25"), -0.25);
    EXPECT_EQ(qualityOf("1e2"), 100.0);
    EXPECT_EQ(qualityOf("good"), 0.0);
    EXPECT_EQ(qualityOf("4,5"), 0.0);
    EXPECT_EQ(qualityOf(""), 0.0);
}

TEST(OnvifVideoEncoderConfiguration, badLaterNumbersReplaceGoodOnes)
{
    EXPECT_EQ(read("<Quality>4.5</Quality><Quality>good</Quality>").quality, 0.0);
    EXPECT_EQ(read("<UseCount>3</UseCount><UseCount>many</UseCount>").useCount, 0);
    EXPECT_EQ(
        read("<RateControl><BitrateLimit>3</BitrateLimit><BitrateLimit>x</BitrateLimit></RateControl>").bitrateLimit,
        0);
}

TEST(OnvifVideoEncoderConfiguration, readsSignedNumbers)
{
    const auto record = read("<UseCount>-1</UseCount><RateControl><FrameRateLimit>-2</FrameRateLimit>"
                             "<EncodingInterval>-3</EncodingInterval><BitrateLimit>4294967295</BitrateLimit>"
                             "</RateControl>");
    EXPECT_EQ(record.useCount, -1);
    EXPECT_EQ(record.frameRateLimit, -2);
    EXPECT_EQ(record.encodingInterval, -3);
    EXPECT_EQ(record.bitrateLimit, 0);
}

TEST(OnvifVideoEncoderConfiguration, limitSurvivesARateControlWithoutIt)
{
    const auto record = read("<RateControl><FrameRateLimit>25</FrameRateLimit><EncodingInterval>2</EncodingInterval>"
                             "<BitrateLimit>512</BitrateLimit></RateControl>"
                             "<RateControl><EncodingInterval>3</EncodingInterval></RateControl><RateControl/>");
    EXPECT_EQ(record.frameRateLimit, 25);
    EXPECT_EQ(record.encodingInterval, 3);
    EXPECT_EQ(record.bitrateLimit, 512);
}

TEST(OnvifVideoEncoderConfiguration, readsLimitsInsideRateControlOnly)
{
    const auto record = read("<FrameRateLimit>25</FrameRateLimit><EncodingInterval>2</EncodingInterval>"
                             "<BitrateLimit>512</BitrateLimit><Resolution><BitrateLimit>1</BitrateLimit></Resolution>");
    EXPECT_EQ(record.frameRateLimit, 0);
    EXPECT_EQ(record.encodingInterval, 0);
    EXPECT_EQ(record.bitrateLimit, 0);
}

TEST(OnvifVideoEncoderConfiguration, ignoresNamesOfAnotherCaseAtEveryLevel)
{
    const auto record = read("<Resolution><width>1</width><HEIGHT>2</HEIGHT></Resolution>"
                             "<RateControl><bitratelimit>1</bitratelimit><frameRateLimit>2</frameRateLimit>"
                             "<encodingInterval>3</encodingInterval></RateControl><resolution/><encoding>x</encoding>");
    test::expectSize(record.resolution, 0, 0);
    EXPECT_EQ(record.bitrateLimit, 0);
    EXPECT_EQ(record.frameRateLimit, 0);
    EXPECT_EQ(record.encodingInterval, 0);
    EXPECT_TRUE(record.encoding.isEmpty());
}

TEST(OnvifVideoEncoderConfiguration, keepsTextsVerbatim)
{
    const auto record = read("<Encoding> x-Codec </Encoding><SessionTimeout>one hour</SessionTimeout>");
    EXPECT_EQ(record.encoding, " x-Codec ");
    EXPECT_EQ(record.sessionTimeout, "one hour");
}

TEST(OnvifVideoEncoderConfiguration, readsTheLastOfSeveralTexts)
{
    const auto record = read("<Encoding>JPEG</Encoding><Encoding>H264</Encoding><SessionTimeout>PT1S</SessionTimeout>"
                             "<SessionTimeout/>");
    EXPECT_EQ(record.encoding, "H264");
    EXPECT_TRUE(record.sessionTimeout.isEmpty());
}

TEST(OnvifVideoEncoderConfiguration, ignoresTheOptionsOfCodecsAndTheMulticastSettings)
{
    test::expectDefaults(
        read("<MPEG4><GovLength>1</GovLength><Name>n</Name></MPEG4><H264><GovLength>2</GovLength>"
             "<Encoding>e</Encoding></H264><Multicast><Address><Type>IPv4</Type></Address><Port>1</Port>"
             "<SessionTimeout>PT1S</SessionTimeout></Multicast>"));
}

// There are devices that leave either out, though every encoder has to have them.

TEST(OnvifVideoEncoderConfiguration, isReadWithoutResolution)
{
    const auto record = read("<Name>Main</Name><UseCount>1</UseCount><Encoding>JPEG</Encoding><Quality>3</Quality>"
                             "<RateControl><BitrateLimit>512</BitrateLimit></RateControl>"
                             "<SessionTimeout>PT60S</SessionTimeout>");
    test::expectSize(record.resolution, -1, -1);
    EXPECT_EQ(record.name, "Main");
    EXPECT_EQ(record.useCount, 1);
    EXPECT_EQ(record.encoding, "JPEG");
    EXPECT_EQ(record.quality, 3.0);
    EXPECT_EQ(record.bitrateLimit, 512);
    EXPECT_EQ(record.sessionTimeout, "PT60S");
}

TEST(OnvifVideoEncoderConfiguration, isReadWithoutRateControl)
{
    const auto record = read("<Name>Main</Name><UseCount>1</UseCount><Encoding>JPEG</Encoding>"
                             "<Resolution><Width>640</Width><Height>480</Height></Resolution><Quality>3</Quality>"
                             "<SessionTimeout>PT60S</SessionTimeout>");
    EXPECT_EQ(record.frameRateLimit, 0);
    EXPECT_EQ(record.encodingInterval, 0);
    EXPECT_EQ(record.bitrateLimit, 0);
    test::expectSize(record.resolution, 640, 480);
    EXPECT_EQ(record.quality, 3.0);
    EXPECT_EQ(record.sessionTimeout, "PT60S");
}

TEST(OnvifVideoEncoderConfiguration, isEqualWhateverItsSettings)
{
    auto left = test::sample<OnvifVideoEncoderConfiguration>();
    const auto right = left;
    left.resolution = QSize(1, 2);
    left.bitrateLimit = 1;
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
}

} // namespace
