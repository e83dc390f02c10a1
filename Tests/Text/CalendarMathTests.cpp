// Fields of dates and moving dates, in the phone's calendars.
#include "Simulator/Text/CalendarMath.hpp"

#include <gtest/gtest.h>

#include <limits>

using namespace Simulator;

namespace {

constexpr double evening = 627169267; // 2020-11-15 21:41:07 UTC, a Sunday
constexpr double day = 86400;
constexpr CalendarStyle gregorian{"gregorian", "en_US", "UTC"};

}

TEST(CalendarMath, ReadsTheFieldsOfADate)
{
    EXPECT_EQ(calendarField(evening, CalendarUnit::year, gregorian), 2020);
    EXPECT_EQ(calendarField(evening, CalendarUnit::month, gregorian), 11);
    EXPECT_EQ(calendarField(evening, CalendarUnit::day, gregorian), 15);
    EXPECT_EQ(calendarField(evening, CalendarUnit::hour, gregorian), 21);
    EXPECT_EQ(calendarField(evening, CalendarUnit::minute, gregorian), 41);
    EXPECT_EQ(calendarField(evening, CalendarUnit::second, gregorian), 7);
    EXPECT_EQ(calendarField(evening, CalendarUnit::weekday, gregorian), 1);
    EXPECT_EQ(calendarField(evening + 0.25, CalendarUnit::nanosecond, gregorian), 250000000);
}

TEST(CalendarMath, CountsInTheCalendarAndTheZone)
{
    EXPECT_EQ(calendarField(evening, CalendarUnit::year, {"hebrew", "en_US", "UTC"}), 5781);
    EXPECT_EQ(calendarField(evening, CalendarUnit::year, {"islamic-civil", "en_US", "UTC"}), 1442);
    EXPECT_EQ(calendarField(evening, CalendarUnit::year, {"buddhist", "en_US", "UTC"}), 2563);
    EXPECT_EQ(calendarField(evening, CalendarUnit::day, {"chinese", "en_US", "UTC"}), 1);
    EXPECT_EQ(calendarField(evening, CalendarUnit::hour, {"gregorian", "en_US", "Asia/Jerusalem"}), 23);
}

TEST(CalendarMath, MovesADateByUnits)
{
    EXPECT_EQ(addToDate(evening, {{CalendarUnit::day, 1}}, gregorian), evening + day);
    EXPECT_EQ(
        addToDate(evening, {{CalendarUnit::day, -15}, {CalendarUnit::hour, 1}}, gregorian), evening - 15 * day + 3600);
    EXPECT_EQ(addToDate(evening, {{CalendarUnit::month, 1}}, gregorian), evening + 30 * day);
    EXPECT_EQ(addToDate(evening + 0.123456, {{CalendarUnit::day, 1}}, gregorian), evening + 0.123456 + day);
}

TEST(CalendarMath, ADayAcrossSummerTimeKeepsTheHour)
{
    const CalendarStyle berlin{"gregorian", "de_DE", "Europe/Berlin"};
    const auto before = dateFromFields(
        {{CalendarUnit::year, 2020}, {CalendarUnit::month, 10}, {CalendarUnit::day, 24}, {CalendarUnit::hour, 12}},
        berlin);
    ASSERT_TRUE(before);
    EXPECT_EQ(addToDate(*before, {{CalendarUnit::day, 1}}, berlin), *before + 25 * 3600);
}

TEST(CalendarMath, BuildsADateFromFields)
{
    EXPECT_EQ(dateFromFields({{CalendarUnit::year, 2020}, {CalendarUnit::month, 11}, {CalendarUnit::day, 15},
                                 {CalendarUnit::hour, 21}, {CalendarUnit::minute, 41}, {CalendarUnit::second, 7}},
                  gregorian),
        evening);
}

TEST(CalendarMath, BadInputGivesNothing)
{
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(calendarField(evening, CalendarUnit::day, {"no-such", "en_US", "UTC"}));
    EXPECT_FALSE(calendarField(notANumber, CalendarUnit::day, gregorian));
    EXPECT_FALSE(addToDate(notANumber, {{CalendarUnit::day, 1}}, gregorian));
    EXPECT_FALSE(addToDate(evening, {}, {"", "en_US", "UTC"}));
}

TEST(CalendarMath, AbsurdAmountsDoNotHang)
{
    const long most = std::numeric_limits<long>::max();
    for (const auto& identifier : calendarIdentifiers()) {
        const CalendarStyle style{identifier, "en_US", "UTC"};
        for (const auto unit : {CalendarUnit::day, CalendarUnit::hour, CalendarUnit::second}) {
            EXPECT_GT(addToDate(evening, {{unit, most}}, style).value_or(evening + 1), evening) << identifier;
        }
        EXPECT_TRUE(calendarField(1e300, CalendarUnit::day, style)) << identifier;
    }
}

TEST(CalendarMath, KnowsTheCalendarOfALocale)
{
    EXPECT_EQ(calendarOfLocale("en_US"), "gregorian");
    EXPECT_EQ(calendarOfLocale("th_TH"), "buddhist");
    EXPECT_EQ(calendarOfLocale("en_US@calendar=hebrew"), "hebrew");
    EXPECT_TRUE(isKnownCalendar("islamic-civil"));
    EXPECT_FALSE(isKnownCalendar(""));
}

TEST(CalendarMath, MeasuresTheWayBetweenDates)
{
    const auto fields = fieldsBetween(evening, evening + 40 * day + 3661,
        {CalendarUnit::second, CalendarUnit::minute, CalendarUnit::hour, CalendarUnit::day, CalendarUnit::month},
        gregorian);
    std::vector<long> values;
    for (const auto& field : fields)
        values.push_back(field.value);
    EXPECT_EQ(values, (std::vector<long>{1, 10, 1, 1, 1}));
}

TEST(CalendarMath, TheWeekBeginsWhereTheLocaleSays)
{
    EXPECT_EQ(firstWeekday(gregorian), 1);
    EXPECT_EQ(firstWeekday({"gregorian", "de_DE", "UTC"}), 2);
}
