// How a text becomes a number: the same under every Qt.

#include "support/printing.h"
#include "xml/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

template <typename Number>
struct Row
{
    const char16_t *text;
    Number number;
};

const Row<int> wholeNumbers[] = {
    {u"0", 0},
    {u"42", 42},
    {u"007", 7},
    {u"+42", 42},
    {u"-42", -42},
    {u"-0", 0},
    {u" 42", 42},
    {u"\t\n\v\f\r 42 \t\n\v\f\r", 42},
    {u" -42 ", -42},
    {u"2147483647", 2147483647},
    {u"-2147483648", -2147483647 - 1},
    {u"00000000000000000000000000000042", 42},
    {u"2147483648", 0},
    {u"-2147483649", 0},
    {u"9223372036854775808", 0},
    {u"-9223372036854775809", 0},
    {u"18446744073709551658", 0}, // 42 more than 64 bits hold
    {u"99999999999999999999999999999999999999", 0},
    {u"", 0},
    {u" ", 0},
    {u"+", 0},
    {u"-", 0},
    {u"+-1", 0},
    {u"--1", 0},
    {u"- 1", 0},
    {u"1-", 0},
    {u"4 2", 0},
    {u"1,000", 0},
    {u"1.000", 0},
    {u"1'000", 0},
    {u"1_000", 0},
    {u"1\u00A0000", 0},
    {u"3.0", 0},
    {u"1e3", 0},
    {u"0x1A", 0},
    {u"0b1", 0},
    {u"42abc", 0},
    {u"\u00A0"
     u"42",
     0}, // no blank of ASCII
    {u"\u3000"
     u"42",
     0},
    {u"\uFEFF"
     u"42",
     0},
    {u"\u2212"
     u"42",
     0},                  // the sign for minus that is none of ASCII
    {u"\u0664\u0662", 0}, // digits of other scripts
    {u"\uFF14\uFF12", 0},
    {u"\u0134\u0132", 0}, // characters whose lower bytes are digits
    {u"\U0001D7D2", 0},
};

TEST(Numbers, wholeOnesAreDecimalWithASignOrWithout)
{
    for (const auto &[text, number] : wholeNumbers) {
        const QString written = QStringView(text).toString();
        EXPECT_EQ(vorn::toInt(QStringView(text)), number) << written.toStdString();
        EXPECT_EQ(vorn::toInt(QByteArrayView(written.toUtf8())), number) << written.toStdString();
    }
}

TEST(Numbers, unsignedOnesHaveNoMinus)
{
    const Row<unsigned int> rows[] = {
        {u"42", 42U},
        {u" +42\n", 42U},
        {u"2147483648", 2147483648U},
        {u"4294967295", 4294967295U},
        {u"4294967296", 0U},
        {u"-1", 0U},
        {u"-0", 0U},
        {u"4294967338", 0U},
        {u"18446744073709551616", 0U},
        {u"+", 0U},
        {u"++1", 0U},
        {u"", 0U},
        {u"1 ,", 0U},
    };
    for (const auto &[text, number] : rows) {
        const QString written = QStringView(text).toString();
        EXPECT_EQ(vorn::toUInt(QStringView(text)), number) << written.toStdString();
        EXPECT_EQ(vorn::toUInt(QByteArrayView(written.toUtf8())), number) << written.toStdString();
    }
}

