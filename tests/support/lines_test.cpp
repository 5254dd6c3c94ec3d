// What a failed comparison of two texts says.

#include "support/lines.h"

namespace {

std::string difference(const QByteArray &actual, const QByteArray &expected)
{
    const testing::AssertionResult result = test::sameLines(actual, expected);
    EXPECT_FALSE(result);
    return result.message();
}

TEST(SameLines, areEqual)
{
    EXPECT_TRUE(test::sameLines("", ""));
    EXPECT_TRUE(test::sameLines("a\nb\n", "a\nb\n"));
}

TEST(SameLines, showTheFirstLineThatDiffers)
{
    EXPECT_EQ(difference("a\nbcd\ne\n", "a\nbxd\nf\n"), "line 2 is\n  bcd\nbut should be\n  bxd");
}

TEST(SameLines, showWhereATextEnds)
{
    EXPECT_EQ(difference("a\n", "a\nb\n"), "line 2 is\n  (the end)\nbut should be\n  b");
    EXPECT_EQ(difference("a\nb\n", "a\n"), "line 2 is\n  b\nbut should be\n  (the end)");
    EXPECT_EQ(difference("", "a\n"), "line 1 is\n  (the end)\nbut should be\n  a");
}

TEST(SameLines, showAMissingLineEnd)
{
    EXPECT_EQ(difference("a", "a\n"), "line 1 is\n  a (without a line end)\nbut should be\n  a");
}

TEST(SameLines, showAnEmptyLine)
{
    EXPECT_EQ(difference("\nb\n", "a\nb\n"), "line 1 is\n  \nbut should be\n  a");
}

TEST(SameLines, showOnlyAPartOfALongLine)
{
    const QByteArray before(1000000, '-');
    const QByteArray after(1000000, '+');
    const std::string shown = difference(before + "a" + after, before + "b" + after);
    EXPECT_LE(shown.size(), 500U);
    EXPECT_NE(shown.find("---a+++"), std::string::npos) << shown;
    EXPECT_NE(shown.find("---b+++"), std::string::npos) << shown;
}

TEST(QStrings, arePrintedAsText)
{
    EXPECT_EQ(testing::PrintToString(QString("a ü")), "\"a ü\"");
    EXPECT_EQ(testing::PrintToString(QString()), "null \"\"");
    EXPECT_EQ(testing::PrintToString(QStringList{"a", "b"}), "{ \"a\", \"b\" }");
}

} // namespace
