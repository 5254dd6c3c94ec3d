#include "xml/recentvalues.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

using vorn::RecentValues;

namespace {

TEST(RecentValues, makesTheValueOfATextThatComesUpAgainOnlyOnce)
{
    RecentValues<std::string> values;
    int made = 0;
    const auto make = [&made](std::string_view text) {
        ++made;
        return "<" + std::string(text) + ">";
    };
    for (int i = 0; i < 3; ++i) {
        for (const char *text : {"", "a", "ab", "true", "tt:Name", "a text of more than eight characters"})
            EXPECT_EQ(values.of(text, make), "<" + std::string(text) + ">");
    }
    EXPECT_EQ(made, 6);
}

TEST(RecentValues, keepsApartWhatStandsAtOnePlace)
{
    // Same length, same first and last bytes: more texts than are tried for one place, in turns.
    std::vector<std::string> texts;
    for (char middle = 'a'; middle <= 'z'; ++middle)
        texts.push_back(std::string("12345678") + middle + "12345678");
    RecentValues<std::string> values;
    for (int i = 0; i < 3; ++i) {
        for (const std::string &text : texts)
            EXPECT_EQ(values.of(text, [](std::string_view made) { return std::string(made); }), text);
    }
}

/// How often a value is made of \a texts when each comes up twice.
std::size_t timesMade(const std::vector<std::string> &texts)
{
    RecentValues<std::size_t> values;
    std::size_t made = 0;
    for (int i = 0; i < 2; ++i) {
        for (const std::string &text : texts)
            values.of(text, [&made](std::string_view) { return ++made; });
    }
    return made;
}

TEST(RecentValues, remembersAllTextsThatDifferAtEitherEnd)
{
    for (std::size_t size = 1; size <= 20; ++size) {
        std::vector<std::string> atTheStart;
        std::vector<std::string> atTheEnd;
        for (char letter = 'a'; letter <= 'z'; ++letter) {
            atTheStart.push_back(letter + std::string(size - 1, '-'));
            atTheEnd.push_back(std::string(size - 1, '-') + letter);
        }
        EXPECT_EQ(timesMade(atTheStart), 26) << size;
        EXPECT_EQ(timesMade(atTheEnd), 26) << size;
    }
}

TEST(RecentValues, remembersAllTextsThatDifferInTheirLength)
{
    std::vector<std::string> texts;
    for (std::size_t size = 0; size < 32; ++size)
        texts.emplace_back(size, '-');
    EXPECT_EQ(timesMade(texts), 32);
}

TEST(RecentValues, remembersAllTextsOfThreeCharactersThatDifferInTheMiddle)
{
    std::vector<std::string> texts;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        texts.push_back(std::string("-") + letter + "-");
    EXPECT_EQ(timesMade(texts), 26);
}

TEST(RecentValues, readsNoByteBesideAText)
{
    RecentValues<std::size_t> values;
    for (std::size_t size = 0; size < 20; ++size) {
        // A block of exactly this size: a sanitizer sees what is read beside it.
        const auto text = std::make_unique<char[]>(size);
        std::fill_n(text.get(), size, 'x');
        values.of(std::string_view(text.get(), size), [](std::string_view made) { return made.size(); });
    }
}

TEST(RecentValues, remembersABoundedNumberOfTexts)
{
    std::vector<std::string> texts;
    for (int i = 0; i < 1000; ++i)
        texts.push_back(std::to_string(i));
    RecentValues<std::string> values;
    int made = 0;
    const auto make = [&made](std::string_view text) {
        ++made;
        return std::string(text);
    };
    for (const std::string &text : texts)
        values.of(text, make);
    EXPECT_EQ(made, 1000);
    for (const std::string &text : texts)
        values.of(text, make);
    EXPECT_GT(made, 1000 + 1000 - 257); // at most 256 were remembered
}

TEST(RecentValues, givesTheRightValueHoweverManyTextsThereAre)
{
    std::vector<std::string> texts;
    for (int i = 0; i < 5000; ++i)
        texts.push_back(std::to_string(i));
    RecentValues<std::string> values;
    for (int round = 0; round < 2; ++round) {
        for (const std::string &text : texts)
            EXPECT_EQ(values.of(text, [](std::string_view made) { return std::string(made); }), text);
    }
}

} // namespace