const Row<double> decimalNumbers[] = {
    {u"0", 0},
    {u"4.5", 4.5},
    {u"-0.25", -0.25},
    {u"+4.5", 4.5},
    {u"-0", -0.0},
    {u"-0.0", -0.0},
    {u"1.", 1},
    {u".5", 0.5},
    {u"-.5", -0.5},
    {u"00.10", 0.1},
    {u"1e3", 1000},
    {u"1E3", 1000},
    {u"1.e3", 1000},
    {u".5e1", 5},
    {u"1e+3", 1000},
    {u"5e-1", 0.5},
    {u"1e03", 1000},
    {u" 4.5 ", 4.5},
    {u"\t\n\v\f\r4.5", 4.5},
    {u"\u00A0"
     u"4.5\u3000",
     4.5},
    {u"\u2028"
     u"4.5",
     4.5},
    {u"\u2212"
     u"4.5",
     -4.5},
    {u"5e\u2212"
     u"1",
     0.5},
    {u"123456789012345678901234567890", 123456789012345678901234567890.0},
    {u"0.1234567890123456789012345678901234567890", 0.1234567890123456789},
    {u"9007199254740993", 9007199254740992.0}, // halfway between two doubles, to the even one
    {u"9007199254740993.0000000000000000000001", 9007199254740994.0},
    {u"2.2250738585072011e-308", 2.2250738585072011e-308}, // the greatest that is not normal
    {u"4.9406564584124654e-324", 4.9406564584124654e-324},
    {u"1.7976931348623157e308", 1.7976931348623157e308},
    {u"1.7976931348623159e308", infinity},
    {u"1e999", infinity},
    {u"-1e999", -infinity},
    {u"1e99999999999999999999", infinity},
    {u"1e-999", 0},
    {u"-1e-999", 0},
    {u"0e999", 0},
    {u"inf", infinity},
    {u"INF", infinity},
    {u"+inf", infinity},
    {u"-Inf", -infinity},
    {u" inf ", infinity},
    {u"", 0},
    {u" ", 0},
    {u"-", 0},
    {u".", 0},
    {u"-.", 0},
    {u"+", 0},
    {u"e", 0},
    {u"e3", 0},
    {u".e3", 0},
    {u"1e", 0},
    {u"1e+", 0},
    {u"1e1.5", 0},
    {u"1e1e1", 0},
    {u"1.2.3", 0},
    {u"--1", 0},
    {u"+-1", 0},
    {u"- 1", 0},
    {u"1-", 0},
    {u"-1-2", 0},
    {u"1 5", 0},
    {u"1,5", 0},
    {u"1,000.5", 0},
    {u"1'000", 0},
    {u"1\u00A0000", 0},
    {u"0x10", 0},
    {u"0x1p3", 0},
    {u"4.5f", 0},
    {u"50%", 0},
    {u"infinity", 0},
    {u"+nan", 0},
    {u"-nan", 0},
    {u"nan(1)", 0},
    {u"\u0664.\u0665", 0},
    {u"\u0134", 0},
    {u"\uFEFF"
     u"4.5",
     0},
    {u"\U0001D7D2", 0},
};

TEST(Numbers, decimalOnesMayHaveAnExponent)
{
    for (const auto &[text, number] : decimalNumbers) {
        const QString written = QStringView(text).toString();
        for (const double read :
             {vorn::toDouble(QStringView(text)), vorn::toDouble(QByteArrayView(written.toUtf8()))}) {
            EXPECT_EQ(read, number) << written.toStdString();
            EXPECT_EQ(std::signbit(read), std::signbit(number)) << written.toStdString();
        }
    }
}

TEST(Numbers, nanIsReadInAnyCase)
{
    for (const char16_t *text : {u"nan", u"NaN", u" NAN "})
        EXPECT_TRUE(std::isnan(vorn::toDouble(QStringView(text))));
}

/// Tells the zeros apart, and compares what is no number.
std::uint64_t bitsOf(double number)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    return bits;
}

TEST(Numbers, areThoseOfTheQtThatTheyAreTakenFrom)
{
    if (!QByteArrayView(qVersion()).startsWith("6.4."))
        GTEST_SKIP() << "This is Qt " << qVersion() << ", and the numbers are those of QString in Qt 6.4.";
    constexpr QStringView alphabet = u"0123456789019000.+-eEinfaNA \t\v,%x\u00A0\u2212\u0661\u00E9\uFEFF";
    std::mt19937 random(1);
    for (int i = 0; i < 300'000; ++i) {
        QString text;
        for (auto length = random() % 12; length > 0; --length)
            text += alphabet[random() % (i % 2 == 0 ? 21U : static_cast<unsigned int>(alphabet.size()))];
        ASSERT_EQ(vorn::toInt(text), text.toInt()) << text.toStdString();
        ASSERT_EQ(vorn::toUInt(text), text.toUInt()) << text.toStdString();
        ASSERT_EQ(bitsOf(vorn::toDouble(text)), bitsOf(text.toDouble())) << text.toStdString();
    }
}

} // namespace
