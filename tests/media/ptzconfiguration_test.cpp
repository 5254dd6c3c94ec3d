#include "records.h"

#include <cmath>

using vorn::OnvifPtzConfiguration;
using vorn::OnvifPtzRange;

namespace {

OnvifPtzConfiguration read(const QByteArray &children)
{
    return test::recordFrom<OnvifPtzConfiguration>(children);
}

QByteArray bounds(const QByteArray &min, const QByteArray &max)
{
    return test::element("Min", min) + test::element("Max", max);
}

QByteArray panTilt(const QByteArray &axes)
{
    return test::elementAt("/PanTiltLimits/Range", axes);
}

/// The range of panning from the children of its axis.
OnvifPtzRange rangeOf(const QByteArray &children)
{
    return read(panTilt(test::element("XRange", children))).panTiltXRange;
}

TEST(OnvifPtzRange, isZeroByDefault)
{
    test::expectRange(OnvifPtzRange(), 0.0, 0.0);
}

TEST(OnvifPtzRange, holdsItsMinimumFirst)
{
    const OnvifPtzRange range = {1.0, 2.0};
    test::expectRange(range, 1.0, 2.0);
}

TEST(OnvifPtzConfiguration, readsEachAxis)
{
    const auto pan = read(panTilt(test::element("XRange", bounds("1", "2"))));
    test::expectRange(pan.panTiltXRange, 1.0, 2.0);
    test::expectRange(pan.panTiltYRange, 0.0, 0.0);
    test::expectRange(pan.zoomXRange, 0.0, 0.0);
    const auto tilt = read(panTilt(test::element("YRange", bounds("1", "2"))));
    test::expectRange(tilt.panTiltXRange, 0.0, 0.0);
    test::expectRange(tilt.panTiltYRange, 1.0, 2.0);
    test::expectRange(tilt.zoomXRange, 0.0, 0.0);
}

TEST(OnvifPtzConfiguration, readsNoSecondAxisOfTheZoom)
{
    const auto record = read(test::elementAt("/ZoomLimits/Range", test::element("XRange", bounds("1", "2"))
                                                                      + test::element("YRange", bounds("3", "4"))));
    test::expectRange(record.zoomXRange, 1.0, 2.0);
    test::expectRange(record.panTiltXRange, 0.0, 0.0);
    test::expectRange(record.panTiltYRange, 0.0, 0.0);
}

TEST(OnvifPtzConfiguration, readsAxesTwoLevelsBelowTheLimitsOnly)
{
    const QByteArray axes = test::element("XRange", bounds("1", "2")) + test::element("YRange", bounds("3", "4"));
    for (const char *path : {"/PanTiltLimits", "/ZoomLimits", "/PanTiltLimits/Range/Any", "/ZoomLimits/Range/Any",
                             "/Range", "/Any/PanTiltLimits/Range"})
        test::expectDefaults(read(test::elementAt(path, axes)));
}

TEST(OnvifPtzConfiguration, readsAxesBelowAnyName)
{
    const QByteArray axis = test::element("XRange", bounds("1", "2"));
    for (const char *name : {"Range", "range", "XRange", "Min", "x:Other"}) {
        test::expectRange(read(test::elementAt(QByteArray("/PanTiltLimits/") + name, axis)).panTiltXRange, 1.0, 2.0);
        test::expectRange(read(test::elementAt(QByteArray("/ZoomLimits/") + name, axis)).zoomXRange, 1.0, 2.0);
    }
}

TEST(OnvifPtzConfiguration, searchesEachElementBelowTheLimits)
{
    const auto record = read("<PanTiltLimits><A><XRange><Min>1</Min><Max>2</Max></XRange></A><B/>"
                             "<C><YRange><Min>3</Min><Max>4</Max></YRange></C></PanTiltLimits>");
    test::expectRange(record.panTiltXRange, 1.0, 2.0);
    test::expectRange(record.panTiltYRange, 3.0, 4.0);
}

TEST(OnvifPtzConfiguration, lastAxisReplacesBothBounds)
{
    const QByteArray first = test::element("XRange", bounds("1", "2"));
    const QByteArray second = "<XRange><Max>5</Max></XRange>";
    test::expectRange(read(panTilt(first + second)).panTiltXRange, 0.0, 5.0);
    test::expectRange(read(panTilt(first) + panTilt(second)).panTiltXRange, 0.0, 5.0);
    test::expectRange(read("<PanTiltLimits><A>" + first + "</A><B>" + second + "</B></PanTiltLimits>").panTiltXRange,
                      0.0, 5.0);
    test::expectRange(read(panTilt(first + "<XRange/>")).panTiltXRange, 0.0, 0.0);
    test::expectRange(read(panTilt(first + "<XRange><Min>-5</Min></XRange>")).panTiltXRange, -5.0, 0.0);
}

TEST(OnvifPtzConfiguration, limitsWithoutAnAxisLeaveIt)
{
    const auto record = read(panTilt(test::element("XRange", bounds("1", "2")))
                             + panTilt(test::element("YRange", bounds("3", "4"))) + "<PanTiltLimits/><ZoomLimits/>");
    test::expectRange(record.panTiltXRange, 1.0, 2.0);
    test::expectRange(record.panTiltYRange, 3.0, 4.0);
}

TEST(OnvifPtzConfiguration, missingBoundIsZero)
{
    test::expectRange(rangeOf(""), 0.0, 0.0);
    test::expectRange(rangeOf("<Min>-1</Min>"), -1.0, 0.0);
    test::expectRange(rangeOf("<Max>1</Max>"), 0.0, 1.0);
}

TEST(OnvifPtzConfiguration, readsTheLastOfSeveralBounds)
{
    test::expectRange(rangeOf("<Min>1</Min><Min>2</Min><Max>3</Max><Max>4</Max>"), 2.0, 4.0);
    test::expectRange(rangeOf("<Min>1</Min><Min>low</Min><Max>3</Max><Max/>"), 0.0, 0.0);
}

TEST(OnvifPtzConfiguration, readsBoundsAsDoubles)
{
    test::expectRange(rangeOf(bounds("-1.0", "1.0")), -1.0, 1.0);
    test::expectRange(rangeOf(bounds("-0.015625", "1.5e3")), -0.015625, 1500.0);
    test::expectRange(rangeOf(bounds("low", "1,5")), 0.0, 0.0);
}

TEST(OnvifPtzConfiguration, keepsBoundsInAnyOrder)
{
    test::expectRange(rangeOf(bounds("5", "-5")), 5.0, -5.0);
}

// Devices that do not know a limit send this; Qt reads it as a number.
TEST(OnvifPtzConfiguration, readsBoundsThatAreNoFiniteNumbers)
{
    const OnvifPtzRange nan = rangeOf(bounds("NAN", "NaN"));
    EXPECT_TRUE(std::isnan(nan.min));
    EXPECT_TRUE(std::isnan(nan.max));
    const OnvifPtzRange infinite = rangeOf(bounds("-INF", "INF"));
    EXPECT_TRUE(std::isinf(infinite.min) && infinite.min < 0.0);
    EXPECT_TRUE(std::isinf(infinite.max) && infinite.max > 0.0);
}

TEST(OnvifPtzConfiguration, readsASignedUseCount)
{
    EXPECT_EQ(read("<UseCount>-2</UseCount>").useCount, -2);
    EXPECT_EQ(read("<UseCount>4294967295</UseCount>").useCount, 0);
    EXPECT_EQ(read("<UseCount>2</UseCount><UseCount>many</UseCount>").useCount, 0);
}

TEST(OnvifPtzConfiguration, keepsTextsVerbatim)
{
    const auto record =
        read("<DefaultPTZTimeout> 5 s </DefaultPTZTimeout><NodeToken> a </NodeToken><PTZTimeout>x</PTZTimeout>");
    EXPECT_EQ(record.defaultPtzTimeout, " 5 s ");
    EXPECT_EQ(record.nodeToken, " a ");
}

TEST(OnvifPtzConfiguration, readsTheLastOfSeveralTexts)
{
    const auto record = read("<DefaultPTZTimeout>PT1S</DefaultPTZTimeout><DefaultPTZTimeout>PT2S</DefaultPTZTimeout>"
                             "<NodeToken>a</NodeToken><NodeToken/>");
    EXPECT_EQ(record.defaultPtzTimeout, "PT2S");
    EXPECT_TRUE(record.nodeToken.isEmpty());
}

TEST(OnvifPtzConfiguration, ignoresNamesOfAnotherCaseAtEveryLevel)
{
    test::expectDefaults(read("<DefaultPtzTimeout>PT1S</DefaultPtzTimeout><nodetoken>a</nodetoken>"
                              "<pantiltlimits><Range><XRange><Min>1</Min></XRange></Range></pantiltlimits>"
                              "<PanTiltLimits><Range><xrange><Min>1</Min></xrange><yRange><Max>1</Max></yRange>"
                              "<XRange><min>1</min><MAX>1</MAX></XRange></Range></PanTiltLimits>"
                              "<ZoomLimits><Range><Xrange><Min>1</Min></Xrange></Range></ZoomLimits>"));
}

TEST(OnvifPtzConfiguration, isEqualWhateverItsLimits)
{
    auto left = test::sample<OnvifPtzConfiguration>();
    const auto right = left;
    left.panTiltXRange = {5.0, 6.0};
    left.defaultPtzTimeout = "PT9S";
    EXPECT_TRUE(left == right);
}

} // namespace
