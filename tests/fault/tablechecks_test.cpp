// That the checks of the tables of faults find what is wrong with a table.

#include "fault/tablechecks.h"

#include <gtest/gtest.h>

using vorn::OnvifFault;
using vorn::faultcodes::Rows;
using vorn::faultcodes::SoapCode;
using vorn::faultcodes::SpecificCode;
using vorn::faultcodes::Subcode;
using vorn::faultcodes::TextCode;

namespace {

constexpr auto specific1 = static_cast<OnvifFault::SpecificType>(1);
constexpr auto specific2 = static_cast<OnvifFault::SpecificType>(2);
constexpr auto specific3 = static_cast<OnvifFault::SpecificType>(3);
constexpr auto subcode1 = static_cast<OnvifFault::SubcodeType>(1);
constexpr auto subcode2 = static_cast<OnvifFault::SubcodeType>(2);
constexpr auto subcode3 = static_cast<OnvifFault::SubcodeType>(3);
constexpr auto fault0 = static_cast<OnvifFault::FaultType>(0);
constexpr auto fault1 = static_cast<OnvifFault::FaultType>(1);
constexpr auto fault2 = static_cast<OnvifFault::FaultType>(2);

constexpr SpecificCode goodSpecificCodes[] = {{":A", specific1, nullptr}, {":B", specific2, nullptr}};
constexpr SpecificCode otherSpecificCodes[] = {{":A", specific3, nullptr}};
constexpr SpecificCode badSpecificCodes[] = {{":A", specific1, nullptr}, {":A", specific2, nullptr}};
constexpr Subcode goodSubcodes[] = {
    {":A", subcode1, nullptr, goodSpecificCodes},
    {":B", subcode2, nullptr, otherSpecificCodes},
};
constexpr Subcode otherSubcodes[] = {{":A", subcode3, nullptr, {}}};

TEST(EndOfValue, startsWithItsOnlyColonAndHoldsMore)
{
    EXPECT_TRUE(vorn::faultcodes::isEndOfValue(":A"));
    EXPECT_TRUE(vorn::faultcodes::isEndOfValue(":Action"));
    for (const char *literal : {"", ":", "A", "AB", "A:", "A:B", "::", ":A:", ":A:B"})
        EXPECT_FALSE(vorn::faultcodes::isEndOfValue(literal)) << literal;
}

TEST(FaultTable, isUnambiguousWithTypesAndLiteralsThatStandOnce)
{
    EXPECT_TRUE(isUnambiguous(Rows<SpecificCode>()));
    EXPECT_TRUE(isUnambiguous(Rows(goodSpecificCodes)));
    const SpecificCode withoutLiterals[] = {
        {"", specific1, nullptr}, {":A", specific2, nullptr}, {"", specific3, nullptr}};
    EXPECT_TRUE(isUnambiguous(Rows(withoutLiterals)));
}

TEST(FaultTable, isAmbiguousWithATypeTwice)
{
    const SpecificCode codes[] = {{":A", specific1, nullptr}, {":B", specific2, nullptr}, {":C", specific1, nullptr}};
    EXPECT_FALSE(isUnambiguous(Rows(codes)));
    const SpecificCode withoutLiterals[] = {{"", specific1, nullptr}, {"", specific1, nullptr}};
    EXPECT_FALSE(isUnambiguous(Rows(withoutLiterals)));
}

TEST(FaultTable, isAmbiguousWithALiteralTwice)
{
    const SpecificCode codes[] = {{":A", specific1, nullptr}, {":B", specific2, nullptr}, {":A", specific3, nullptr}};
    EXPECT_FALSE(isUnambiguous(Rows(codes)));
}

TEST(FaultTable, isAmbiguousWithALiteralThatIsNoEndOfAValue)
{
    const SpecificCode first[] = {{"A", specific1, nullptr}, {":B", specific2, nullptr}};
    EXPECT_FALSE(isUnambiguous(Rows(first)));
    const SpecificCode last[] = {{":A", specific1, nullptr}, {"B", specific2, nullptr}};
    EXPECT_FALSE(isUnambiguous(Rows(last)));
}

TEST(FaultTables, areUnambiguousOnAllLevels)
{
    const SoapCode codes[] = {{":A", fault1, nullptr, goodSubcodes}, {":B", fault2, nullptr, {}}};
    EXPECT_TRUE(allAreUnambiguous(Rows(codes)));

    const SoapCode literalTwice[] = {{":A", fault1, nullptr, goodSubcodes}, {":A", fault2, nullptr, {}}};
    EXPECT_FALSE(allAreUnambiguous(Rows(literalTwice)));

    const Subcode badSubcodes[] = {{":A", subcode1, nullptr, {}}, {":A", subcode2, nullptr, {}}};
    const SoapCode belowIt[] = {{":A", fault1, nullptr, goodSubcodes}, {":B", fault2, nullptr, badSubcodes}};
    EXPECT_FALSE(allAreUnambiguous(Rows(belowIt)));

    const Subcode withBadCodes[] = {{":A", subcode1, nullptr, goodSpecificCodes},
                                    {":B", subcode2, nullptr, badSpecificCodes}};
    const SoapCode twoBelowIt[] = {{":A", fault1, nullptr, goodSubcodes}, {":B", fault2, nullptr, withBadCodes}};
    EXPECT_FALSE(allAreUnambiguous(Rows(twoBelowIt)));
}

TEST(FaultTables, haveOneRowForEachType)
{
    const SoapCode codes[] = {{":A", fault1, nullptr, {}}};
    const TextCode zero[] = {{"", fault0, nullptr}};
    const TextCode zeroTwice[] = {{"", fault0, nullptr}, {"", fault0, nullptr}};
    const TextCode two[] = {{"", fault2, nullptr}};
    const Rows<TextCode> none;
    EXPECT_TRUE(eachStandsInOneRow(fault2, Rows(codes), Rows(zero), Rows(two)));
    EXPECT_FALSE(eachStandsInOneRow(fault2, Rows(codes), Rows(zero), none)) << "the last is missing";
    EXPECT_FALSE(eachStandsInOneRow(fault2, Rows(codes), none, Rows(two))) << "the first is missing";
    EXPECT_FALSE(eachStandsInOneRow(fault2, Rows<SoapCode>(), Rows(zero), Rows(two))) << "one between them is missing";
    EXPECT_FALSE(eachStandsInOneRow(fault2, Rows(codes), Rows(zeroTwice), Rows(two))) << "one table holds it twice";
    EXPECT_FALSE(eachStandsInOneRow(fault1, Rows(codes), Rows(zero), Rows(zero))) << "two tables hold it";
}

TEST(FaultTables, haveRowsForEachTypeBelowACode)
{
    const SoapCode codes[] = {{":A", fault1, nullptr, goodSubcodes}, {":B", fault2, nullptr, otherSubcodes}};
    EXPECT_TRUE(allAreBelow(Rows(codes), subcode3));
    EXPECT_TRUE(allAreBelow(Rows(codes), specific3));
    EXPECT_FALSE(allAreBelow(Rows(codes), static_cast<OnvifFault::SubcodeType>(4)));
    EXPECT_FALSE(allAreBelow(Rows(codes), static_cast<OnvifFault::SpecificType>(4)));

    const SoapCode lastOnly[] = {{":B", fault2, nullptr, otherSubcodes}};
    EXPECT_FALSE(allAreBelow(Rows(lastOnly), subcode3)) << "the first is missing";
    const Subcode lastSpecificOnly[] = {{":A", subcode1, nullptr, otherSpecificCodes}};
    const SoapCode lastBelow[] = {{":A", fault1, nullptr, lastSpecificOnly}};
    EXPECT_FALSE(allAreBelow(Rows(lastBelow), specific3)) << "the first is missing";

    const SoapCode twice[] = {{":A", fault1, nullptr, goodSubcodes}, {":B", fault2, nullptr, goodSubcodes}};
    EXPECT_TRUE(allAreBelow(Rows(twice), subcode2)) << "it may stand below several codes";
    EXPECT_TRUE(allAreBelow(Rows(twice), specific2)) << "it may stand below several codes";
}

} // namespace
