#include "records.h"

using vorn::OnvifVideoSourceConfiguration;

namespace {

OnvifVideoSourceConfiguration read(const QByteArray &children)
{
    return test::recordFrom<OnvifVideoSourceConfiguration>(children);
}

QRect boundsOf(const QByteArray &attributes)
{
    return read("<tt:Bounds " + attributes + "/>").bounds;
}

TEST(OnvifVideoSourceConfiguration, hasNullBoundsByDefault)
{
    EXPECT_TRUE(OnvifVideoSourceConfiguration().bounds.isNull());
    EXPECT_TRUE(read("").bounds.isNull());
}

TEST(OnvifVideoSourceConfiguration, readsASignedUseCount)
{
    EXPECT_EQ(read("<UseCount>-2</UseCount>").useCount, -2);
    EXPECT_EQ(read("<UseCount>2147483647</UseCount>").useCount, 2147483647);
    EXPECT_EQ(read("<UseCount>2147483648</UseCount>").useCount, 0);
}

TEST(OnvifVideoSourceConfiguration, countsBadUseCountsAsZero)
{
    for (const char *text : {"", "many", "1.5", "0x10", "2 3"})
        EXPECT_EQ(read(test::element("UseCount", text)).useCount, 0) << text;
}

TEST(OnvifVideoSourceConfiguration, badLaterUseCountReplacesAGoodOne)
{
    EXPECT_EQ(read("<UseCount>3</UseCount><UseCount>many</UseCount>").useCount, 0);
    EXPECT_EQ(read("<UseCount>3</UseCount><UseCount/>").useCount, 0);
    EXPECT_EQ(read("<UseCount>many</UseCount><UseCount>3</UseCount>").useCount, 3);
}

TEST(OnvifVideoSourceConfiguration, readsTheLastSourceToken)
{
    EXPECT_EQ(read("<SourceToken>a</SourceToken><SourceToken> b </SourceToken>").sourceToken, " b ");
}

TEST(OnvifVideoSourceConfiguration, lastBoundsReplaceAllEdges)
{
    const QRect bounds = read("<Bounds x='1' y='2' width='3' height='4'/><Bounds x='5' width='6'/>").bounds;
    test::expectEdges(bounds, 5, 0, 10, -1);
    test::expectEdges(read("<Bounds x='1' y='2' width='3' height='4'/><Bounds/>").bounds, 0, 0, -1, -1);
}

TEST(OnvifVideoSourceConfiguration, readsEachAttributeOfBounds)
{
    test::expectEdges(boundsOf("x='7'"), 7, 0, 6, -1);
    test::expectEdges(boundsOf("y='7'"), 0, 7, -1, 6);
    test::expectEdges(boundsOf("width='7'"), 0, 0, 6, -1);
    test::expectEdges(boundsOf("height='7'"), 0, 0, -1, 6);
}

TEST(OnvifVideoSourceConfiguration, boundsWithoutAttributesAreNull)
{
    test::expectEdges(boundsOf(""), 0, 0, -1, -1);
    EXPECT_TRUE(boundsOf("").isNull());
}

TEST(OnvifVideoSourceConfiguration, boundsMayHaveNoExtent)
{
    test::expectEdges(boundsOf("x='5' y='6' width='0' height='0'"), 5, 6, 4, 5);
    test::expectEdges(boundsOf("x='-5' y='-6' width='-1' height='-2'"), -5, -6, -7, -9);
}

TEST(OnvifVideoSourceConfiguration, countsBadAttributesOfBoundsAsZero)
{
    test::expectEdges(boundsOf("x='a' y='1.5' width='' height='2147483648'"), 0, 0, -1, -1);
    test::expectEdges(boundsOf("X='1' Y='2' Width='3' HEIGHT='4'"), 0, 0, -1, -1);
}

TEST(OnvifVideoSourceConfiguration, ignoresChildrenOfBounds)
{
    test::expectEdges(read("<Bounds><x>1</x><y>2</y><width>3</width><height>4</height></Bounds>").bounds, 0, 0, -1, -1);
}

// Devices send what they like: the sum wraps around as 32-bit integers do.
TEST(OnvifVideoSourceConfiguration, edgesOfBoundsWrapAround)
{
    test::expectEdges(boundsOf("x='2147483647' y='2147483647' width='2' height='2147483647'"), 2147483647, 2147483647,
                      -2147483647 - 1, -3);
    test::expectEdges(boundsOf("x='-2147483648' y='-2147483648' width='0' height='-2147483648'"), -2147483647 - 1,
                      -2147483647 - 1, 2147483647, -1);
    test::expectEdges(boundsOf("width='-2147483648' height='2147483647'"), 0, 0, 2147483647, 2147483646);
}

TEST(OnvifVideoSourceConfiguration, largestBoundsDoNotWrapAround)
{
    test::expectEdges(boundsOf("x='2147483647' y='1' width='1' height='2147483647'"), 2147483647, 1, 2147483647,
                      2147483647);
}

TEST(OnvifVideoSourceConfiguration, ignoresNamesOfAnotherCase)
{
    const auto record = read("<usecount>1</usecount><NAME>n</NAME><bounds x='1' y='1' width='1' height='1'/>"
                             "<sourceToken>s</sourceToken>");
    test::expectDefaults(record);
}

TEST(OnvifVideoSourceConfiguration, isEqualWhateverItsBounds)
{
    auto left = test::sample<OnvifVideoSourceConfiguration>();
    const auto right = left;
    left.bounds = QRect(1, 2, 3, 4);
    EXPECT_TRUE(left == right);
}

} // namespace
