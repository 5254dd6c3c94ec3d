#include "records.h"

using vorn::OnvifAudioEncoderConfiguration;

namespace {

OnvifAudioEncoderConfiguration read(const QByteArray &children)
{
    return test::recordFrom<OnvifAudioEncoderConfiguration>(children);
}

TEST(OnvifAudioEncoderConfiguration, readsSignedNumbers)
{
    const auto record = read("<UseCount>-1</UseCount><Bitrate>-2</Bitrate><SampleRate>-3</SampleRate>");
    EXPECT_EQ(record.useCount, -1);
    EXPECT_EQ(record.bitrate, -2);
    EXPECT_EQ(record.sampleRate, -3);
}

TEST(OnvifAudioEncoderConfiguration, countsBadNumbersAsZero)
{
    const auto record = read("<UseCount>many</UseCount><Bitrate>2147483648</Bitrate><SampleRate>44.1</SampleRate>");
    EXPECT_EQ(record.useCount, 0);
    EXPECT_EQ(record.bitrate, 0);
    EXPECT_EQ(record.sampleRate, 0);
}

TEST(OnvifAudioEncoderConfiguration, badLaterNumbersReplaceGoodOnes)
{
    EXPECT_EQ(read("<UseCount>1</UseCount><UseCount>x</UseCount>").useCount, 0);
    EXPECT_EQ(read("<Bitrate>1</Bitrate><Bitrate>x</Bitrate>").bitrate, 0);
    EXPECT_EQ(read("<SampleRate>1</SampleRate><SampleRate/>").sampleRate, 0);
}

TEST(OnvifAudioEncoderConfiguration, readsTheLastOfSeveralElements)
{
    const auto record = read("<Encoding>AAC</Encoding><Encoding>G711</Encoding><Bitrate>1</Bitrate><Bitrate>2</Bitrate>"
                             "<SessionTimeout>PT1S</SessionTimeout><SessionTimeout>PT2S</SessionTimeout>");
    EXPECT_EQ(record.encoding, "G711");
    EXPECT_EQ(record.bitrate, 2);
    EXPECT_EQ(record.sessionTimeout, "PT2S");
}

TEST(OnvifAudioEncoderConfiguration, keepsTextsVerbatim)
{
    const auto record = read("<Encoding> x </Encoding><SessionTimeout> 60 </SessionTimeout>");
    EXPECT_EQ(record.encoding, " x ");
    EXPECT_EQ(record.sessionTimeout, " 60 ");
}

TEST(OnvifAudioEncoderConfiguration, ignoresNamesOfAnotherCase)
{
    test::expectDefaults(read("<bitrate>1</bitrate><BitRate>2</BitRate><Samplerate>3</Samplerate>"
                              "<sessionTimeout>PT1S</sessionTimeout><BitrateLimit>4</BitrateLimit>"));
}

TEST(OnvifAudioEncoderConfiguration, ignoresTheMulticastSettings)
{
    test::expectDefaults(read("<Multicast><Bitrate>1</Bitrate><SessionTimeout>PT1S</SessionTimeout></Multicast>"));
}

TEST(OnvifAudioEncoderConfiguration, isEqualWhateverItsBitrate)
{
    auto left = test::sample<OnvifAudioEncoderConfiguration>();
    const auto right = left;
    left.bitrate = 1;
    EXPECT_TRUE(left == right);
}

} // namespace
