#include "records.h"

using vorn::OnvifAudioSourceConfiguration;

namespace {

OnvifAudioSourceConfiguration read(const QByteArray &children)
{
    return test::recordFrom<OnvifAudioSourceConfiguration>(children);
}

TEST(OnvifAudioSourceConfiguration, readsASignedUseCount)
{
    EXPECT_EQ(read("<UseCount>-1</UseCount>").useCount, -1);
    EXPECT_EQ(read("<UseCount>4294967295</UseCount>").useCount, 0);
}

TEST(OnvifAudioSourceConfiguration, lastElementCountsAlsoIfItIsBad)
{
    EXPECT_EQ(read("<UseCount>3</UseCount><UseCount>4</UseCount>").useCount, 4);
    EXPECT_EQ(read("<UseCount>3</UseCount><UseCount>many</UseCount>").useCount, 0);
    EXPECT_EQ(read("<SourceToken>a</SourceToken><SourceToken>b</SourceToken>").sourceToken, "b");
    EXPECT_TRUE(read("<SourceToken>a</SourceToken><SourceToken/>").sourceToken.isEmpty());
}

TEST(OnvifAudioSourceConfiguration, keepsTheSourceTokenVerbatim)
{
    EXPECT_EQ(read("<SourceToken> a </SourceToken>").sourceToken, " a ");
}

TEST(OnvifAudioSourceConfiguration, ignoresNamesOfAnotherCase)
{
    test::expectDefaults(read("<Sourcetoken>a</Sourcetoken><Usecount>1</Usecount><name>n</name>"));
}

TEST(OnvifAudioSourceConfiguration, isEqualWhateverItsSource)
{
    auto left = test::sample<OnvifAudioSourceConfiguration>();
    const auto right = left;
    left.sourceToken = "other";
    EXPECT_TRUE(left == right);
}

} // namespace
