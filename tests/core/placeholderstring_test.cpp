#include "support/printing.h"

#include <vorn/onvif/placeholderstring.h>

#include <gtest/gtest.h>

#include <locale>
#include <string>
#include <type_traits>

using vorn::PlaceHolderString;

static_assert(!std::is_copy_constructible_v<PlaceHolderString>);
static_assert(!std::is_copy_assignable_v<PlaceHolderString>);

namespace {

TEST(PlaceHolderString, fillsAPlaceholder)
{
    EXPECT_EQ(PlaceHolderString("<a>$@</a>", "$@").arg("x").str(), "<a>x</a>");
}

TEST(PlaceHolderString, fillsFromLeftToRight)
{
    EXPECT_EQ(PlaceHolderString("$@-$@-$@", "$@").arg(1).arg("two").arg(QString("three")).str(), "1-two-three");
}

TEST(PlaceHolderString, doesNotLookAtFilledInTextAgain)
{
    EXPECT_EQ(PlaceHolderString("<a>$@</a><b>$@</b>", "$@").arg("$@").arg("y").str(), "<a>$@</a><b>y</b>");
}

TEST(PlaceHolderString, fillsAnEmptyValue)
{
    EXPECT_EQ(PlaceHolderString("[$@][$@]", "$@").arg("").arg("y").str(), "[][y]");
}

TEST(PlaceHolderString, escapesNothing)
{
    EXPECT_EQ(PlaceHolderString("<a>$@</a>", "$@").arg("<&>").str(), "<a><&></a>");
}

TEST(PlaceHolderString, leavesPlaceholdersWithoutValue)
{
    EXPECT_EQ(PlaceHolderString("$@ $@", "$@").arg("x").str(), "x $@");
    EXPECT_EQ(PlaceHolderString("$@", "$@").str(), "$@");
}

TEST(PlaceHolderString, ignoresValuesWithoutPlaceholder)
{
    EXPECT_EQ(PlaceHolderString("a$@", "$@").arg("x").arg("y").str(), "ax");
    EXPECT_EQ(PlaceHolderString("plain", "$@").arg("x").str(), "plain");
    EXPECT_EQ(PlaceHolderString("", "$@").arg("x").str(), "");
}

TEST(PlaceHolderString, takesAnyCharacterOfThePlaceholderForAHit)
{
    EXPECT_EQ(PlaceHolderString("a@b$@", "$@").arg("x").str(), "ax$@");
    EXPECT_EQ(PlaceHolderString("a$bc", "$@").arg("x").str(), "axc");
    EXPECT_EQ(PlaceHolderString("a$", "$@").arg("x").str(), "ax");
}

TEST(PlaceHolderString, withAnEmptyPlaceholderNeverChanges)
{
    EXPECT_EQ(PlaceHolderString("text $@", "").arg("x").arg(1).str(), "text $@");
}

TEST(PlaceHolderString, takesPlaceholdersOfAnyLength)
{
    EXPECT_EQ(PlaceHolderString("a%b%", "%").arg(1).arg(2).str(), "a1b2");
    EXPECT_EQ(PlaceHolderString("a{}}b", "{}}").arg(1).str(), "a1b");
}

TEST(PlaceHolderString, returnsItself)
{
    PlaceHolderString string("$@", "$@");
    EXPECT_EQ(&string.arg("x"), &string);
}

TEST(PlaceHolderString, textIsAReferenceToWhatIsFilledSoFar)
{
    PlaceHolderString string("$@ $@", "$@");
    const std::string &text = string.str();
    string.arg("x");
    EXPECT_EQ(text, "x $@");
    string.arg("y");
    EXPECT_EQ(text, "x y");
}

std::string filled(PlaceHolderString &string)
{
    return string.str();
}

template <typename Value>
std::string printed(Value value)
{
    PlaceHolderString string("$@", "$@");
    return filled(string.arg(value));
}

TEST(PlaceHolderStringArg, printsIntegersInDecimal)
{
    EXPECT_EQ(printed<short>(-7), "-7");
    EXPECT_EQ(printed<unsigned short>(65535), "65535");
    EXPECT_EQ(printed<int>(-7), "-7");
    EXPECT_EQ(printed<unsigned int>(4294967295U), "4294967295");
    EXPECT_EQ(printed<long>(-2147483647L), "-2147483647");
    EXPECT_EQ(printed<unsigned long>(4294967295UL), "4294967295");
}

/// Numbers with an apostrophe before the last three digits.
struct Grouped : std::numpunct<char>
{
    char do_thousands_sep() const override { return '\''; }

    std::string do_grouping() const override { return "\3"; }
};

TEST(PlaceHolderStringArg, printsNumbersAsTheLocaleOfTheProgramSays)
{
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Grouped));
    const std::string integer = printed<int>(-7000);
    const std::string integerOfLong = printed<unsigned long>(1234UL);
    const std::string number = printed<double>(1234.5);
    std::locale::global(before);
    EXPECT_EQ(integer, "-7'000");
    EXPECT_EQ(integerOfLong, "1'234");
    EXPECT_EQ(number, "1'234.5");
    EXPECT_EQ(printed<int>(-7000), "-7000");
}

TEST(PlaceHolderStringArg, aLocaleMayGroupDigitsAndYetBeCalledC)
{
    const std::locale grouped(std::locale::classic(), new Grouped);
    const std::locale before = std::locale::global(std::locale::classic().combine<std::numpunct<char>>(grouped));
    const std::string integer = printed<int>(-7000);
    std::locale::global(before);
    EXPECT_EQ(integer, "-7'000");
}

TEST(PlaceHolderStringArg, printsNumbersWithSixDigits)
{
    EXPECT_EQ(printed<double>(3.5), "3.5");
    EXPECT_EQ(printed<double>(1234567.0), "1.23457e+06");
    EXPECT_EQ(printed<double>(0.0), "0");
    EXPECT_EQ(printed<float>(3.5F), "3.5");
    EXPECT_EQ(printed<float>(1.0F / 3), "0.333333");
    EXPECT_EQ(printed<long double>(-2.25L), "-2.25");
    EXPECT_EQ(printed<long double>(1234567.0L), "1.23457e+06");
}

TEST(PlaceHolderStringArg, printsBooleansAsWords)
{
    EXPECT_EQ(printed(true), "true");
    EXPECT_EQ(printed(false), "false");
}

TEST(PlaceHolderStringArg, printsTextAsUtf8)
{
    EXPECT_EQ(printed<const char *>("text"), "text");
    EXPECT_EQ(printed(std::string("a\0b", 3)), std::string("a\0b", 3));
    EXPECT_EQ(printed(QStringLiteral(u"\u00E9")), "\xC3\xA9");
}

TEST(PlaceHolderStringArg, printsPointersAsTheStreamDoes)
{
    EXPECT_EQ(printed(reinterpret_cast<void *>(0x1234)), "0x1234");
}

TEST(PlaceHolderString, convertsFromUtf8)
{
    EXPECT_EQ(PlaceHolderString("\xC3\xA9 $@", "$@").arg(QStringLiteral(u"\u4E2D")).qStr(),
              QStringLiteral(u"\u00E9 \u4E2D"));
}

} // namespace
