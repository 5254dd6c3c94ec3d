#include "records.h"

#include <type_traits>

using vorn::OnvifAudioOutputConfiguration;
using vorn::OnvifAudioOutputConfigurationVector;
using vorn::OnvifCompatibleAudioOutputConfigurationVector;

namespace {

OnvifAudioOutputConfiguration read(const QByteArray &children)
{
    return test::recordFrom<OnvifAudioOutputConfiguration>(children);
}

TEST(OnvifAudioOutputConfiguration, readsAnUnsignedUseCount)
{
    EXPECT_EQ(read("<UseCount>4294967295</UseCount>").useCount, 4294967295U);
    EXPECT_EQ(read("<UseCount>4294967296</UseCount>").useCount, 0U);
    EXPECT_EQ(read("<UseCount>-1</UseCount>").useCount, 0U);
}

TEST(OnvifAudioOutputConfiguration, readsAnUnsignedOutputLevel)
{
    EXPECT_EQ(read("<OutputLevel>4294967295</OutputLevel>").outputLevel, 4294967295U);
    EXPECT_EQ(read("<OutputLevel>-5</OutputLevel>").outputLevel, 0U);
    EXPECT_EQ(read("<OutputLevel>loud</OutputLevel>").outputLevel, 0U);
}

TEST(OnvifAudioOutputConfiguration, lastElementCountsAlsoIfItIsBad)
{
    EXPECT_EQ(read("<UseCount>3</UseCount><UseCount>many</UseCount>").useCount, 0U);
    EXPECT_EQ(read("<OutputLevel>3</OutputLevel><OutputLevel>-1</OutputLevel>").outputLevel, 0U);
    EXPECT_EQ(read("<OutputLevel>3</OutputLevel><OutputLevel>4</OutputLevel>").outputLevel, 4U);
    EXPECT_EQ(read("<OutputToken>a</OutputToken><OutputToken>b</OutputToken>").outputToken, "b");
    EXPECT_TRUE(read("<SendPrimacy>a</SendPrimacy><SendPrimacy/>").sendPrimacy.isEmpty());
}

TEST(OnvifAudioOutputConfiguration, keepsTextsVerbatim)
{
    EXPECT_EQ(read("<SendPrimacy> who knows </SendPrimacy>").sendPrimacy, " who knows ");
    EXPECT_EQ(read("<OutputToken> a </OutputToken>").outputToken, " a ");
}

TEST(OnvifAudioOutputConfiguration, ignoresNamesOfAnotherCase)
{
    test::expectDefaults(read("<sendprimacy>a</sendprimacy><Outputlevel>1</Outputlevel><outputToken>b</outputToken>"
                              "<SourceToken>c</SourceToken>"));
}

TEST(OnvifAudioOutputConfiguration, isEqualWhateverItsLevel)
{
    auto left = test::sample<OnvifAudioOutputConfiguration>();
    const auto right = left;
    left.outputLevel = 1;
    EXPECT_TRUE(left == right);
}

/// Both lists of outputs read the same elements.
template <typename List>
struct AudioOutputList : ::testing::Test
{
    static QByteArray reply(const QByteArray &entries)
    {
        return test::elementAt("/Envelope/Body/GetCompatibleAudioOutputConfigurationsResponse", entries);
    }

    static List read(const QByteArray &entries)
    {
        if constexpr (std::is_same_v<List, OnvifCompatibleAudioOutputConfigurationVector>)
            return List(reply(entries));
        else
            return List(reply(entries), "/Envelope/Body/GetCompatibleAudioOutputConfigurationsResponse");
    }
};

struct Titles
{
    template <typename List>
    static std::string GetName(int)
    {
        return std::is_same_v<List, OnvifAudioOutputConfigurationVector> ? "Plain" : "Compatible";
    }
};

using AudioOutputLists =
    ::testing::Types<OnvifAudioOutputConfigurationVector, OnvifCompatibleAudioOutputConfigurationVector>;
TYPED_TEST_SUITE(AudioOutputList, AudioOutputLists, Titles);

TYPED_TEST(AudioOutputList, takesOptionsBehindConfigurations)
{
    const auto list = TestFixture::read("<Options token='o'><Name>O</Name><OutputLevel>3</OutputLevel></Options>"
                                        "<Configurations token='a'/><Configurations token='b'/>");
    ASSERT_EQ(list.size(), 3);
    EXPECT_EQ(list[0].token, "a");
    EXPECT_EQ(list[1].token, "b");
    EXPECT_EQ(list[2].token, "o");
    EXPECT_EQ(list[2].name, "O");
    EXPECT_EQ(list[2].outputLevel, 3U);
    EXPECT_FALSE(list[2].isNull());
}

TYPED_TEST(AudioOutputList, readsOptionsInFull)
{
    const auto list = TestFixture::read(test::sampleElement<OnvifAudioOutputConfiguration>("Options", "T1"));
    ASSERT_EQ(list.size(), 1);
    test::expectSample(list[0]);
}

// What a device really sends: its options hold none of the record's elements.
TYPED_TEST(AudioOutputList, keepsOptionsWithoutKnownChildren)
{
    const auto list = TestFixture::read("<Options><OutputTokensAvailable>Speaker</OutputTokensAvailable>"
                                        "<OutputLevelRange><Min>0</Min><Max>100</Max></OutputLevelRange></Options>");
    ASSERT_EQ(list.size(), 1);
    EXPECT_FALSE(list[0].isNull());
    test::expectDefaults(list[0]);
}

TYPED_TEST(AudioOutputList, keepsOptionsInDocumentOrderWithDuplicates)
{
    const auto list = TestFixture::read("<Options token='o'/><Configurations token='a'/><Options token='a'/>"
                                        "<Options token='o'/>");
    ASSERT_EQ(list.size(), 4);
    EXPECT_EQ(list[0].token, "a");
    EXPECT_EQ(list[1].token, "o");
    EXPECT_EQ(list[2].token, "a");
    EXPECT_EQ(list[3].token, "o");
}

TYPED_TEST(AudioOutputList, isEmptyWithNeither)
{
    EXPECT_TRUE(TestFixture::read("<options/><Option/><Extension><Options/></Extension>").isEmpty());
}

TEST(OnvifAudioSourceConfigurationVector, doesNotReadOptions)
{
    EXPECT_TRUE(vorn::OnvifAudioSourceConfigurationVector("<r><Options/></r>", "/r").isEmpty());
}

} // namespace
