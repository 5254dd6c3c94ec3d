#include "xml/recentvalues.h"

#include <gtest/gtest.h>

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
