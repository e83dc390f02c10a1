// The cache of date formatters: it is used, it is bounded, and it never mixes styles up.
#include "Simulator/Text/DateText.hpp"

#include <gtest/gtest.h>

#include <string>

using namespace Simulator;

namespace {

constexpr double evening = 627169267;

std::u16string numbered(int number)
{
    const std::string digits = std::to_string(number);
    return u"HH' " + std::u16string(digits.begin(), digits.end()) + u"'";
}

struct DateTextCache : testing::Test {
    void SetUp() override { forgetDateFormatters(); }
    void TearDown() override { forgetDateFormatters(); }
};

}

TEST_F(DateTextCache, KeepsOneFormatterForEachStyle)
{
    const DateStyle style{u"HH:mm", "en_US", "gregorian", "UTC"};
    for (int i = 0; i < 3; ++i)
        formatDate(evening, style);
    EXPECT_EQ(cachedDateFormatters(), 1u);
    for (const DateStyle& other :
        {DateStyle{u"HH.mm", "en_US", "gregorian", "UTC"}, DateStyle{u"HH:mm", "de_DE", "gregorian", "UTC"},
            DateStyle{u"HH:mm", "en_US", "hebrew", "UTC"}, DateStyle{u"HH:mm", "en_US", "gregorian", "Asia/Tokyo"}})
        formatDate(evening, other);
    EXPECT_EQ(cachedDateFormatters(), 5u);
    EXPECT_EQ(formatDate(evening, {u"HH:mm", "en_US", "gregorian", "Asia/Tokyo"}), u"06:41");
    EXPECT_EQ(formatDate(evening, style), u"21:41");
}

TEST_F(DateTextCache, IsBounded)
{
    for (int number = 0; number < 1000; ++number)
        EXPECT_EQ(formatDate(evening, {numbered(number), "en_US", "gregorian", "UTC"}),
            u"21" + numbered(number).substr(3, numbered(number).size() - 4));
    EXPECT_LE(cachedDateFormatters(), 64u);
}

TEST_F(DateTextCache, DoesNotKeepHugePatterns)
{
    formatDate(evening, {std::u16string(100000, u'-'), "en_US", "gregorian", "UTC"});
    formatDate(evening, {u"", "en_US", "gregorian", "UTC"});
    EXPECT_EQ(cachedDateFormatters(), 0u);
}

TEST_F(DateTextCache, AParseLeavesTheFormatterAsItWas)
{
    const DateStyle style{u"d HH:mm", "en_US", "gregorian", "UTC"};
    parseDate(u"40 99:99", style);
    EXPECT_EQ(formatDate(evening, style), u"15 21:41");
}
